#pragma once

#include <array>

namespace lumivex {

/// Chebyshev coefficients of the Airy function Ai(z) and its derivative (the form of Amos, Daniel and Weston 1977),
/// computed anew with 20 digits. A sum is c0 + c1 T1(t) + c2 T2(t) + ..., c0 not halved; airy_function says which t.
namespace airy {

extern const std::array<double, 14> ValueNear;      ///< Ai, 0<=z<=1.2; t=(2z-1.2)*(5/6)
extern const std::array<double, 14> SlopeNear;      ///< Ai', 0<=z<=1.2; t=(2z-1.2)*(5/6)
extern const std::array<double, 23> ValueMiddle;    ///< Ai, z>1.2 and xi<=5; t=(2z-5.03154716196777)*0.380004589867293
extern const std::array<double, 24> SlopeMiddle;    ///< Ai', z>1.2 and xi<=5; t=(2z-5.03154716196777)*0.380004589867293
extern const std::array<double, 14> ValueFar;       ///< Ai, z>0 and xi>5; t=10/xi-1
extern const std::array<double, 14> SlopeFar;       ///< Ai', z>0 and xi>5; t=10/xi-1
extern const std::array<double, 19> ValueWaveEven;  ///< Ai, z<0 and xi<=5; t=0.4*xi-1
extern const std::array<double, 19> ValueWaveOdd;   ///< Ai, z<0 and xi<=5; t=0.4*xi-1
extern const std::array<double, 19> SlopeWaveEven;  ///< Ai', z<0 and xi<=5; t=0.4*xi-1
extern const std::array<double, 19> SlopeWaveOdd;   ///< Ai', z<0 and xi<=5; t=0.4*xi-1
extern const std::array<double, 15> ValueCosine;    ///< Ai, z<0 and xi>5; t=10/xi-1
extern const std::array<double, 15> ValueSine;      ///< Ai, z<0 and xi>5; t=10/xi-1
extern const std::array<double, 15> SlopeCosine;    ///< Ai', z<0 and xi>5; t=10/xi-1
extern const std::array<double, 15> SlopeSine;      ///< Ai', z<0 and xi>5; t=10/xi-1

}  // namespace airy
}  // namespace lumivex
