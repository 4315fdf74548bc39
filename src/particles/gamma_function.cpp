#include "particles/gamma_function.h"

#include <array>
#include <cmath>
#include <limits>

namespace lumivex {

namespace {

constexpr double valueAtPole = 1e100;

/// Coefficients of x, x^2, ... of 1/gamma(x).
constexpr std::array reciprocalGamma = {
    1.0,
    0.5772156649015329,
    -0.6558780715202538,
    -0.0420026350340952,
    0.1665386113822915,
    -0.0421977345555443,
    -0.0096219715278770,
    0.0072189432466630,
    -0.0011651675918591,
    -0.0002152416741149,
    0.0001280502823882,
    -0.0000201348547807,
    -0.0000012504934821,
    0.0000011330272320,
    -0.0000002056338417,
    0.0000000061160950,
    0.0000000050020075,
    -0.0000000011812746,
    0.0000000001043427,
    0.0000000000077823,
    -0.0000000000036968,
    0.0000000000005100,
    -0.0000000000000206,
    -0.0000000000000054,
    0.0000000000000014,
    0.0000000000000001,
};
static_assert(reciprocalGamma.size() == 26);

constexpr int mostTerms = 100000;
constexpr double enough = 1e-16;

double SeriesBelow(double shape, double x) {
  double term = 1 / shape, sum = term;
  for (int n = 1; n < mostTerms && term > sum * enough; ++n) {
    term *= x / (shape + n);
    sum += term;
  }
  return sum * std::exp(shape * std::log(x) - x - std::lgamma(shape));
}

/// The share above x by Lentz's continued fraction.
double FractionAbove(double shape, double x) {
  constexpr double tiny = 1e-300;
  double b = x + 1 - shape, c = 1 / tiny, d = 1 / b, h = d;
  for (int i = 1; i < mostTerms; ++i) {
    const double a = -i * (i - shape);
    b += 2;
    d = 1 / (std::abs(a * d + b) < tiny ? tiny : a * d + b);
    c = std::abs(b + a / c) < tiny ? tiny : b + a / c;
    h *= d * c;
    if (std::abs(d * c - 1) < enough) break;
  }
  return h * std::exp(shape * std::log(x) - x - std::lgamma(shape));
}

}  // namespace

void GammaFunction(double x, double& result) {
  if (x <= 0 && x == std::floor(x)) {
    result = valueAtPole;
    return;
  }
  constexpr double largest = 172, smallest = -200;
  if (!(x < largest)) {
    result = std::numeric_limits<double>::infinity();
    return;
  }
  if (x < smallest) {
    result = 0;
    return;
  }
  double factor = 1;
  for (; x > 1; factor *= x) x -= 1;
  for (; x <= 0; x += 1) factor /= x;
  if (x == 1) {
    result = factor;  // whole numbers come out exactly
    return;
  }
  double sum = 0;
  for (std::size_t i = reciprocalGamma.size(); i-- > 0;) sum = (sum + reciprocalGamma[i]) * x;
  result = factor / sum;
}

double GammaDistributionBelow(double shape, double x) {
  if (!(x > 0)) return 0;
  return x < shape + 1 ? SeriesBelow(shape, x) : 1 - FractionAbove(shape, x);
}

}  // namespace lumivex
