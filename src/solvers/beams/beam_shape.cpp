#include "solvers/beams/beam_shape.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "solvers/functions/complex_algebra.h"

namespace lumivex {

namespace {

constexpr ComplexD one(1.0, 0.0);
constexpr double LeastMmax = 7;
constexpr double LeastWidth = 6.5;

ComplexD Exponential(const ComplexD& z) {
  const double size = std::exp(z.re);
  return {size * std::cos(z.im), size * std::sin(z.im)};
}

ComplexD SpreadOf(const FocusedBeam& beam) {
  return Reciprocal({1.0, -2.0 * beam.Confinement() * beam.z0 / beam.w0});
}

/// The functions T(q) F of one L, q = -last..last.
class Azimuthal {
 public:
  Azimuthal(const FocusedBeam& beam, int last)
      : beam_(beam), distance_(std::hypot(beam.x0, beam.y0)), last_(last), values_(static_cast<std::size_t>(last) + 1) {
    const double phi0 = std::atan2(beam.y0, beam.x0);
    for (int q = 0; q <= last; ++q) turns_.emplace_back(std::cos(q * phi0), -std::sin(q * phi0));
  }

  void GoTo(int L, const BeamSumRule& rule) {
    if (beam_.profile == FocusedBeam::Profile::TopHat) {
      Disc(L);
    } else {
      Gaussian(L, rule);
    }
  }

  ComplexD operator()(int q) const {
    const auto i = static_cast<std::size_t>(std::abs(q));
    return values_[i] * (q < 0 ? Conjugate(turns_[i]) : turns_[i]);
  }
  int HighestJ() const { return highestJ_; }

 private:
  void Gaussian(int L, const BeamSumRule& rule) {
    const double s = beam_.Confinement(), rho = distance_ / beam_.w0, l = (L + 0.5) * s;
    const ComplexD Q = SpreadOf(beam_);
    const ComplexD phase(0.0, -beam_.z0 / (s * beam_.w0));
    if (rule.closed) {
      // Both exponentials and the growth of the Bessel function as one: none of them overflows by itself.
      ScaledModifiedBessel(2.0 * l * rho * Q, last_, values_);
      const ComplexD factor = Q * Exponential(-((rho - l) * (rho - l)) * Q + phase);
      for (ComplexD& value : values_) value = factor * value;
    } else {
      const ComplexD factor = Q * Exponential(-(rho * rho + l * l) * Q + phase);
      for (int q = 0; q <= last_; ++q) values_[static_cast<std::size_t>(q)] = factor * SumOverJ(l * rho * Q, q, rule);
    }
  }

  /// I_q(2 w) as the sum over j = q, q + 2, ... of w^j / ((j-q)/2)! ((j+q)/2)!
  ComplexD SumOverJ(const ComplexD& w, int q, const BeamSumRule& rule) {
    // Factors of very different size: their logarithms until a term is there.
    const double size = 0.5 * std::log(SquaredModulus(w));
    ComplexD term = q == 0 ? one : ComplexD();
    if (q > 0 && SquaredModulus(w) > 0) {
      const double angle = q * std::atan2(w.im, w.re), modulus = std::exp(q * size - std::lgamma(q + 1.0));
      term = {modulus * std::cos(angle), modulus * std::sin(angle)};
    }
    ComplexD sum;
    const ComplexD step = w * w;
    for (int j = q; j <= rule.Jmax; j += 2) {
      sum = sum + term;
      highestJ_ = std::max(highestJ_, j);
      if (std::fabs(term.re) < rule.error && std::fabs(term.im) < rule.error) break;
      const double lower = (j - q) / 2 + 1.0, upper = (j + q) / 2 + 1.0;
      term = (1.0 / (lower * upper)) * (step * term);
    }
    return sum;
  }

  void Disc(int L) {
    const double R = (L + 0.5) / beam_.k, w0 = beam_.w0;
    const double phase = beam_.k * beam_.z0;
    const ComplexD factor(std::cos(phase), -std::sin(phase));
    double beta = R <= w0 ? std::numbers::pi : 0.0;
    if (distance_ > 0.0) {
      const double cosine = (R * R + distance_ * distance_ - w0 * w0) / (2.0 * R * distance_);
      beta = std::acos(std::clamp(cosine, -1.0, 1.0));
    }
    values_[0] = beta / std::numbers::pi * factor;
    // Of a whole circle nothing is left but q = 0.
    for (int q = 1; q <= last_; ++q)
      values_[static_cast<std::size_t>(q)] =
          beta == std::numbers::pi ? ComplexD() : std::sin(q * beta) / (q * std::numbers::pi) * factor;
  }

