#include "solvers/functions/airy_function.h"

#include <cmath>
#include <span>

#include "solvers/tables/airy_chebyshev.h"

namespace lumivex {

namespace {

constexpr double FivePiOverTwelve = 1.30899693899574718;
constexpr double MiddleCentre = 5.03154716196777;
constexpr double MiddleScale = 0.380004589867293;
constexpr double FiveSixths = 0.833333333333333333;
constexpr double HalfRootThree = 0.866025403784438647;

/// Clenshaw's recurrence: c0 + c1 T1(t) + c2 T2(t) + ...
double Chebyshev(std::span<const double> c, double t) {
  const double twice = 2.0 * t;
  double b1 = 0.0;
  double b2 = 0.0;
  for (std::size_t k = c.size() - 1; k > 0; --k) {
    const double b = twice * b1 - b2 + c[k];
    b2 = b1;
    b1 = b;
  }
  return t * b1 - b2 + c[0];
}

/// Both functions, each formed only where asked for.
struct Wanted {
  double* value;
  double* slope;
};

void Positive(double z, double xi, double root, const Wanted& w) {
  if (z <= 1.2) {
    const double t = (2.0 * z - 1.2) * FiveSixths;
    if (w.value) *w.value = Chebyshev(airy::ValueNear, t);
    if (w.slope) *w.slope = -Chebyshev(airy::SlopeNear, t);
    return;
  }
  const double decay = std::exp(-xi);
  const bool middle = xi <= 5.0;
  const double t = middle ? (2.0 * z - MiddleCentre) * MiddleScale : 10.0 / xi - 1.0;
  if (w.value) {
    *w.value = decay * (middle ? Chebyshev(airy::ValueMiddle, t) : Chebyshev(airy::ValueFar, t)) / root;
  }
  if (w.slope) {
    *w.slope = -root * decay * (middle ? Chebyshev(airy::SlopeMiddle, t) : Chebyshev(airy::SlopeFar, t));
  }
}

void Negative(double z, double xi, double root, const Wanted& w) {
  if (xi <= 5.0) {
    const double t = 0.4 * xi - 1.0;
    if (w.value) *w.value = Chebyshev(airy::ValueWaveEven, t) - z * Chebyshev(airy::ValueWaveOdd, t);
    if (w.slope) *w.slope = z * z * Chebyshev(airy::SlopeWaveOdd, t) + Chebyshev(airy::SlopeWaveEven, t);
    return;
  }
  const double t = 10.0 / xi - 1.0;
  const double phase = xi - FivePiOverTwelve;
  const double c = std::cos(phase);
  const double s = std::sin(phase);
  if (w.value) *w.value = (Chebyshev(airy::ValueCosine, t) * c - Chebyshev(airy::ValueSine, t) * s) / root;
  if (w.slope) {
    const double c1 = HalfRootThree * c + 0.5 * s;
    const double s1 = HalfRootThree * s - 0.5 * c;
    *w.slope = (Chebyshev(airy::SlopeCosine, t) * c1 - Chebyshev(airy::SlopeSine, t) * s1) * root;
  }
}

void Evaluate(double z, const Wanted& w) {
  const double size = std::fabs(z);
  const double squareRoot = std::sqrt(size);
  const double xi = 2.0 * size * squareRoot / 3.0;
  const double root = std::sqrt(squareRoot);
  if (z >= 0.0) {
    Positive(z, xi, root, w);
  } else {
    Negative(z, xi, root, w);
  }
}

}  // namespace

void AiryCalc(double z, double& Ai, double& dAi) {
  Evaluate(z, {&Ai, &dAi});
}

double AiryCalc(double z) {
  double Ai = 0.0;
  Evaluate(z, {&Ai, nullptr});
  return Ai;
}

}  // namespace lumivex
