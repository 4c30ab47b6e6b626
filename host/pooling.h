// Whether blocks come from the host's pool or, one by one, from malloc.
//
// The pool would hide overruns, uses after free and leaks from the sanitizers, so that builds with
// one of them take malloc. Define TARN_HOST_POOLED as 0 to do the same for other memory checkers,
// or as 1 to put the pool itself under a sanitizer.
#ifndef TARN_HOST_POOLING_H
#define TARN_HOST_POOLING_H

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_HWADDRESS__) || defined(__SANITIZE_THREAD__)
#define TARN_HOST_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(hwaddress_sanitizer) ||                      \
    __has_feature(memory_sanitizer) || __has_feature(thread_sanitizer)
#define TARN_HOST_SANITIZED 1
#endif
#endif

#ifndef TARN_HOST_SANITIZED
#define TARN_HOST_SANITIZED 0
#endif

#ifndef TARN_HOST_POOLED
#define TARN_HOST_POOLED (!TARN_HOST_SANITIZED)
#endif

#endif
