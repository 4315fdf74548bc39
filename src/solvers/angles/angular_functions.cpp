#include "solvers/angles/angular_functions.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lumivex {
namespace {

/// A number mantissa e^exponent. Mantissas are renewed when they leave 1e-8..1e8, so that three of them can
/// always be put on one exponent.
struct ScaledNumber {
  double mantissa = 0.0;
  double exponent = 0.0;  // Whole; a double until it is stored.

  void Renew() {
    const double size = std::fabs(mantissa);
    if (size == 0.0) {
      exponent = 0.0;
    } else if (size < 1e-8 || size > 1e8) {
      const double whole = std::floor(std::log(size));
      mantissa *= std::exp(-whole);
      exponent += whole;
    }
  }
};

/// a p + b q on the exponent of the larger part; the ratio of the two is exp of the difference of exponents.
ScaledNumber Combine(double a, const ScaledNumber& p, double b, const ScaledNumber& q) {
  ScaledNumber sum;
  if (p.mantissa == 0.0 || q.mantissa == 0.0) {
    sum.exponent = p.mantissa == 0.0 ? q.exponent : p.exponent;
    sum.mantissa = a * p.mantissa + b * q.mantissa;
  } else {
    sum.exponent = std::max(p.exponent, q.exponent);
    sum.mantissa =
        a * p.mantissa * std::exp(p.exponent - sum.exponent) + b * q.mantissa * std::exp(q.exponent - sum.exponent);
  }
  sum.Renew();
  return sum;
}

void Store(const ScaledNumber& number, double& mantissa, std::int16_t& exponent) {
  using Limits = std::numeric_limits<std::int16_t>;
  const bool vanishes = number.exponent < Limits::min();
  mantissa = vanishes ? 0.0 : number.mantissa;
  exponent = vanishes ? std::int16_t{0} : static_cast<std::int16_t>(std::min<double>(number.exponent, Limits::max()));
}

}  // namespace

double Factorial2(int n) {
  double r = n;
  for (int i = n - 2; i >= 2; i -= 2) r *= i;
  return r;
}

double LogFactorial2(int n) {
  double sum = std::log(static_cast<double>(n));
  for (int i = n - 2; i >= 2; i -= 2) sum += std::log(static_cast<double>(i));
  return sum;
}

void AngularFunctionTable::Resize(int Lmax, int Mmax) {
  Lmax_ = Lmax;
  Mmax_ = Mmax;
  scaled_ = Mmax >= AngularScaleSwitch;
  const std::size_t size = (static_cast<std::size_t>(Lmax) + 2) * (static_cast<std::size_t>(Mmax) + 2);
  pi_.assign(size, 0.0);
  tau_.assign(size, 0.0);
  piExponent_.assign(scaled_ ? size : 0, 0);
  tauExponent_.assign(scaled_ ? size : 0, 0);
}

void AngularFunctionTable::FillOrderZero(double sine, double cosine) {
  double before = 1.0;
  double legendre = cosine;
  double derivative = 0.0;
  for (int L = 1; L <= Lmax_ + 1; ++L) {
    derivative = L * before + cosine * derivative;
    tau_[Index(L, 0)] = -sine * derivative;
    const double next = (2.0 * L + 1.0) / (L + 1.0) * cosine * legendre - L / (L + 1.0) * before;
    before = legendre;
    legendre = next;
  }
}

void AngularFunctionTable::FillDirect(double sine, double cosine, int M) {
  double before = 0.0;
  double value = Factorial2(2 * M - 1) * std::pow(sine, M - 1);
  for (int L = M; L <= Lmax_ + 1; ++L) {
    pi_[Index(L, M)] = value;
    tau_[Index(L, M)] = L * cosine * value - (L + M) * before;
    const double next = ((2.0 * L + 1.0) * cosine * value - (L + M) * before) / (L + 1.0 - M);
    before = value;
    value = next;
  }
}

void AngularFunctionTable::FillScaled(double sine, double cosine, int M) {
  if (sine == 0.0 && M > 1) return;
  const double logarithm = LogFactorial2(2 * M - 1) + (M > 1 ? (M - 1) * std::log(std::fabs(sine)) : 0.0);
  ScaledNumber before;
  ScaledNumber value;
  value.exponent = std::floor(logarithm);
  value.mantissa = std::exp(logarithm - value.exponent);
  if (sine < 0.0 && M % 2 == 0) value.mantissa = -value.mantissa;
  for (int L = M; L <= Lmax_ + 1; ++L) {
    const std::size_t i = Index(L, M);
    Store(value, pi_[i], piExponent_[i]);
    Store(Combine(L * cosine, value, -(L + M), before), tau_[i], tauExponent_[i]);
    const double divisor = L + 1.0 - M;
    const ScaledNumber next = Combine((2.0 * L + 1.0) / divisor * cosine, value, -(L + M) / divisor, before);
    before = value;
    value = next;
  }
}

void AngularFunctions(double theta, int Lmax, int Mmax, AngularFunctionTable& table) {
  const double sine = std::sin(theta);
  const double cosine = std::cos(theta);
  table.Resize(Lmax, Mmax);
  table.FillOrderZero(sine, cosine);
  for (int M = 1; M <= Mmax; ++M) {
    if (table.Scaled()) {
      table.FillScaled(sine, cosine, M);
    } else {
      table.FillDirect(sine, cosine, M);
    }
  }
}

}  // namespace lumivex
