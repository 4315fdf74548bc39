#include "solvers/beams/beam_shape.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <complex>
#include <numbers>

#include "solvers/functions/complex_algebra.h"

namespace lumivex {

namespace {

constexpr ComplexD one(1.0, 0.0);
constexpr double LeastMmax = 7;
constexpr double LeastWidth = 6.5;
constexpr int LastFactorial = 98;
constexpr std::size_t TermsPerLook = 400'000;
/// Logarithm of a field that is 0 as a double.
constexpr double Darkness = -745;
constexpr double LargeArgument = 1e6;

ComplexD Exponential(const ComplexD& z) {
  const double size = std::exp(z.re);
  return {size * std::cos(z.im), size * std::sin(z.im)};
}

/// The functions T(q) F of one L, q = -last..last.
class Azimuthal {
 public:
  Azimuthal(const FocusedBeam& beam, int last)
      : beam_(beam), distance_(std::hypot(beam.x0, beam.y0)), last_(last), values_(static_cast<std::size_t>(last) + 1) {
    const double phi0 = std::atan2(beam.y0, beam.x0);
    for (int q = 0; q <= last; ++q) turns_.emplace_back(std::cos(q * phi0), -std::sin(q * phi0));
  }

  /// @return false after a Stop.
  bool GoTo(int L, const BeamSumRule& rule, RunMonitor& monitor) {
    if (beam_.profile == FocusedBeam::Profile::Gaussian) return Gaussian(L, rule, monitor);
    Disc(L);
    terms_ += values_.size();
    return GoesOn(monitor);
  }

  ComplexD operator()(int q) const {
    const auto i = static_cast<std::size_t>(std::abs(q));
    return values_[i] * (q < 0 ? Conjugate(turns_[i]) : turns_[i]);
  }
  int HighestJ() const { return highestJ_; }

 private:
  bool GoesOn(RunMonitor& monitor) {
    if (terms_ < TermsPerLook) return true;
    terms_ = 0;
    return monitor.Report(0, 1);
  }

  bool Gaussian(int L, const BeamSumRule& rule, RunMonitor& monitor) {
    const double s = beam_.Confinement(), rho = distance_ / beam_.w0, l = (L + 0.5) * s;
    const ComplexD Q = BeamSpread(beam_);
    const ComplexD phase(0.0, -beam_.z0 / (s * beam_.w0));
    if (!rule.closed) {
      const ComplexD factor = Q * Exponential(-(rho * rho + l * l) * Q + phase);
      for (int q = 0; q <= last_; ++q) {
        values_[static_cast<std::size_t>(q)] = factor * SumOverJ(l * rho * Q, q, rule);
        if (!GoesOn(monitor)) return false;
      }
      return true;
    }
    // Both exponentials and the growth of the Bessel function as one: none of them overflows by itself.
    const ComplexD exponent = -((rho - l) * (rho - l)) * Q;
    if (!(exponent.re > Darkness)) {
      std::ranges::fill(values_, ComplexD());
      terms_ += values_.size();
      return GoesOn(monitor);
    }
    const ComplexD z = 2.0 * l * rho * Q, factor = Q * Exponential(exponent + phase);
    ScaledModifiedBessel(z, last_, values_);
    for (ComplexD& value : values_) value = factor * value;
    terms_ += values_.size() + static_cast<std::size_t>(std::min(std::sqrt(SquaredModulus(z)), LargeArgument));
    return GoesOn(monitor);
  }

  /// w^q / q!, where the sum for I_q(2 w) begins.
  static ComplexD FirstTerm(const ComplexD& w, int q, bool logarithms) {
    if (q == 0) return one;
    if (!(SquaredModulus(w) > 0)) return {};
    if (logarithms) {
      // Factors of very different size: their logarithms until a term is there.
      const double size = 0.5 * std::log(SquaredModulus(w)), angle = q * std::atan2(w.im, w.re);
      const double modulus = std::exp(q * size - std::lgamma(q + 1.0));
      return {modulus * std::cos(angle), modulus * std::sin(angle)};
    }
    if (q > LastFactorial) return {};
    ComplexD term = one;
    for (int factor = 1; factor <= q; ++factor) term = (1.0 / factor) * (w * term);
    return term;
  }

