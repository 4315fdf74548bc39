#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

/// Vector lanes of doubles, and the choice of instruction set at run time.
///
/// A hot loop is written once as an inlined template over its vector type, and instantiated in one function for
/// each instruction set; BestInstructionSet picks one when the program runs, so that a generic build has them all.
/// Elsewhere than under GCC or Clang on x86-64 the vector is a plain double and there is only one function. Explicit
/// instances, not compiler clones: the tile that fits the registers differs from set to set, tests can run each of
/// them, and sanitizers need no resolver before start-up.
#if defined(__GNUC__) && defined(__x86_64__)
#define LUMIVEX_X86_VECTORS 1
#define LUMIVEX_TARGET_AVX2 __attribute__((target("avx2,fma")))
#define LUMIVEX_TARGET_AVX512 __attribute__((target("avx512f,avx512dq,avx512vl,avx512bw,avx512cd,avx2,fma")))
#define LUMIVEX_INLINE inline __attribute__((always_inline))
#else
#define LUMIVEX_X86_VECTORS 0
#define LUMIVEX_INLINE inline
#endif

namespace lumivex {

/// Vectors of 2 (or 1), 4 and 8 doubles.
enum class InstructionSet { Plain, Avx2, Avx512 };

/// The widest set that this processor and operating system run.
inline InstructionSet BestInstructionSet() {
#if LUMIVEX_X86_VECTORS
  if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl") &&
      __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512cd")) {
    return InstructionSet::Avx512;
  }
  if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma")) return InstructionSet::Avx2;
#endif
  return InstructionSet::Plain;
}

inline const char* Name(InstructionSet set) {
  switch (set) {
    case InstructionSet::Avx512:
      return "AVX-512";
    case InstructionSet::Avx2:
      return "AVX2";
    case InstructionSet::Plain:
      break;
  }
  return "plain";
}

#if LUMIVEX_X86_VECTORS
typedef double Lanes2 __attribute__((vector_size(16)));
typedef double Lanes4 __attribute__((vector_size(32)));
typedef double Lanes8 __attribute__((vector_size(64)));
#else
using Lanes2 = double;
#endif

/// Doubles in a vector.
template <class V>
inline constexpr std::size_t LaneCount = sizeof(V) / sizeof(double);

/// Reads and writes a vector at any address.
template <class V>
LUMIVEX_INLINE void LoadLanes(V& lanes, const double* from) {
  std::memcpy(&lanes, from, sizeof(V));
}
template <class V>
LUMIVEX_INLINE void StoreLanes(double* to, const V& lanes) {
  std::memcpy(to, &lanes, sizeof(V));
}

}  // namespace lumivex
