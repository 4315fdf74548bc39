#include "sky/direction.h"

#include <algorithm>
#include <cmath>

namespace lumivex {

double Dot(const Direction& a, const Direction& b) {
  return a.right * b.right + a.up * b.up + a.forward * b.forward;
}

Direction Cross(const Direction& a, const Direction& b) {
  return {a.up * b.forward - a.forward * b.up, a.forward * b.right - a.right * b.forward,
          a.right * b.up - a.up * b.right};
}

Direction Normalised(const Direction& a) {
  const double length = std::sqrt(Dot(a, a));
  return length > 0 ? Direction{a.right / length, a.up / length, a.forward / length} : Direction{};
}

Direction Opposite(const Direction& a) {
  return {-a.right, -a.up, -a.forward};
}

double AngleBetween(const Direction& a, const Direction& b) {
  const Direction across = Cross(a, b);
  return std::atan2(std::sqrt(Dot(across, across)), Dot(a, b));
}

double AltitudeOf(const Direction& a) {
  return std::atan2(a.up, std::hypot(a.right, a.forward));
}

double AzimuthOf(const Direction& a) {
  return std::atan2(a.right, a.forward);
}

Direction DirectionAt(double altitude, double azimuth) {
  return {std::cos(altitude) * std::sin(azimuth), std::sin(altitude), std::cos(altitude) * std::cos(azimuth)};
}

Direction InWorld(const Direction& seen, const CameraPose& pose) {
  const double cosA = std::cos(pose.altitude), sinA = std::sin(pose.altitude);
  const double cosZ = std::cos(pose.azimuth), sinZ = std::sin(pose.azimuth);
  const double up = seen.up * cosA + seen.forward * sinA, forward = seen.forward * cosA - seen.up * sinA;
  return {seen.right * cosZ + forward * sinZ, up, forward * cosZ - seen.right * sinZ};
}

Direction InCamera(const Direction& world, const CameraPose& pose) {
  const double cosA = std::cos(pose.altitude), sinA = std::sin(pose.altitude);
  const double cosZ = std::cos(pose.azimuth), sinZ = std::sin(pose.azimuth);
  const double right = world.right * cosZ - world.forward * sinZ;
  const double forward = world.right * sinZ + world.forward * cosZ;
  return {right, world.up * cosA - forward * sinA, world.up * sinA + forward * cosA};
}

double AxisAltitude(const Direction& seen, double altitude) {
  // up cos e + forward sin e = sin(altitude)
  const double length = std::hypot(seen.up, seen.forward);
  if (!(length > 0)) return 0;
  const double middle = std::atan2(seen.forward, seen.up);
  const double half = std::acos(std::clamp(std::sin(altitude) / length, -1.0, 1.0));
  const double first = std::remainder(middle - half, 2 * std::acos(-1.0));
  const double second = std::remainder(middle + half, 2 * std::acos(-1.0));
  return std::abs(first) <= std::abs(second) ? first : second;
}

}  // namespace lumivex
