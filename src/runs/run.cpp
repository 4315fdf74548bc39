#include "runs/run.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include "runs/families.h"

namespace lumivex {

namespace {

struct RunFamily {
  const RunRequest& request;
  TaskPool& pool;
  Results& results;

  FamilyEnd operator()(const AngleRun& run) const { return RunAngles(request, run, pool, results); }
  FamilyEnd operator()(const SpectrumRun& run) const { return RunSpectrum(request, run, pool, results); }
  FamilyEnd operator()(const AxisRun& run) const { return RunAxis(request, run, pool, results); }
  FamilyEnd operator()(const ConvergenceRun& run) const { return RunConvergence(request, run, pool, results); }
  FamilyEnd operator()(const DebyeAnalysisRun& run) const { return RunDebyeAnalysis(request, run, pool, results); }
  FamilyEnd operator()(const TwoAngleRun& run) const { return RunTwoAngle(request, run, pool, results); }
  FamilyEnd operator()(const AngleMapRun& run) const { return Overplot_Map(request, run, pool, results); }
  FamilyEnd operator()(const EfficiencyMapRun& run) const { return Overplot_Map(request, run, pool, results); }
  FamilyEnd operator()(const VolumeRun& run) const { return RunVolume(request, run, pool, results); }
};

}  // namespace

void TellPlace(const Setting& setting, RunProgress& progress) {
  progress.lambda = setting.lambda;
  progress.radius = setting.radius;
  progress.sphereN = setting.indices.sphereN;
  progress.sphereK = setting.indices.sphereK;
  progress.relative = setting.mRe;
}

void TellSetting(const Setting& setting, LastSphere& last) {
  last.lambda = setting.lambda;
  last.radius = setting.radius;
  last.sizeParameter = setting.x;
  last.waveNumber = setting.WaveNumber();
  last.indices = setting.indices;
  last.core = setting.core;
  last.relativeRe = setting.mRe;
  last.relativeIm = setting.mIm;
}

void TellAngle(double angle, LastSphere& last) {
  constexpr int fineRowsTo90 = 9001;  // 0.01 degrees
  const AngleGrid grid(fineRowsTo90);
  last.NANG = fineRowsTo90;
  last.selectedRow = std::clamp(static_cast<int>(std::nearbyint(angle / grid.DANG)) + 1, 1, grid.RowCount());
}

void TellSphere(const SphereSolution& sphere, LastSphere& last) {
  last.efficiencies = sphere.efficiencies;
  last.NSTOP = sphere.NSTOP;
  last.NMX = sphere.NMX;
  last.partialWaveFirst = sphere.partialWaveFirst;
  last.partialWaveLast = sphere.partialWaveLast;
  last.rainbowImpact = sphere.rainbowImpact;
  last.rainbowAngle = sphere.rainbowAngle;
  last.rayAngle = sphere.rayAngle;
  last.apertureCentre = sphere.apertureCentre;
  last.apertureWeight = sphere.apertureWeight;
  last.besselOrders = sphere.besselOrders;
  last.beam = sphere.beam;
  last.drop = sphere.drop;
}

RunEnd Run(const RunRequest& request, RunWatch& watch, unsigned threads) {
  const auto start = std::chrono::steady_clock::now();
  TaskPool pool(watch, threads);
  RunEnd end;
  Results results;
  results.asked = request;
  FamilyEnd family = std::visit(RunFamily{request, pool, results}, request.run);
  if (pool.Overflowed()) {
    end.outcome = Outcome::Overflow;
    end.refusal = {"Error", "Overflow, division by zero or invalid operation in the calculation"};
    return end;
  }
  if (!family.refusal.text.empty()) {
    end.refusal = std::move(family.refusal);
    return end;
  }
  end.outcome = pool.Stopped() ? Outcome::Stopped : Outcome::Done;
  end.hasResults = family.found;
  if (!family.found) return end;
  results.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  end.results = std::move(results);
  return end;
}

}  // namespace lumivex