  const FocusedBeam& beam_;
  double distance_;
  int last_;
  std::vector<ComplexD> values_, turns_;
  int highestJ_ = 0;
};

}  // namespace

int BeamLmax(double x) {
  return static_cast<int>(std::nearbyint(x + 4.05 * std::cbrt(x) + 2.0));
}

int BeamMmax(const FocusedBeam& beam, int Lmax) {
  const double rho = std::hypot(beam.x0, beam.y0) / beam.w0;
  const ComplexD W = (Lmax + 0.5) * 2.0 * beam.Confinement() * rho * SpreadOf(beam);
  double most = LeastMmax;
  if (W.re >= LeastWidth) most = std::nearbyint(std::sqrt(W.re) * (6.5 + 2.0 * std::fabs(W.im) / W.re));
  return static_cast<int>(std::min<double>(most, std::max(Lmax, 1)));
}

BeamShape::BeamShape(BeamLimits limits) : limits_(limits) {
  const std::size_t size = Index(limits.Lmax, limits.Mmax) + 1;
  tm_.resize(size);
  te_.resize(size);
}

void BeamShape::Add(const FocusedBeam& beam, const BeamSumRule& rule, RunMonitor& monitor) {
  // (-i)^(|M|-1); -1, the last entry, is i.
  constexpr ComplexD powers[] = {{1.0, 0.0}, {0.0, -1.0}, {-1.0, 0.0}, {0.0, 1.0}};
  constexpr int LsPerLook = 16;
  Azimuthal T(beam, limits_.Mmax + 1);
  for (int L = 1; L <= limits_.Lmax; ++L) {
    if (L % LsPerLook == 0 && !monitor.Report(static_cast<std::size_t>(L), static_cast<std::size_t>(limits_.Lmax)))
      return;
    T.GoTo(L, rule);
    for (int M = -limits_.Mmax; M <= limits_.Mmax; ++M) {
      const ComplexD& power = powers[static_cast<std::size_t>((std::abs(M) + 3) % 4)];
      const ComplexD lower = T(M - 1), upper = T(M + 1);
      const std::size_t i = Index(L, M);
      tm_[i] = tm_[i] + power * (lower + upper);
      te_[i] = te_[i] - TimesI(power * (lower - upper));
    }
  }
  highestJ_ = std::max(highestJ_, T.HighestJ());
}

void ScaledModifiedBessel(const ComplexD& z, int last, std::vector<ComplexD>& values) {
  values.assign(static_cast<std::size_t>(last) + 1, ComplexD());
  const double size = std::sqrt(SquaredModulus(z));
  if (size == 0.0) {
    values[0] = one;
    return;
  }
  // Above |z| the functions fall faster than (|z|/2q)^q; along the positive axis, where they are a Gaussian in q, they
  // have fallen below rounding at 9 sqrt(z) already.
  const double width = z.im == 0.0 ? 10.0 * std::sqrt(size) : size + 10.0 * std::cbrt(size);
  const int start = std::max(last, static_cast<int>(width)) + 40;
  const ComplexD inverse = Reciprocal(z);
  constexpr double large = 0x1p400;
  ComplexD above, here(0x1p-100, 0.0), sum;
  for (int q = start; q >= 0; --q) {
    if (q <= last) values[static_cast<std::size_t>(q)] = here;
    sum = sum + (q == 0 ? 1.0 : 2.0) * here;
    const ComplexD below = above + 2.0 * q * (inverse * here);
    above = here;
    here = below;
    if (std::fabs(here.re) + std::fabs(here.im) > large) {
      const double down = 1.0 / large;
      above = down * above;
      here = down * here;
      sum = down * sum;
      for (int higher = std::max(q, 0); higher <= last; ++higher)
        values[static_cast<std::size_t>(higher)] = down * values[static_cast<std::size_t>(higher)];
    }
  }
  const ComplexD scale = Reciprocal(sum);
  for (ComplexD& value : values) value = value * scale;
}

}  // namespace lumivex
