// What the engine is built for: size with -Os or TARN_COMPACT, else speed.
#ifndef TARN_BUILD_GOAL_H
#define TARN_BUILD_GOAL_H

namespace [[gnu::visibility("hidden")]] tarn {

// Built for size, the engine reads the catalogue's rows as it goes. Built for speed, each message
// and composite has walks of its own, and bytes that are plainly good take a short way (plain.h).
#if !defined(__OPTIMIZE_SIZE__) && !defined(TARN_COMPACT)
#define TARN_BUILT_FOR_SPEED
inline constexpr bool builtForSpeed = true;
#else
inline constexpr bool builtForSpeed = false;
#endif

// Left to itself, the compiler does not inline all that a walk is made of. A lambda takes the
// attribute behind its parameters. TARN_SHARED is inlined only where a walk is one owner's alone.
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
