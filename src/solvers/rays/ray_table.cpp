#include "solvers/rays/ray_table.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
/// Shorter pieces of the curve are rounding errors of a multiple of pi.
constexpr double LeastPiece = 1e-12;
constexpr int MostSteps = 120;
/// Steps of the parameter that Near can take.
constexpr double SmallStep = 1e-4;
/// What may be left of a deviation that Near gives (radians).
constexpr double SmallRest = 1e-11;

void AddPoint(RayTable& table, double t, const Ray& ray, double deviation) {
  table.parameter.push_back(t);
  table.RayImpact.push_back(ray.sinI);
  table.RayDeviation.push_back(deviation);
}

/// Adds the points of one monotonic piece after its first: where it crosses multiples of pi, and its end.
void AddPiece(RayTable& table, double tEnd) {
  const RayFamily& family = table.family;
  const Ray end = family.At(tEnd);
  const double tBegin = table.parameter.back();
  const double begin = table.RayDeviation.back();
  const bool rising = end.deviation > begin;
  if (std::fabs(end.deviation - begin) < LeastPiece) return;
  const double low = std::min(begin, end.deviation);
  const double high = std::max(begin, end.deviation);
  std::vector<int> multiples;
  for (int k = static_cast<int>(std::floor(low / pi)); k * pi < high - LeastPiece; ++k) {
    if (k * pi > low + LeastPiece) multiples.push_back(k);
  }
  if (!rising) std::reverse(multiples.begin(), multiples.end());
  const auto fold = [&](double deviation) {
    const double middle = 0.5 * (table.RayDeviation.back() + deviation);
    table.folds.push_back(FoldDeviation(middle));
  };
  double before = tBegin;
  for (const int k : multiples) {
    const double t = GOAngleCalc(family, k * pi, before, tEnd, 0.5 * (before + tEnd));
    fold(k * pi);
    AddPoint(table, t, family.At(t), k * pi);
    before = t;
  }
  fold(end.deviation);
  AddPoint(table, tEnd, end, end.deviation);
}

}  // namespace

double RainbowImpactOf(double m, int p) {
  if (p < 2 || m <= 1.0 || m >= p) return 1.0;
  return std::sqrt((static_cast<double>(p) * p - m * m) / (static_cast<double>(p) * p - 1.0));
}

RayTable MakeRayTable(double m, int p) {
  RayTable table{RayFamily(m, p), {}, {}, {}, {}};
  const RayFamily& family = table.family;
  AddPoint(table, 0.0, family.At(0.0), (p - 1) * pi);
  table.RainbowImpact = RainbowImpactOf(m, p);
  if (table.RainbowImpact < 1.0) {
    AddPiece(table, family.Parameter(table.RainbowImpact));
    table.rainbowPoint = table.parameter.size() - 1;
  }
  AddPiece(table, family.Last());
  table.SegmentCount = static_cast<int>(table.folds.size());
  table.SegmentLast = table.SegmentCount - 1;
  return table;
}

double GOAngleCalc(const RayFamily& family, double target, double low, double high, double guess) {
  const bool rising = family.At(high).deviation > family.At(low).deviation;
  return FindRay(family, target, low, high, rising, guess).t;
}

RayRoot FindRay(const RayFamily& family, double target, double low, double high, bool rising, double guess) {
  const double rounding = 4e-16 * std::max(1.0, std::fabs(target));
  double t = guess;
  if (!(t > low && t < high)) t = 0.5 * (low + high);
  Ray ray = family.At(t);
  for (int step = 0; step < MostSteps; ++step) {
    const double difference = ray.deviation - target;
    if (std::fabs(difference) <= rounding) break;
    ((difference > 0.0) == rising ? high : low) = t;
    if (high - low < 1e-15) break;
    const double slope = family.Slope(ray);
    double next = slope != 0.0 ? t - difference / slope : low;
    if (!(next > low && next < high)) next = 0.5 * (low + high);
    if (next == t) break;
    const double dt = next - t;
    t = next;
    if (std::fabs(dt) < SmallStep) {
      const Ray near = family.Near(ray, dt);
      const double change = std::fabs(family.Slope(near) - slope);
      // What the step leaves is dt times half that change; where it is little, so is all that follows.
      if (std::fabs(near.deviation - target) < SmallRest && change < 1e-3 * std::fabs(slope)) return {t, near};
    }
    ray = family.At(t);
  }
  return {t, ray};
}

}  // namespace lumivex
