// Leaves a trace of how a program that ships was compiled. It hands all calls that the C library
// can check to Qt, so whether they would be checked can't be seen from outside;
// scripts/check-hardening looks for this section instead.

#include <cstring>

#if __USE_FORTIFY_LEVEL > 1
[[gnu::used, gnu::section(".mahlberg.fortify")]] static const char spur[] = "checked";
#endif
