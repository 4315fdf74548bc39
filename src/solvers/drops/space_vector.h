#pragma once

#include <cmath>

namespace lumivex {

/// A point or direction; z is up.
struct SpaceVector {
  double x = 0.0, y = 0.0, z = 0.0;
};

constexpr SpaceVector operator+(const SpaceVector& a, const SpaceVector& b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr SpaceVector operator-(const SpaceVector& a, const SpaceVector& b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr SpaceVector operator*(double a, const SpaceVector& b) {
  return {a * b.x, a * b.y, a * b.z};
}
constexpr double Dot(const SpaceVector& a, const SpaceVector& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
constexpr SpaceVector Cross(const SpaceVector& a, const SpaceVector& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double Length(const SpaceVector& a) {
  return std::sqrt(Dot(a, a));
}

}  // namespace lumivex
