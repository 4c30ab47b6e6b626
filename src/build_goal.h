// What the engine is built for: size with -Os or TARN_COMPACT, else speed.
#ifndef TARN_BUILD_GOAL_H
#define TARN_BUILD_GOAL_H

namespace [[gnu::visibility("hidden")]] tarn {

// Built for size, the engine reads the catalogue's rows as it goes. Built for speed, it has a walk
// of its own for each message and composite, and short ways for numbers and byte strings, which are
// most of what travels.
#if !defined(__OPTIMIZE_SIZE__) && !defined(TARN_COMPACT)
#define TARN_BUILT_FOR_SPEED
inline constexpr bool builtForSpeed = true;
#else
inline constexpr bool builtForSpeed = false;
#endif

// What the walks are made of is to become part of them: left to itself, the compiler stops long
// before. A lambda takes the attribute behind its parameters.
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
