#include "materials/index/dispersion_formulas.h"

#include <cmath>
#include <cstddef>
#include <limits>

namespace lumivex {

namespace {

/// C(1), C(2), ... of a formula.
class Coefficients {
 public:
  explicit Coefficients(std::span<const double> values) : values_(values) {}
  double operator()(std::size_t i) const { return i <= values_.size() ? values_[i - 1] : 0; }
  std::size_t Count() const { return values_.size(); }

  /// The sum of term(C_i, C_(i+1)) over the pairs from C_first on.
  template <class Term>
  double Pairs(std::size_t first, Term term) const {
    double sum = 0;
    for (std::size_t i = first; i + 1 <= Count(); i += 2) sum += term((*this)(i), (*this)(i + 1));
    return sum;
  }

 private:
  std::span<const double> values_;
};

double Resonance(double strength, double x, double place) {
  return strength == 0 ? 0 : strength * x / (x - place);
}

double OwnFormula(const Coefficients& c, double lambda) {
  const double x = lambda * lambda;
  const auto part = [&](std::size_t i) {
    return c(i) == 0 ? 0 : c(i) * std::pow(lambda, c(i + 1)) / (x - std::pow(c(i + 2), c(i + 3)));
  };
  return std::sqrt(c(1) + part(2) + part(6) + c.Pairs(10, [&](double a, double b) { return a * std::pow(lambda, b); }));
}

double Herzberger(const Coefficients& c, double x) {
  const double l = 1 / (x - 0.028);
  return c(1) + c(2) * l + c(3) * l * l + c(4) * x + c(5) * x * x + c(6) * x * x * x;
}

double Exotic(const Coefficients& c, double lambda) {
  const double d = lambda - c(5);
  return std::sqrt(c(1) + c(2) / (lambda * lambda - c(3)) + c(4) * d / (d * d + c(6)));
}

}  // namespace

double DispersionFormula(int number, std::span<const double> coefficients, double lambda) {
  const Coefficients c(coefficients);
  const double x = lambda * lambda;
  const auto power = [&](double a, double b) { return a * std::pow(lambda, b); };
  switch (number) {
    case 1:
      return std::sqrt(1 + c(1) + c.Pairs(2, [&](double a, double b) { return Resonance(a, x, b * b); }));
    case 2:
      return std::sqrt(1 + c(1) + c.Pairs(2, [&](double a, double b) { return Resonance(a, x, b); }));
    case 3:
      return std::sqrt(c(1) + c.Pairs(2, power));
    case 4:
      return OwnFormula(c, lambda);
    case 5:
      return c(1) + c.Pairs(2, power);
    case 6:
      return 1 + c(1) + c.Pairs(2, [&](double a, double b) { return a / (b - 1 / x); });
    case 7:
      return Herzberger(c, x);
    case 8: {
      const double share = c(1) + Resonance(c(2), x, c(3)) + c(4) * x;  // (n^2 - 1)/(n^2 + 2)
      return std::sqrt((1 + 2 * share) / (1 - share));
    }
    case 9:
      return Exotic(c, lambda);
    default:
      return std::numeric_limits<double>::quiet_NaN();
  }
}

}  // namespace lumivex
