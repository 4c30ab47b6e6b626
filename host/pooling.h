// Whether threads keep freed blocks for reuse, or give each back to malloc at once.
//
// Kept blocks would hide overruns, uses after free and leaks from AddressSanitizer and its kin, so
// that builds with one of them keep none. ThreadSanitizer sees the caches that ship. Define
// TARN_HOST_POOLED as 0 for other memory checkers, or as 1 to put the caches under any sanitizer.
#ifndef TARN_HOST_POOLING_H
#define TARN_HOST_POOLING_H

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_HWADDRESS__)
#define TARN_HOST_CHECKS_MEMORY 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(hwaddress_sanitizer) ||                      \
    __has_feature(memory_sanitizer)
#define TARN_HOST_CHECKS_MEMORY 1
#endif
#endif

#ifndef TARN_HOST_CHECKS_MEMORY
#define TARN_HOST_CHECKS_MEMORY 0
#endif

#ifndef TARN_HOST_POOLED
#define TARN_HOST_POOLED (!TARN_HOST_CHECKS_MEMORY)
#endif

#endif
