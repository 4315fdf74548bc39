// The Debye series against one Mie run: ratios of run times in one program, compiled with the same flags.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <vector>

#include "best_time.h"
#include "solvers/rays/ray_series.h"
#include "solvers/series/debye_series.h"
#include "solvers/series/mie_series.h"

namespace {

using namespace lumivex;

constexpr double Wavelength = 0.65;
double sink = 0.0;

std::vector<int> Terms(int first, int last) {
  std::vector<int> selected(static_cast<std::size_t>(last) + 1, 0);
  std::fill(selected.begin() + first, selected.end(), 1);
  return selected;
}

void Compare(double radius, double degrees, double absorption, int runs) {
  constexpr double index = 1.3326;
  const double x = 2.0 * std::numbers::pi * radius / Wavelength;
  const int rows = static_cast<int>(std::lround(90.0 / degrees)) + 1;
  SilentMonitor monitor;
  const double mie = BestTime(runs, [&] {
    MieRequest request;
    request.x = x;
    request.mRe = index;
    request.mIm = absorption;
    request.NANG = rows;
    sink += SolveMie(request, monitor).S1.Re(2);
  });
  const auto debye = [&](const std::vector<int>& selected) {
    return BestTime(runs, [&] {
      DebyeRequest request;
      request.x = x;
      request.mRe = index;
      request.mIm = absorption;
      request.NANG = rows;
      request.selected = selected;
      sink += SolveDebye(request, monitor).S1.Re(2);
    });
  };
  const auto rays = [&](const std::vector<int>& selected) {
    return BestTime(std::max(3, runs / 20), [&] {
      RayRequest request;
      request.x = x;
      request.mRe = index;
      request.mIm = absorption;
      request.selected = selected;
      request.grid = AngleGrid(rows);
      request.window = {1, 2 * rows - 1};
      AmplitudeTable S1(2 * rows - 1);
      AmplitudeTable S2(2 * rows - 1);
      SumRays(request, S1, S2, monitor);
      sink += S1.Re(2);
    });
  };
  const double one = debye(Terms(2, 2));
  const double all = debye(Terms(0, 50));
  std::printf("%9g %8g %8g %9.4f %9.4f %7.2f %9.4f %7.2f %9.3f %9.3f\n", radius, degrees, absorption, mie, one,
              one / mie, all, all / mie, rays(Terms(2, 2)), rays(Terms(0, 50)));
}

}  // namespace

int main() {
  std::printf("radius/um step/deg   absorp.   Mie/ms  p=2/ms   ratio  0-50/ms   ratio   rays p=2 rays 0-50 (ms)\n");
  for (const double absorption : {0.0, 1e-5}) {
    Compare(10.0, 0.1, absorption, 400);
    Compare(100.0, 0.1, absorption, 100);
    Compare(1000.0, 0.1, absorption, 10);
  }
  return std::isfinite(sink) ? 0 : 1;
}
