#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "runs/cloud_sums.h"
#include "runs/request.h"
#include "runs/task_pool.h"

namespace lumivex {

/// Everything that a run varies from one calculation to the next: a wavelength of a spectrum, a point of an axis.
struct Setting {
  double lambda = 0.65;  ///< um in vacuo
  double radius = 10;    ///< um; of a cloud the one that its sizes lie about
  OpticalIndices indices;
  IndexValue core{0, 0};      ///< of a coated sphere
  double mRe = 1, mIm = 0;    ///< relative index
  double x = 1;               ///< size parameter of the radius
  double WaveNumber() const;  ///< in the medium (1/m)
};

/// 2 pi r n/lambda.
double SizeParameterOf(double radius, double medium, double lambda);

/// Indices and size parameter of the request's particle at a wavelength; nothing, and why, where a material has no
/// index there.
struct SettingResult {
  Setting setting;
  Refusal refusal;
  bool Good() const { return refusal.text.empty(); }
};
SettingResult SettingAt(const RunRequest& request, double lambda);

/// The radius (um) of the core of a coated sphere of that radius.
double CoreRadius(const SphereCore& core, double radiusOfAll, double radius);

/// What a sphere of a radius (um) is, beyond its index and size parameter: what a solver of spheres in layers or in
/// beams is asked.
void AskForSphere(const Particle& particle, const Setting& setting, double radius, SphereAsked& asked);

/// The sizes of a cloud about a setting. Of coated spheres whose coating is fixed the distribution is that of the
/// cores, otherwise that of the whole spheres.
CloudSamples SamplesAt(const RunRequest& request, double radius);
/// The radius (um) that the sizes of a request lie about.
double RadiusOfSizes(const Particle& particle);
/// The radius of the sphere (um) that a sample stands for.
double RadiusOfSample(const Particle& particle, double sample);

/// What a run is refused with whose sizes cannot be used.
Refusal RefusalOf(SizeFailure failure);

/// Settings by their place, from 0. A map has more of them than memory is for: they are made when they are asked for,
/// by a pure function that any thread may call.
class SettingList {
 public:
  SettingList() = default;
  SettingList(std::vector<Setting> settings);
  SettingList(std::size_t count, std::function<Setting(std::size_t)> make) : count_(count), make_(std::move(make)) {}

  std::size_t size() const { return count_; }
  bool empty() const { return count_ == 0; }
  Setting operator[](std::size_t place) const { return make_(place); }
  Setting front() const { return make_(0); }

 private:
  std::size_t count_ = 0;
  std::function<Setting(std::size_t)> make_;
};

/// A run over settings: at each the sphere, or the cloud about it.
struct SettingsPlan {
  const RunRequest& request;
  SettingList settings;
  AngleGrid grid;  ///< the same at all of them
  RowWindow window{1, 1};
  bool keepsPartOfCloud = false;  ///< after a Stop the means over the sizes that were done are kept
  bool wantsCross = true;         ///< of a cloud the means of S1 conj(S2)
  /// Takes what was found, setting by setting in their order.
  std::function<void(std::size_t setting, SettingFound&& found)> keep;
  /// Tells where a setting stands.
  std::function<void(std::size_t setting, RunProgress& progress)> place;
  /// The share of all work, 0 to 1, that comes before a setting; without it all settings take alike.
  std::function<double(std::size_t setting)> workBefore = {};
  double shareBefore = 0, shareOfRun = 1;  ///< of the whole run that these settings are
};

/// @return the settings that were kept and why the run ended before its end, where that was a refusal.
struct SettingsEnd {
  std::size_t kept = 0;
  Refusal refusal;
};
SettingsEnd RunSettings(const SettingsPlan& plan, TaskPool& pool);

/// How the spheres of a run are calculated: the method's options, but that a cloud in graphs of absolute units is never
/// divided by x. The division is undone where one sphere was divided; means over many sizes could not be.
MethodOptions SphereOptions(const RunRequest& request);

/// DispCalc: the sizes of the plan's cloud at each setting, in place of one solver call. Means are sums over numbers
/// of particles; for a size file and "actual" results they stay sums.
SettingsEnd DispCalc(const SettingsPlan& plan, TaskPool& pool);

/// What a setting tells whoever watches.
void TellPlace(const Setting& setting, RunProgress& progress);

/// PiecesOf as a task of the pool; empty for a method that traces no rays.
std::shared_ptr<const RayPieces> PiecesInPool(const MethodOptions& options, double mRe, double mIm, TaskPool& pool);

/// One sphere whose rows are divided among the threads.
SphereSolution SolveInParts(const MethodOptions& options, const SphereAsked& asked, TaskPool& pool);

}  // namespace lumivex
