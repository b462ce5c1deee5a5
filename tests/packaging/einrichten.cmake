# Installs the build in BAU below ORDNER, and moves it to ORDNER/anderswo/Mahlberg.
file(REMOVE_RECURSE ${ORDNER})
set(ENV{DESTDIR} ${ORDNER})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BAU} --prefix /usr
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(MAKE_DIRECTORY ${ORDNER}/anderswo)
file(RENAME ${ORDNER}/usr ${ORDNER}/anderswo/Mahlberg)
