// What the engine is built for: size with -Os or TARN_COMPACT, else speed.
#ifndef TARN_BUILD_GOAL_H
#define TARN_BUILD_GOAL_H

namespace [[gnu::visibility("hidden")]] tarn {

// Built for size, the engine reads the catalogue's rows at run time. Built for speed, each message
// and composite has its own walks, and bytes that are plainly good take a short cut (plain.h).
#if !defined(__OPTIMIZE_SIZE__) && !defined(TARN_COMPACT)
#define TARN_BUILT_FOR_SPEED
inline constexpr bool builtForSpeed = true;
#else
inline constexpr bool builtForSpeed = false;
#endif

// A walk is fast only if all its parts are inlined, which the compiler would not do by itself. On a
// lambda the attribute follows the parameters. TARN_SHARED marks what is inlined only in walks that
// belong to a single owner.
#ifdef TARN_BUILT_FOR_SPEED
#define TARN_INLINE        [[gnu::always_inline]] inline
#define TARN_INLINE_LAMBDA __attribute__((always_inline))
#define TARN_SHARED        TARN_INLINE
#else
#define TARN_INLINE inline
#define TARN_INLINE_LAMBDA
#define TARN_SHARED [[gnu::noinline]]
#endif

} // namespace tarn

#endif
