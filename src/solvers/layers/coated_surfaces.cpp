#include "solvers/layers/coated_surfaces.h"

namespace lumivex {

namespace {

/// One surface, one polarisation: Q = m (TE) or 1/m (TM) of the index inside over that outside.
struct Boundary {
  ComplexD K, inverse, Q;  // inverse = 1/(K + Q d(inside))

  Boundary(const RiccatiWaves& outside, const RiccatiWaves& inside, const ComplexD& quotient, std::size_t n)
      : Q(quotient) {
    K = outside.L[n] - Q * inside.L[n];
    inverse = Reciprocal(K + Q * inside.d[n]);
  }
};

void MeetOuter(const RiccatiWaves& y, const RiccatiWaves& vo, const ComplexD& Q, std::size_t n, CoatedWave& wave) {
  const Boundary at(y, vo, Q, n);
  const ComplexD back = Reciprocal(y.Y[n].mantissa);
  wave.E = back * (y.d[n] * at.inverse - ComplexD(1.0, 0.0));
  wave.r = -(at.K * at.inverse);
  wave.To = Q * y.d[n] * at.inverse * (vo.d[n] * at.inverse) * back;
}

void MeetCore(const RiccatiWaves& ui, const RiccatiWaves& vi, const ComplexD& through, const ComplexD& Q, std::size_t n,
              CoatedWave& wave) {
  const Boundary at(ui, vi, Q, n);
  const ComplexD inCore = vi.Y[n].Value();
  wave.p = through * (ui.d[n] * at.inverse - ComplexD(1.0, 0.0));
  wave.q = -(inCore * at.K * at.inverse);
  wave.Ti = through * inCore * (Q * ui.d[n] * at.inverse) * (vi.d[n] * at.inverse);
}

}  // namespace

std::vector<CoatedWaves> CoatedSurfaces(const CoatedSphere& sphere, int terms, WaveRecursion recursion) {
  std::vector<CoatedWaves> waves(static_cast<std::size_t>(terms) + 1);
  const ComplexD& m1 = sphere.core;
  const ComplexD& m2 = sphere.coating;
  const RiccatiWaves y(sphere.y, {1.0, 0.0}, terms, recursion);
  const RiccatiWaves vo(sphere.y, m2, terms, recursion);
  const RiccatiWaves ui(sphere.x, m2, terms, recursion);
  const RiccatiWaves vi(sphere.x, m1, terms, recursion);
  const ComplexD relative = m1 / m2;
  const ComplexD inverse2 = Reciprocal(m2);
  const ComplexD inverseRelative = m2 / m1;
  for (std::size_t n = 1; n < waves.size(); ++n) {
    CoatedWaves& at = waves[n];
    MeetOuter(y, vo, m2, n, at.TE);
    MeetOuter(y, vo, inverse2, n, at.TM);
    if (m1 == m2) {
      at.TE.Ti = at.TM.Ti = vo.Y[n].Value();
      continue;
    }
    // There and back through the coating; its modulus is at most 1.
    const ComplexD through =
        WideComplex{vo.Y[n].mantissa / ui.Y[n].mantissa, vo.Y[n].exponent - ui.Y[n].exponent}.Value();
    MeetCore(ui, vi, through, relative, n, at.TE);
    MeetCore(ui, vi, through, inverseRelative, n, at.TM);
  }
  return waves;
}

}  // namespace lumivex