  /// I_q(2 w) as the sum over j = q, q + 2, ... of w^j / ((j-q)/2)! ((j+q)/2)!
  ComplexD SumOverJ(const ComplexD& w, int q, const BeamSumRule& rule) {
    ComplexD term = FirstTerm(w, q, rule.logarithms), sum;
    const ComplexD step = w * w;
    for (int j = q; j <= rule.Jmax; j += 2) {
      if (!rule.logarithms && (j + q) / 2 > LastFactorial) break;
      sum = sum + term;
      ++terms_;
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
  std::size_t terms_ = 0;  // since the last look
};

}  // namespace

ComplexD BeamSpread(const FocusedBeam& beam) {
  return Reciprocal({1.0, -2.0 * beam.Confinement() * beam.z0 / beam.w0});
}

int BeamLmax(double x) {
  return static_cast<int>(std::nearbyint(x + 4.05 * std::cbrt(x) + 2.0));
}

int BeamMmax(const FocusedBeam& beam, int Lmax) {
  const double rho = std::hypot(beam.x0, beam.y0) / beam.w0;
  const ComplexD W = (Lmax + 0.5) * 2.0 * beam.Confinement() * rho * BeamSpread(beam);
  double most = LeastMmax;
  if (W.re >= LeastWidth) most = std::nearbyint(std::sqrt(W.re) * (6.5 + 2.0 * std::fabs(W.im) / W.re));
  return static_cast<int>(std::min<double>(most, std::max(Lmax, 1)));
}

BeamShape::BeamShape(BeamLimits limits) : limits_(limits) {
  const std::size_t size = Index(limits.Lmax, limits.Mmax) + 1;
  tm_.resize(size);
  te_.resize(size);
}

bool BeamShape::Add(const FocusedBeam& beam, const BeamSumRule& rule, RunMonitor& monitor) {
  // (-i)^(|M|-1); -1, the last entry, is i.
  constexpr ComplexD powers[] = {{1.0, 0.0}, {0.0, -1.0}, {-1.0, 0.0}, {0.0, 1.0}};
  using Clock = std::chrono::steady_clock;
  Clock::duration spent{};
  Azimuthal T(beam, limits_.Mmax + 1);
  for (int L = 1; L <= limits_.Lmax; ++L) {
    const Clock::time_point before = Clock::now();
    if (!T.GoTo(L, rule, monitor)) return false;
    spent += Clock::now() - before;
    for (int M = -limits_.Mmax; M <= limits_.Mmax; ++M) {
      const ComplexD& power = powers[static_cast<std::size_t>((std::abs(M) + 3) % 4)];
      const ComplexD lower = T(M - 1), upper = T(M + 1);
      const std::size_t i = Index(L, M);
      tm_[i] = tm_[i] + power * (lower + upper);
      te_[i] = te_[i] - TimesI(power * (lower - upper));
    }
  }
  highestJ_ = std::max(highestJ_, T.HighestJ());
  seconds_ += std::chrono::duration<double>(spent).count();
  return true;
}

namespace {

/// exp(-z) I_q(z) of large z.
ComplexD ScaledBesselOfLarge(const std::complex<double>& z, int order) {
  const double q = order;
  const std::complex<double> root = std::sqrt(z * z + q * q), t2 = q * q / (root * root);
  const std::complex<double> exponent = q * q / (root + z) - q * std::asinh(q / z);
  const std::complex<double> second = (3.0 - 5.0 * t2) / (24.0 * root);
  return std::exp(exponent) / std::sqrt(2.0 * std::numbers::pi * root) * (1.0 + second);
}

}  // namespace

void ScaledModifiedBessel(const ComplexD& z, int last, std::vector<ComplexD>& values) {
  values.assign(static_cast<std::size_t>(last) + 1, ComplexD());
  const double size = std::sqrt(SquaredModulus(z));
  if (size == 0.0) {
    values[0] = one;
    return;
  }
  if (size > LargeArgument) {
    for (int q = 0; q <= last; ++q) values[static_cast<std::size_t>(q)] = ScaledBesselOfLarge(z, q);
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
