#pragma once

#include <span>

#include "solvers/functions/complex_pairs.h"
#include "solvers/run_monitor.h"
#include "solvers/series/partial_waves.h"

namespace lumivex {

/// Terms of the series of a sphere in layers: int(y + 4 y^0.3333 + 2), y the size parameter of its surface.
int LayeredSphereTerms(double y);

/// One uniform layer, from the layer before it (the innermost: from the centre) to its own surface.
struct SphereLayer {
  double x = 0.0;  ///< Size parameter of its outer surface, 2 pi r / wavelength in the medium.
  ComplexD m;      ///< Refractive index relative to the medium, not 0; absorption for m.im > 0.
};

/// Coefficients a_n, b_n of a sphere of concentric layers.
///
/// The logarithmic derivatives of the field, H_n, are carried from surface to surface: H/m (for a_n) and m H (for b_n)
/// are continuous there, and within a layer, z1 = m x of its inner surface and z2 of its outer one,
///
/// H(z2) = (G2 D1(z2) - Q G1 D3(z2)) / (G2 - Q G1), G1 = m H - m' D1(z1), G2 = m H - m' D3(z1)
///
/// (a_n; for b_n m and m' change places), with D1 = psi'/psi downward, D3 = xi'/xi upward (xi = psi - i chi) and the
/// ratio Q_n = psi(z1) xi(z2) / (xi(z1) psi(z2)) upward (Wu and Wang 1991; Yang 2003). Nothing overflows: Q falls with
/// absorption.
///
/// @param layers   from within outwards; x rises strictly, at least one.
/// @param terms    n = 1..terms.
/// @param monitor  asked after a bounded number of layers times terms; after a Stop no terms come back.
PartialWaves LayeredSphereCoefficients(std::span<const SphereLayer> layers, int terms, RunMonitor& monitor);

/// The same for real indices by the standing waves psi and chi, whose logarithmic derivatives begin with 1/tan z and
/// -tan z and go on by steps of y = c - 1/(c + y). Upward while n < z; beyond, psi goes downward, where upward steps
/// would bring chi in.
PartialWaves LayeredSphereByTangents(std::span<const SphereLayer> layers, int terms, RunMonitor& monitor);

}  // namespace lumivex
