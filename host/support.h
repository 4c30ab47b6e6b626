// What the host's source files share.
//
// The host keeps to libc: it needs no symbol of the C++ runtime library, so that a C program can
// link the static host with its C compiler alone.
#ifndef TARN_HOST_SUPPORT_H
#define TARN_HOST_SUPPORT_H

#include <pthread.h>

// The services stay visible to libtarn however the host is compiled.
#pragma GCC visibility push(default)
#include "vel_platform.h"
#pragma GCC visibility pop

namespace tarn_host {

// Holds a mutex for the length of a scope.
class Locked {
public:
    explicit Locked(pthread_mutex_t &mutex) : mutex_(mutex) { pthread_mutex_lock(&mutex_); }
    ~Locked() { pthread_mutex_unlock(&mutex_); }
    Locked(const Locked &) = delete;
    Locked &operator=(const Locked &) = delete;

private:
    pthread_mutex_t &mutex_;
};

} // namespace tarn_host

#endif
