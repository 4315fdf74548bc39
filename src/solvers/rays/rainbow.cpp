#include "solvers/rays/rainbow.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "solvers/functions/airy_function.h"
#include "solvers/functions/complex_algebra.h"
#include "solvers/rays/ray_table.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
/// Half width of the difference that stands for Ai'.
constexpr double DerivativeStep = 0.01;
constexpr std::size_t EvaluationsPerLook = 4096;

/// d/di of (1 - r^2)(-r)^(p-1).
double FactorSlope(double r, double slope, int p) {
  const double power = std::pow(-r, p - 1);
  const double below = p >= 2 ? (p - 1) * std::pow(-r, p - 2) : 0.0;
  return (-2.0 * r * power - (1.0 - r * r) * below) * slope;
}

}  // namespace

double ClampRayAngle(double theta) {
  return std::clamp(theta, LeastRayAngle, pi - LeastRayAngle);
}

RowsDone RowsUpTo(const AngleGrid& grid, RowWindow window, int last) {
  const int high = std::min(window.high, last);
  return {{window.low, std::min(high, grid.NANG)}, {std::max(window.low, grid.NANG + 1), high}};
}

std::optional<Rainbow> MakeRainbow(double m, int p) {
  const double impact = RainbowImpactOf(m, p);
  if (!(impact < 1.0)) return std::nullopt;
  const RayFamily family(m, p);
  Rainbow R;
  R.m = m;
  R.p = p;
  R.ray = family.At(family.Parameter(impact));
  R.fold = FoldDeviation(R.ray.deviation);
  R.RainbowAngle = ScatteringAngle(R.fold, R.ray.deviation);
  const double m2 = m * m;
  const double p2 = static_cast<double>(p) * p;
  R.h = (p2 - 1.0) * (p2 - 1.0) / (p2 * (m2 - 1.0)) * std::sqrt((p2 - m2) / (m2 - 1.0));
  const double cosI = R.ray.cosI;
  const double cosR = R.ray.cosR;
  const double rs = (cosI - m * cosR) / (cosI + m * cosR);
  const double rp = (m * cosI - cosR) / (m * cosI + cosR);
  R.epsPerpendicular = (1.0 - rs * rs) * std::pow(-rs, p - 1);
  R.epsParallel = (1.0 - rp * rp) * std::pow(-rp, p - 1);
  const double tangent = -2.0 * (m2 - 1.0) * R.ray.sinR / cosR;
  const double sumS = cosI + m * cosR;
  const double sumP = m * cosI + cosR;
  R.slopePerpendicular = FactorSlope(rs, tangent / (sumS * sumS), p);
  R.slopeParallel = FactorSlope(rp, tangent / (sumP * sumP), p);
  return R;
}

double Rainbow::AiryArgument(double x, double theta) const {
  return fold.q * (theta - RainbowAngle) * std::pow(x, 2.0 / 3.0) / std::cbrt(h);
}

double Rainbow::AxisDistance(double x) const {
  return LeastAxisDistance(x, std::sin(RainbowAngle));
}

double LeastAxisDistance(double x, double sinTheta) {
  return std::max(sinTheta, std::min(1.0, 1.0 / x));
}

void AddAiry(const Rainbow& R, double x, double theta, double absorption, AiryDerivative derivative, ComplexD& S1,
             ComplexD& S2) {
  const double z = R.AiryArgument(x, theta);
  const double Ai = AiryCalc(z);
  const double AiryAmplitudeScale =
      absorption * std::pow(x, 7.0 / 6.0) / std::cbrt(R.h) * std::sqrt(2.0 * pi * R.ray.sinI / R.AxisDistance(x));
  const double phase = RayPhase(x, R.m, R.p, R.ray, R.fold, 0) + x * R.ray.sinI * R.fold.q * (theta - R.RainbowAngle);
  // -i exp(-i phase)
  const ComplexD wave(-std::sin(phase), -std::cos(phase));
  double K1 = 0.0;
  double K2 = 0.0;
  if (derivative != AiryDerivative::None) {
    const double dAi = (AiryCalc(z + DerivativeStep) - AiryCalc(z - DerivativeStep)) / (2.0 * DerivativeStep);
    const double AiryDerivativeScale = dAi / (std::cbrt(x * R.h) * R.ray.cosI);
    K2 = AiryDerivativeScale * R.slopeParallel;
    if (derivative == AiryDerivative::Both) K1 = AiryDerivativeScale * R.slopePerpendicular;
  }
  S1 = S1 + AiryAmplitudeScale * (ComplexD(R.epsPerpendicular * Ai, K1) * wave);
  S2 = S2 + AiryAmplitudeScale * (ComplexD(R.epsParallel * Ai, K2) * wave);
}

RowsDone SolveAiry(const AiryRequest& request, AmplitudeTable& S1, AmplitudeTable& S2, RunMonitor& monitor) {
  const AngleGrid& grid = request.grid;
  const RowWindow window{std::max(request.window.low, 1), std::min(request.window.high, grid.RowCount())};
  if (window.Empty()) return {};
  std::vector<Rainbow> rainbows;
  for (std::size_t p = 2; p < request.selected.size(); ++p) {
    if (request.selected[p] == 0) continue;
    if (const auto rainbow = MakeRainbow(request.m, static_cast<int>(p))) rainbows.push_back(*rainbow);
  }
  const auto count = static_cast<std::size_t>(window.high - window.low) + 1;
  std::size_t work = EvaluationsPerLook;
  for (int row = window.low; row <= window.high; ++row) {
    work += rainbows.size() + 1;
    if (work >= EvaluationsPerLook) {
      work = 0;
      if (!monitor.Report(static_cast<std::size_t>(row - window.low), count)) return RowsUpTo(grid, window, row - 1);
    }
    const double theta = ClampRayAngle(grid.Angle(row));
    ComplexD sum1 = S1.Value(row);
    ComplexD sum2 = S2.Value(row);
    for (const Rainbow& rainbow : rainbows) AddAiry(rainbow, request.x, theta, 1.0, request.derivative, sum1, sum2);
    S1.Set(row, sum1.re, sum1.im);
    S2.Set(row, sum2.re, sum2.im);
  }
  return RowsUpTo(grid, window, window.high);
}

}  // namespace lumivex
