// The host's mutex, and what a fork does with it.

#include "support.h"

#include <pthread.h>

namespace {

pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
pthread_once_t registration = PTHREAD_ONCE_INIT;

void lock() {
    pthread_mutex_lock(&mutex);
}

void unlock() {
    pthread_mutex_unlock(&mutex);
}

void hold_while_forking() {
    pthread_atfork(lock, unlock, unlock);
}

} // namespace

tarn_host::Locked::Locked() {
    pthread_once(&registration, hold_while_forking);
    lock();
}

tarn_host::Locked::~Locked() {
    unlock();
}
