#pragma once

#include <cstddef>
#include <vector>

#include "solvers/functions/complex_pairs.h"
#include "solvers/layers/riccati_waves.h"

namespace lumivex {

/// A sphere with one concentric coating, in its medium.
struct CoatedSphere {
  double x = 1.0;  ///< size parameter of the core
  double y = 2.0;  ///< of the whole sphere, > x
  ComplexD core;   ///< refractive indices relative to the medium, absorption positive
  ComplexD coating;
};

/// What one partial wave of one polarisation meets in a coated sphere.
///
/// Every way through it is a product: -1/2 To r^a p^b q^c Ti^v with the numbers a, b, c of its reflections and v = a +
/// 1 - b visits to the core; reflection at the outside alone is (1 - E)/2 (van der Pol and Bremmer 1937, Hovenac and
/// Lock 1992 for one surface; Lock, Jamison and Lin 1994 for two). Factors that only ever come together (the way
/// through the coating, there and back) stand with p and Ti, so that nothing overflows.
struct CoatedWave {
  ComplexD E;   ///< reflection at the outside of the outer surface
  ComplexD r;   ///< reflection of the coating's wave at the outer surface
  ComplexD p;   ///< reflection of the coating's wave at the core
  ComplexD q;   ///< reflection within the core
  ComplexD To;  ///< both transmissions of the outer surface
  ComplexD Ti;  ///< both transmissions of the core's surface
};

/// TM belongs to a_n, TE to b_n.
struct CoatedWaves {
  CoatedWave TM, TE;
};

/// The surfaces of a coated sphere for n = 1..terms; index 0 is unused. No wave has 0/0 or an overflow, whatever the
/// absorption; a wave that misses the core has its passage as p or, where core and coating are alike, as Ti.
///
/// @param recursion  of complex arguments, see RiccatiWaves.
std::vector<CoatedWaves> CoatedSurfaces(const CoatedSphere& sphere, int terms, WaveRecursion recursion);

}  // namespace lumivex
