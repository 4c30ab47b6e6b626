// Opens the library given as the first argument in a program that has no host, and sees it refused
// right then: a service that is missing must not be found out by the first call that needs it.
#include <cstdio>
#include <cstring>
#include <dlfcn.h>

int main(int, char **argv) {
    if (dlopen(argv[1], RTLD_LAZY) != nullptr) {
        std::puts("loaded without a host");
        return 1;
    }
    const char *const error = dlerror();
    std::puts(error);
    return std::strstr(error, "undefined symbol: vel") != nullptr ||
                   std::strstr(error, "undefined symbol: xVel") != nullptr
               ? 0
               : 1;
}
