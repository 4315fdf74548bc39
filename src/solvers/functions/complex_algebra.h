#pragma once

#include <cmath>

#include "solvers/functions/complex_pairs.h"

/// Arithmetic of ComplexD as operators, for formulas whose text matters. Unlike those of std::complex they do not look
/// for infinite parts, so that they cost no more than the products written out.
namespace lumivex {

constexpr ComplexD operator+(const ComplexD& a, const ComplexD& b) {
  return {a.re + b.re, a.im + b.im};
}
constexpr ComplexD operator-(const ComplexD& a, const ComplexD& b) {
  return {a.re - b.re, a.im - b.im};
}
constexpr ComplexD operator-(const ComplexD& a) {
  return {-a.re, -a.im};
}
constexpr ComplexD operator*(const ComplexD& a, const ComplexD& b) {
  return {a.re * b.re - a.im * b.im, a.im * b.re + a.re * b.im};
}
constexpr ComplexD operator*(double a, const ComplexD& b) {
  return {a * b.re, a * b.im};
}
constexpr double SquaredModulus(const ComplexD& a) {
  return a.re * a.re + a.im * a.im;
}
/// 1/a for |a|^2 within the range of a double.
constexpr ComplexD Reciprocal(const ComplexD& a) {
  const double scale = 1.0 / SquaredModulus(a);
  return {a.re * scale, -a.im * scale};
}
constexpr ComplexD operator/(const ComplexD& a, const ComplexD& b) {
  return a * Reciprocal(b);
}
constexpr ComplexD Conjugate(const ComplexD& a) {
  return {a.re, -a.im};
}
/// i a
constexpr ComplexD TimesI(const ComplexD& a) {
  return {-a.im, a.re};
}

}  // namespace lumivex
