#include "solvers/drops/drop_rays.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <random>

#include "solvers/functions/complex_algebra.h"
#include "solvers/functions/random_fraction.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
/// No form of a drop reaches farther from its axis.
constexpr double frontHalfWidth = 1.15;

/// A ray and the fields that both incident polarisations have become, by s and s x e.
struct Wave {
  SpaceVector place, e, s;
  std::array<ComplexD, 2> across, along;

  /// Counts the fields in the basis of a surface.
  void TurnTo(const SpaceVector& normal) {
    SpaceVector next = Cross(e, normal);
    const double length = Length(next);
    if (length < 1e-12) return;  // straight on: any basis will do
    next = 1 / length * next;
    const double c = Dot(s, next), d = Dot(Cross(s, e), next);
    for (std::size_t i = 0; i < 2; ++i) {
      const ComplexD old = across[i];
      across[i] = c * old + d * along[i];
      along[i] = c * along[i] - d * old;
    }
    s = next;
  }

  void Multiply(const ComplexD& fs, const ComplexD& fp) {
    for (std::size_t i = 0; i < 2; ++i) {
      across[i] = fs * across[i];
      along[i] = fp * along[i];
    }
  }
};

/// Fresnel's amplitudes from n1 to n2; those of refraction squared are power.
struct Interface {
  ComplexD rs, rp;
  double ts = 0.0, tp = 0.0;  // 0 where light is totally reflected
  double cosine = 0.0, cosRefracted = 0.0;

  Interface(double n1, double n2, double ci) : cosine(ci) {
    const double eta = n1 / n2, square = 1 - eta * eta * (1 - ci * ci);
    if (square > 0) {
      const double ct = std::sqrt(square), q = 2 * std::sqrt(n1 * ci * n2 * ct);
      cosRefracted = ct;
      rs = {(n1 * ci - n2 * ct) / (n1 * ci + n2 * ct), 0};
      rp = {(n2 * ci - n1 * ct) / (n2 * ci + n1 * ct), 0};
      ts = q / (n1 * ci + n2 * ct);
      tp = q / (n2 * ci + n1 * ct);
      return;
    }
    const double k = std::sqrt(-square);
    rs = ComplexD(n1 * ci, -n2 * k) / ComplexD(n1 * ci, n2 * k);
    rp = ComplexD(n2 * ci, -n1 * k) / ComplexD(n2 * ci, n1 * k);
  }
};

SpaceVector Refracted(const SpaceVector& e, const SpaceVector& normal, double eta, const Interface& surface) {
  const SpaceVector direction = eta * e + (eta * surface.cosine - surface.cosRefracted) * normal;
  return 1 / Length(direction) * direction;
}

SpaceVector Reflected(const SpaceVector& e, const SpaceVector& normal, double cosine) {
  return e + 2 * cosine * normal;
}

DropExit Leave(const DropLight& light, const Wave& wave, const SpaceVector& direction, const ComplexD& fs,
               const ComplexD& fp, double power) {
  DropExit exit{direction, 0, 0};
  SpaceVector across = Cross(light.e0, direction);
  const double length = Length(across);
  across = length < 1e-12 ? wave.s : 1 / length * across;
  const double c = Dot(wave.s, across), d = Dot(Cross(wave.s, direction), across);
  for (std::size_t i = 0; i < 2; ++i) {
    const ComplexD s = fs * wave.across[i], p = fp * wave.along[i];
    const double perpendicular = SquaredModulus(c * s + d * p);
    exit.perpendicular += power * perpendicular;
    exit.parallel += power * (SquaredModulus(s) + SquaredModulus(p) - perpendicular);
  }
  return exit;
}

}  // namespace

DropLight::DropLight(double elevation)
    : e0{std::cos(elevation), 0, -std::sin(elevation)},
      e1{std::sin(elevation), 0, std::cos(elevation)},
      e2(Cross(e0, e1)) {}

bool TraceDropRay(const DropShape& shape, const DropMaterial& material, const DropLight& light, double b, double X,
                  std::span<std::optional<DropExit>> exits) {
  std::fill(exits.begin(), exits.end(), std::nullopt);
  Wave wave;
  wave.e = light.e0;
  wave.s = light.e1;
  wave.across = {ComplexD(1, 0), ComplexD(0, 0)};
  wave.along = {ComplexD(0, 0), ComplexD(1, 0)};
  wave.place = -5 * light.e0 + b * std::cos(X) * light.e1 + b * std::sin(X) * light.e2;
  const auto entry = shape.Entry(wave.place, wave.e);
  if (!entry) return false;
  wave.place = wave.place + *entry * wave.e;
  SpaceVector normal = shape.Normal(wave.place);  // against the ray outside
  wave.TurnTo(normal);
  const Interface outside(1, material.m, std::max(0.0, -Dot(wave.e, normal)));
  if (!exits.empty())
    exits[0] = Leave(light, wave, Reflected(wave.e, normal, outside.cosine), outside.rs, outside.rp, 1);
  if (outside.ts == 0) return true;
  wave.e = Refracted(wave.e, normal, 1 / material.m, outside);
  wave.Multiply({outside.ts, 0}, {outside.tp, 0});
  double path = 0;
  for (std::size_t p = 1; p < exits.size(); ++p) {
    const double chord = shape.Chord(wave.place, wave.e);
    if (!(chord > 0)) return true;
    path += chord;
    wave.place = wave.place + chord * wave.e;
    normal = -1 * shape.Normal(wave.place);
    wave.TurnTo(normal);
    const Interface inside(material.m, 1, std::max(0.0, -Dot(wave.e, normal)));
    if (inside.ts > 0)
      exits[p] = Leave(light, wave, Refracted(wave.e, normal, material.m, inside), {inside.ts, 0}, {inside.tp, 0},
                       std::exp(-material.absorption * path));
    wave.e = Reflected(wave.e, normal, inside.cosine);
    wave.Multiply(inside.rs, inside.rp);
  }
  return true;
}

