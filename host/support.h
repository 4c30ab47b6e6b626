// What the host's source files share.
//
// The host keeps to libc: it needs no symbol of the C++ runtime library, so that a C program can
// link the static host with its C compiler alone.
#ifndef TARN_HOST_SUPPORT_H
#define TARN_HOST_SUPPORT_H

// The services stay visible to libtarn however the host is compiled.
#pragma GCC visibility push(default)
#include "vel_platform.h"
#pragma GCC visibility pop

namespace tarn_host {

// Holds the host's one mutex for the length of a scope. A fork waits until no thread holds it, so
// that a child never inherits it locked. Handlers are called outside it.
class Locked {
public:
    Locked();
    ~Locked();
    Locked(const Locked &) = delete;
    Locked &operator=(const Locked &) = delete;
};

// Where in libtarn a call of the host comes from.
struct Place {
    const char *module;
    uint32_t line;
};

} // namespace tarn_host

#endif
