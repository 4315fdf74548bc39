// Mie scattering against the textbook loop: ratios of run times in one program, compiled with the same flags.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <vector>

#include "best_time.h"
#include "solvers/series/mie_series.h"
#include "textbook_mie.h"

namespace {

using namespace lumivex;

constexpr double Index = 1.3326;
constexpr double Wavelength = 0.65;

double SizeParameter(double radius) {
  return 2.0 * std::numbers::pi * radius / Wavelength;
}

double sink = 0.0;

std::vector<InstructionSet> Sets() {
  std::vector<InstructionSet> sets{InstructionSet::Plain};
  const InstructionSet best = BestInstructionSet();
  if (best != InstructionSet::Plain) sets.push_back(InstructionSet::Avx2);
  if (best == InstructionSet::Avx512) sets.push_back(InstructionSet::Avx512);
  return sets;
}

void CompareAmplitudes(double radius, double degrees, int runs) {
  const double x = SizeParameter(radius);
  const int rows = static_cast<int>(std::lround(90.0 / degrees)) + 1;
  const double book = BestTime(std::max(3, runs / 10), [&] {
    sink += textbook::Mie(x, {Index, 0.0}, static_cast<std::size_t>(rows)).S1[1].real();
  });
  for (const InstructionSet set : Sets()) {
    SilentMonitor monitor;
    double perPair = 0.0;
    const double ours = BestTime(runs, [&] {
      MieRequest request;
      request.x = x;
      request.mRe = Index;
      request.NANG = rows;
      request.set = set;
      const MieResult result = SolveMie(request, monitor);
      perPair = 1.0 / (static_cast<double>(result.truncation.NSTOP) * rows);
      sink += result.S1.Re(2);
    });
    std::printf("%9g %8g  %-8s %12.4f %12.4f %8.1f %10.3f\n", radius, degrees, Name(set), book, ours, book / ours,
                1e6 * ours * perPair);
  }
}

void CompareEfficiencies(const char* label, const std::vector<double>& radii, double absorption) {
  const std::size_t count = radii.size();
  std::vector<double> x(count), mRe(count, Index), mIm(count, absorption);
  std::vector<double> Qext(count), Qsca(count), Qback(count), g(count);
  std::transform(radii.begin(), radii.end(), x.begin(), SizeParameter);
  const double book = BestTime(5, [&] {
    for (const double size : x) sink += textbook::Mie(size, {Index, absorption}, 0).Qback;
  });
  for (const InstructionSet set : Sets()) {
    SilentMonitor monitor;
    const double ours = BestTime(50, [&] {
      SolveEfficiencies({x, mRe, mIm}, {Qext, Qsca, Qback, g}, {}, monitor, set);
      sink += Qback[count / 2];
    });
    std::printf("%-18s  %-8s %12.4f %12.4f %8.1f\n", label, Name(set), book, ours, book / ours);
  }
}

}  // namespace

int main() {
  std::printf("Best instruction set here: %s. m = %g, wavelength %g um, one thread.\n\n", Name(BestInstructionSet()),
              Index, Wavelength);
  std::printf("radius/um step/deg  set       textbook/ms   Lumivex/ms    ratio  ns/(term pair)\n");
  CompareAmplitudes(1000.0, 0.01, 20);
  CompareAmplitudes(100.0, 0.1, 200);
  CompareAmplitudes(10.0, 0.1, 1000);

  std::printf("\n1000 radii, no angles  set       textbook/ms   Lumivex/ms    ratio\n");
  std::vector<double> even(1000);
  std::vector<double> logarithmic(1000);
  for (std::size_t i = 0; i < even.size(); ++i) {
    const double fraction = static_cast<double>(i) / static_cast<double>(even.size() - 1);
    even[i] = 0.01 + fraction * (100.0 - 0.01);
    logarithmic[i] = std::pow(10.0, -2.0 + 4.0 * fraction);
  }
  CompareEfficiencies("0.01-100 um, even", even, 0.0);
  CompareEfficiencies("absorbing 1e-3", even, 1e-3);
  CompareEfficiencies("logarithmic", logarithmic, 0.0);
  return std::isfinite(sink) ? 0 : 1;
}