DropPath PathOfDropRay(const DropShape& shape, double m, const DropLight& light, double b, double X, int p) {
  SpaceVector place = -5 * light.e0 + b * std::cos(X) * light.e1 + b * std::sin(X) * light.e2, e = light.e0;
  const auto entry = shape.Entry(place, e);
  if (!entry) return {};
  DropPath path;
  path.points.push_back(place = place + *entry * e);
  SpaceVector normal = shape.Normal(place);
  e = Refracted(e, normal, 1 / m, Interface(1, m, std::max(0.0, -Dot(e, normal))));
  for (int surface = 1; surface <= p; ++surface) {
    const double chord = shape.Chord(place, e);
    if (!(chord > 0)) return {};
    path.points.push_back(place = place + chord * e);
    normal = -1 * shape.Normal(place);
    const Interface inside(m, 1, std::max(0.0, -Dot(e, normal)));
    if (surface < p) {
      e = Reflected(e, normal, inside.cosine);
    } else {
      if (inside.ts == 0) return {};
      path.direction = Refracted(e, normal, m, inside);
    }
  }
  return path;
}

double ScatteringAngleOf(const DropLight& light, const SpaceVector& direction) {
  return std::atan2(Length(Cross(light.e0, direction)), Dot(light.e0, direction));
}

double ClockAngleOf(const DropLight& light, const SpaceVector& direction) {
  return std::atan2(-Dot(direction, light.e2), -Dot(direction, light.e1));
}

double DropRows::SolidAngle(int row) const {
  const double middle = first + (row - 1) * step;
  const double from = std::clamp(middle - step / 2, 0.0, pi), to = std::clamp(middle + step / 2, 0.0, pi);
  return (std::cos(from) - std::cos(to)) * (clockHalfWidth > 0 ? std::min(2 * clockHalfWidth, 2 * pi) : 2 * pi);
}

int DropRows::RowOf(double theta) const {
  const double row = std::floor((theta - first) / step + 0.5) + 1;
  return row >= 1 && row <= count ? static_cast<int>(row) : 0;
}

int DropRows::RowOf(double theta, double phi) const {
  const bool seen = clockHalfWidth <= 0 || std::fabs(std::remainder(phi - clock, 2 * pi)) <= clockHalfWidth;
  return seen ? RowOf(theta) : 0;
}

int DropRows::SectorOf(double phi) const {
  return std::min(static_cast<int>(std::fabs(phi) / pi * sectors), sectors - 1);
}

namespace {

/// Counts what has left in one direction, from a cell of the wave front.
void Count(const DropExit& exit, double cell, const DropLight& light, const DropRows& rows, DropPower& power) {
  const double across = exit.perpendicular * cell, along = exit.parallel * cell;
  power.allPerpendicular += across;
  power.allParallel += along;
  const double theta = ScatteringAngleOf(light, exit.direction), phi = ClockAngleOf(light, exit.direction);
  if (const int row = rows.RowOf(theta, phi); row != 0) {
    power.perpendicular[static_cast<std::size_t>(row - 1)] += across;
    power.parallel[static_cast<std::size_t>(row - 1)] += along;
  }
  if (rows.sectors == 0) return;
  if (const int row = rows.RowOf(theta); row != 0)
    power.sky[static_cast<std::size_t>(rows.SectorOf(phi) * rows.count + row - 1)] += (across + along) / 2;
}

}  // namespace

int AddDropRays(const DropShape& shape, const DropMaterial& material, const DropLight& light,
                std::span<const int> selected, int gridSide, int firstLine, int endLine, const DropRows& rows,
                DropPower& power, RunMonitor& monitor) {
  power.perpendicular.resize(static_cast<std::size_t>(rows.count));
  power.parallel.resize(static_cast<std::size_t>(rows.count));
  power.sky.resize(static_cast<std::size_t>(rows.sectors) * static_cast<std::size_t>(rows.count));
  std::vector<std::optional<DropExit>> exits(selected.size());
  const double cell = 2 * frontHalfWidth / gridSide;
  for (int line = firstLine; line < endLine; ++line) {
    if (!monitor.Report(static_cast<std::size_t>(line - firstLine), static_cast<std::size_t>(endLine - firstLine)))
      return line - firstLine;
    std::mt19937_64 generator(static_cast<std::uint64_t>(line) + 1);
    for (int i = 0; i < gridSide; ++i) {
      const double across = (line + NextFraction(generator)) * cell - frontHalfWidth;
      const double up = (i + NextFraction(generator)) * cell - frontHalfWidth;
      const double b = std::hypot(across, up);
      if (b > frontHalfWidth || !TraceDropRay(shape, material, light, b, std::atan2(across, up), exits)) continue;
      for (std::size_t p = 0; p < exits.size(); ++p)
        if (selected[p] != 0 && exits[p]) Count(*exits[p], cell * cell, light, rows, power);
    }
  }
  return endLine - firstLine;
}

}  // namespace lumivex
