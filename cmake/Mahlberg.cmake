# What every target of the project shares: warnings as errors, the sanitizers of the preset, and
# the two ways in which a room of the house becomes a target.

add_library(mahlberg_options INTERFACE)
target_compile_options(mahlberg_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${MAHLBERG_STRICT}>:-Werror>
    # Single and double precision are both meant: nothing may reorder or contract the arithmetic.
    -ffp-contract=off -fno-fast-math)
target_compile_definitions(mahlberg_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(MAHLBERG_SANITIZE)
    target_compile_options(mahlberg_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(mahlberg_options INTERFACE -fsanitize=address,undefined)
endif()
if(MAHLBERG_COVERAGE)
    target_compile_options(mahlberg_options INTERFACE --coverage)
    target_link_options(mahlberg_options INTERFACE --coverage)
endif()
if(MAHLBERG_FUZZ)
    target_compile_options(mahlberg_options INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
    target_link_options(mahlberg_options INTERFACE -fsanitize=address,undefined)
endif()

# What ships makes it hard to turn a mistake into a break-in: the program lies at another place each
# time, its tables can't be written once it runs, an overrun buffer ends it. Said here and not left to
# the compiler's defaults, which differ; scripts/check-hardening looks at the result. The sanitizers
# want to see the calls as they are.
set(optimised "$<CONFIG:Release,RelWithDebInfo,MinSizeRel>")
if(NOT MAHLBERG_SANITIZE AND NOT MAHLBERG_COVERAGE AND NOT MAHLBERG_FUZZ)
    target_compile_options(mahlberg_options INTERFACE
        "$<${optimised}:-fPIC;-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
    target_link_options(mahlberg_options INTERFACE
        "$<${optimised}:-pie;-Wl,-z,relro;-Wl,-z,now>")
endif()

# The same source gives the same bytes, wherever it lies and whenever it is built: what ships names
# no folder of the machine that built it, and what it carries within bears no times (the first form
# of Qt's resources has none).
target_compile_options(mahlberg_options INTERFACE
    "$<${optimised}:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>")
set(CMAKE_AUTORCC_OPTIONS --format-version 1)
set(MAHLBERG_RCC_OPTIONS OPTIONS ${CMAKE_AUTORCC_OPTIONS})

# Most of the time goes into reading the same headers of Qt and the standard library again, so they
# are read once: for what computes those of Qt Core, for what shows those of the widgets too. What a
# file needs it names all the same: the package and the program that ./run starts are built without.
if(MAHLBERG_PRECOMPILE)
    foreach(kind Core Widgets)
        set(source ${CMAKE_BINARY_DIR}/precompiled/${kind}.cpp)
        file(CONFIGURE OUTPUT ${source} CONTENT "")
        add_library(mahlberg_precompiled_${kind} STATIC ${source})
        target_link_libraries(mahlberg_precompiled_${kind} PRIVATE Qt6::${kind} mahlberg_options)
        target_precompile_headers(mahlberg_precompiled_${kind} PRIVATE <Qt${kind}>)
        set_target_properties(mahlberg_precompiled_${kind} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    endforeach()
    target_precompile_headers(mahlberg_precompiled_Widgets PRIVATE <QtCore>)
endif()

# Of the rooms and libraries that a target links, does one show something?
function(mahlberg_precompile name)
    if(NOT MAHLBERG_PRECOMPILE)
        return()
    endif()
    set(kind Core)
    foreach(link ${ARGN})
        get_target_property(linked ${link} MAHLBERG_PRECOMPILED)
        if(linked STREQUAL Widgets OR link STREQUAL Qt6::Widgets)
            set(kind Widgets)
        endif()
    endforeach()
    set_target_properties(${name} PROPERTIES MAHLBERG_PRECOMPILED ${kind})
    target_precompile_headers(${name} REUSE_FROM mahlberg_precompiled_${kind})
endfunction()

# A room: a static library whose headers are found only by those that link it. A header of a room
# that is not on the link list can't even be included, so the link lists are the boundaries.
function(mahlberg_room name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE mahlberg_options)
    mahlberg_precompile(${name} ${ARG_LINK})
endfunction()

# The sanitizer guesses how large a library's memory for its threads is, and guesses wrong with some
# that Qt loads while it runs: intercept_tls_get_addr=0 keeps it from reading where nothing is.
# Eight calls tell where something was allocated; the thirty that it notes by itself cost a tenth of
# the time.
# A test program: tests/<room>/<name>.cpp, run without a display in a home folder of its own.
function(mahlberg_test name)
    cmake_parse_arguments(ARG "" "" "LINK;SOURCES" ${ARGN})
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt6::Test mahlberg_options)
    mahlberg_precompile(${name} ${ARG_LINK})
    # A test includes what moc makes of it, so this file of its is empty and needs no headers.
    set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/mocs_compilation.cpp
        PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    set(home ${CMAKE_BINARY_DIR}/test-homes/${name})
    file(MAKE_DIRECTORY ${home})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 240
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;HOME=${home};XDG_CONFIG_HOME=${home}/.config;LC_ALL=C.UTF-8;TZ=UTC;QT_LOGGING_RULES=qt.qpa.*=false;ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1:intercept_tls_get_addr=0:malloc_context_size=8;UBSAN_OPTIONS=print_stacktrace=1;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0")
endfunction()
