#include "runs/settings.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <mutex>
#include <numbers>
#include <utility>

namespace lumivex {

namespace {

constexpr double twoPi = 2 * std::numbers::pi;

/// The first refusal of a run in the order of its tasks, whichever thread met it.
class FirstRefusal {
 public:
  void Note(std::size_t task, Refusal refusal) {
    const std::lock_guard lock(mutex_);
    if (task >= task_) return;
    task_ = task;
    refusal_ = std::move(refusal);
  }
  /// That of a task before or at `last`.
  Refusal Of(std::size_t last) const { return task_ <= last ? refusal_ : Refusal{}; }

 private:
  std::mutex mutex_;
  std::size_t task_ = static_cast<std::size_t>(-1);
  Refusal refusal_;
};

using PiecesByIndex = std::map<std::pair<double, double>, std::shared_ptr<const RayPieces>>;

/// Fills the pieces of all indices; after a Stop some stay empty, and no sphere asks for them any more.
void FindPieces(const MethodOptions& options, PiecesByIndex& pieces, TaskPool& pool) {
  std::vector<PiecesByIndex::value_type*> all;
  for (auto& one : pieces) all.push_back(&one);
  TaskList tasks;
  tasks.count = all.size();
  tasks.shareOfRun = 0;
  tasks.work = [&](std::size_t task, std::size_t, RunMonitor& monitor) {
    all[task]->second = PiecesOf(options, all[task]->first.first, all[task]->first.second, monitor);
    return true;
  };
  tasks.take = [](std::size_t, std::size_t) { return true; };
  pool.Do(tasks);
}

std::shared_ptr<const AngleCosines> CosinesOf(const SettingsPlan& plan) {
  return plan.grid.NANG > 1 ? std::make_shared<const AngleCosines>(plan.grid, plan.window) : nullptr;
}

/// What the spheres of a plan have in common: of rays the pieces by relative index.
struct Shared {
  std::shared_ptr<const AngleCosines> cosines;
  PiecesByIndex pieces;
};

Shared SharedOf(const SettingsPlan& plan, TaskPool& pool) {
  Shared shared{CosinesOf(plan), {}};
  if (!TracesRays(plan.request.method)) return shared;
  // Pieces are found for all spheres that share them first; where each has an index of its own, it finds its own.
  constexpr std::size_t leastSharing = 2;
  const std::size_t mostIndices = std::max<std::size_t>(plan.settings.size() / leastSharing, 1);
  for (std::size_t i = 0; i < plan.settings.size() && shared.pieces.size() <= mostIndices; ++i) {
    const Setting setting = plan.settings[i];
    shared.pieces.try_emplace({setting.mRe, setting.mIm});
  }
  if (shared.pieces.size() > mostIndices)
    shared.pieces.clear();
  else
    FindPieces(plan.request.method, shared.pieces, pool);
  return shared;
}

SphereAsked AskedAt(const SettingsPlan& plan, const Setting& setting, double radius, double x, const Shared& shared) {
  const auto pieces = shared.pieces.find({setting.mRe, setting.mIm});
  SphereAsked asked{x,
                    setting.mRe,
                    setting.mIm,
                    plan.grid,
                    plan.window,
                    shared.cosines,
                    pieces == shared.pieces.end() ? nullptr : pieces->second};
  AskForSphere(plan.request.particle, setting, radius, asked);
  return asked;
}

Refusal BeyondLimits(const RunRequest& request, const Setting& setting, double radius, double x) {
  SphereAsked asked{x, setting.mRe, setting.mIm, {}, {}, nullptr};
  AskForSphere(request.particle, setting, radius, asked);
  return BeyondLimits(request.method, asked);
}

/// How much comes before each task, of a plan that knows it.
std::function<double(std::size_t)> WorkBeforeTasks(const SettingsPlan& plan, std::size_t tasksPerSetting) {
  if (!plan.workBefore) return {};
  return [&plan, tasksPerSetting](std::size_t task) {
    const std::size_t setting = task / tasksPerSetting;
    const double before = plan.workBefore(setting), part = static_cast<double>(task % tasksPerSetting);
    return before + (plan.workBefore(setting + 1) - before) * part / static_cast<double>(tasksPerSetting);
  };
}

/// Refuses what lies beyond the limits of the method.
Refusal BeyondLimits(const SettingsPlan& plan) {
  for (std::size_t i = 0; i < plan.settings.size(); ++i) {
    const Setting setting = plan.settings[i];
    if (Refusal beyond = BeyondLimits(plan.request, setting, setting.radius, setting.x); !beyond.text.empty())
      return beyond;
  }
  return {};
}

/// The samples of a setting; those of the setting before where its radius is the same.
class SamplesCache {
 public:
  const CloudSamples& At(const RunRequest& request, double radius) {
    if (!samples_ || radius != radius_) samples_ = std::make_shared<CloudSamples>(SamplesAt(request, radius));
    radius_ = radius;
    return *samples_;
  }

 private:
  std::shared_ptr<const CloudSamples> samples_;
  double radius_ = 0;
};

/// The smallest and the largest sphere that is there.
struct SizeEnds {
  double smallest = 0, largest = 0;
};
SizeEnds EndsOf(const CloudSamples& samples) {
  SizeEnds ends;
  for (std::size_t i = 1; i < samples.radius.size(); ++i) {
    const double radius = samples.radius[i];
    if (!(samples.weight[i] > 0 && radius > 0)) continue;
    ends.smallest = ends.smallest > 0 ? std::min(ends.smallest, radius) : radius;
    ends.largest = std::max(ends.largest, radius);
  }
  return ends;
}

/// A cloud whose cores are of one size has no spheres smaller than these.
Refusal SmallerThanCore(const Particle& particle, const SizeDistribution& sizes, const CloudSamples& samples) {
  if (!particle.core || particle.core->sizes != CoatedSizes::FixedCore) return {};
  for (std::size_t i = 1; i < samples.radius.size(); ++i)
    if (samples.weight[i] > 0 && samples.radius[i] > 0 && samples.radius[i] <= particle.core->radius)
      return {
          "Input error", "The radius of the core must be less than the radius of the overall particle",
          std::holds_alternative<NormalSizes>(sizes) ? InputAtFault::StandardDeviation : InputAtFault::Distribution};
  return {};
}

bool IsActual(const SizeDistribution& sizes) {
  const auto* file = std::get_if<FileSizes>(&sizes);
  return file != nullptr && file->actual;
}

}  // namespace

Refusal RefusalOf(SizeFailure failure) {
  return {"Input error", WordsFor(failure),
          failure == SizeFailure::NegativeRadius || failure == SizeFailure::BadGamma ? InputAtFault::StandardDeviation
                                                                                     : InputAtFault::Distribution};
}

double Setting::WaveNumber() const {
  return twoPi * indices.MediumInUse() / (lambda * 1e-6);
}

double SizeParameterOf(double radius, double medium, double lambda) {
  return twoPi * radius * medium / lambda;
}

double CoreRadius(const SphereCore& core, double radiusOfAll, double radius) {
  switch (core.sizes) {
    case CoatedSizes::FixedCore:
      break;
    case CoatedSizes::FixedRatio:
      return core.radius / radiusOfAll * radius;
    case CoatedSizes::FixedCoating:
      return radius - (radiusOfAll - core.radius);
  }
  return core.radius;
}

void AskForSphere(const Particle& particle, const Setting& setting, double radius, SphereAsked& asked) {
  asked.medium = setting.indices.MediumInUse();
  asked.radius = radius;
  if (!particle.core) return;
  asked.coreRatio = CoreRadius(*particle.core, particle.radius, radius) / radius;
  asked.core = {setting.core.n / asked.medium, setting.core.k / asked.medium};
}

CloudSamples SamplesAt(const RunRequest& request, double radius) {
  const auto& core = request.particle.core;
  const bool ofCores = core && core->sizes == CoatedSizes::FixedCoating;
  return SamplesOf(request.sizes, ofCores ? CoreRadius(*core, request.particle.radius, radius) : radius);
}

double RadiusOfSizes(const Particle& particle) {
  const bool ofCores = particle.core && particle.core->sizes == CoatedSizes::FixedCoating;
  return ofCores ? particle.core->radius : particle.radius;
}

double RadiusOfSample(const Particle& particle, double sample) {
  const auto& core = particle.core;
  return core && core->sizes == CoatedSizes::FixedCoating ? sample + (particle.radius - core->radius) : sample;
}

SettingList::SettingList(std::vector<Setting> settings)
    : count_(settings.size()), make_([all = std::move(settings)](std::size_t place) { return all[place]; }) {}

SettingResult SettingAt(const RunRequest& request, double lambda) {
  SettingResult result;
  const IndicesFound found = IndicesAt(request.particle.sphere, request.particle.medium, lambda);
  switch (found.failure) {
    case IndexFailure::None:
      break;
    case IndexFailure::MissingRow:
      result.refusal = {"Error", "Subscript out of range"};
      return result;
    case IndexFailure::SphereUndefined:
      result.refusal = {"Error", "Help! RI of sphere undefined"};
      return result;
    case IndexFailure::MediumUndefined:
      result.refusal = {"Error", "Help! RI of medium undefined"};
      return result;
  }
  Setting& setting = result.setting;
  setting.lambda = lambda;
  setting.indices = found.indices;
  setting.mRe = found.indices.RelativeRe();
  setting.mIm = found.indices.RelativeIm();
  if (const auto& core = request.particle.core) {
    const auto index = IndexAt(core->material, lambda).value;
    if (!index || index->n == 0 || !std::isfinite(index->n)) {
      result.refusal = {"Error", "Help! RI of sphere undefined"};
      return result;
    }
    setting.core = *index;
  }
  const double medium = found.indices.MediumInUse();
  const auto& typed = request.particle.sizeTyped;
  setting.radius = typed ? *typed * lambda / (twoPi * medium) : request.particle.radius;
  setting.x = typed ? *typed : SizeParameterOf(setting.radius, medium, lambda);
  return result;
}

MethodOptions SphereOptions(const RunRequest& request) {
  MethodOptions options = request.method;
  const bool absolute = request.graph.InUnitsOfLight() || request.graph.NeedsAllRows();
  if (request.Cloud() && absolute) options.divideBySize = false;
  return options;
}

SettingsEnd RunSettings(const SettingsPlan& plan, TaskPool& pool) {
  if (plan.request.Cloud()) return DispCalc(plan, pool);
  if (Refusal beyond = BeyondLimits(plan); !beyond.text.empty()) return {0, std::move(beyond)};
  const Shared shared = SharedOf(plan, pool);
  std::vector<SphereSolution> slots(pool.Slots());
  FirstRefusal refusals;
  TaskList tasks;
  tasks.count = plan.settings.size();
  tasks.shareBefore = plan.shareBefore;
  tasks.shareOfRun = plan.shareOfRun;
  tasks.work = [&](std::size_t task, std::size_t slot, RunMonitor& monitor) {
    const Setting setting = plan.settings[task];
    slots[slot] = SolveSphere(plan.request.method, AskedAt(plan, setting, setting.radius, setting.x, shared), monitor);
    if (slots[slot].Refused()) refusals.Note(task, slots[slot].refusal);
    return slots[slot].finished && !slots[slot].Refused();
  };
  tasks.take = [&](std::size_t task, std::size_t slot) {
    const double radius = plan.settings[task].radius, area = std::numbers::pi * radius * radius;
    SettingFound found;
    found.sphere = std::move(slots[slot]);
    found.Cext = found.sphere.efficiencies.Qext * area;
    found.Csca = found.sphere.efficiencies.Qsca * area;
    plan.keep(task, std::move(found));
    return true;
  };
  tasks.place = [&](std::size_t task, RunProgress& progress) {
    TellPlace(plan.settings[task], progress);
    if (plan.place) plan.place(task, progress);
  };
  tasks.before = WorkBeforeTasks(plan, 1);
  SettingsEnd end;
  end.kept = pool.Do(tasks);
  if (end.kept < tasks.count) end.refusal = refusals.Of(end.kept);
  return end;
}

SettingsEnd DispCalc(const SettingsPlan& plan, TaskPool& pool) {
  SettingsEnd end;
  if (plan.settings.empty()) return end;
  double radiusOfEnds = plan.settings.front().radius;
  const Particle& particle = plan.request.particle;
  const CloudSamples first = SamplesAt(plan.request, radiusOfEnds);
  if (first.failure != SizeFailure::None) {
    end.refusal = RefusalOf(first.failure);
    return end;
  }
  if (Refusal small = SmallerThanCore(particle, plan.request.sizes, first); !small.text.empty())
    return {0, std::move(small)};
  SizeEnds ends = EndsOf(first);
  for (std::size_t i = 0; i < plan.settings.size(); ++i) {
    const Setting setting = plan.settings[i];
    // The largest sphere of a cloud decides, or the smallest; of models and files they are the same everywhere.
    if (setting.radius != radiusOfEnds) ends = EndsOf(SamplesAt(plan.request, setting.radius));
    radiusOfEnds = setting.radius;
    for (const double size :
         {ends.largest, TraitsOf(plan.request.method.method).leastSize ? ends.smallest : ends.largest}) {
      const double radius = RadiusOfSample(particle, size);
      const double x = SizeParameterOf(radius, setting.indices.MediumInUse(), setting.lambda);
      if (Refusal beyond = BeyondLimits(plan.request, setting, radius, x); !beyond.text.empty())
        return {0, std::move(beyond)};
    }
  }
  const auto perCloud = static_cast<std::size_t>(first.Count());
  const bool actual = IsActual(plan.request.sizes);
  const MethodOptions options = SphereOptions(plan.request);
  const Shared shared = SharedOf(plan, pool);
  struct Slot {
    SphereSolution sphere;
    SamplesCache samples;
    double radius = 0, weight = 0;
    bool counts = false;  ///< a size that is there
  };
  std::vector<Slot> slots(pool.Slots());
  FirstRefusal refusals;
  CloudSums sums;
  sums.Begin(plan.window, plan.wantsCross);
  const int tableRows = plan.grid.RowCount();
  TaskList tasks;
  tasks.count = plan.settings.size() * perCloud;
  tasks.before = WorkBeforeTasks(plan, perCloud);
  tasks.shareBefore = plan.shareBefore;
  tasks.shareOfRun = plan.shareOfRun;
  tasks.work = [&](std::size_t task, std::size_t slotIndex, RunMonitor& monitor) {
    const Setting setting = plan.settings[task / perCloud];
    Slot& slot = slots[slotIndex];
    const CloudSamples& samples = slot.samples.At(plan.request, setting.radius);
    if (samples.failure != SizeFailure::None) {
      refusals.Note(task, RefusalOf(samples.failure));
      return false;
    }
    const std::size_t sample = task % perCloud + 1;
    slot.radius = RadiusOfSample(particle, samples.radius[sample]);
    slot.weight = samples.weight[sample];
    slot.counts = slot.weight > 0 && samples.radius[sample] > 0;
    if (!slot.counts) return true;
    const double x = SizeParameterOf(slot.radius, setting.indices.MediumInUse(), setting.lambda);
    slot.sphere = SolveSphere(options, AskedAt(plan, setting, slot.radius, x, shared), monitor);
    if (slot.sphere.Refused()) refusals.Note(task, slot.sphere.refusal);
    return slot.sphere.finished && !slot.sphere.Refused();
  };
  tasks.take = [&](std::size_t task, std::size_t slotIndex) {
    const Slot& slot = slots[slotIndex];
    if (slot.counts) sums.Add(slot.sphere, slot.radius, slot.weight);
    if (task % perCloud + 1 < perCloud) return true;
    plan.keep(task / perCloud, sums.Means(tableRows, actual, first.outside));
    ++end.kept;
    sums.Begin(plan.window, plan.wantsCross);
    return true;
  };
  // The slot of a task that is done belongs to whoever works in it next; so the place has samples of its own.
  tasks.place = [&, told = SamplesCache()](std::size_t task, RunProgress& progress) mutable {
    const Setting setting = plan.settings[task / perCloud];
    const std::size_t sample = task % perCloud + 1;
    const CloudSamples& samples = told.At(plan.request, setting.radius);
    TellPlace(setting, progress);
    if (samples.failure == SizeFailure::None) progress.radius = RadiusOfSample(particle, samples.radius[sample]);
    progress.sample = static_cast<int>(sample);
    if (plan.place) plan.place(task / perCloud, progress);
  };
  const std::size_t taken = pool.Do(tasks);
  if (taken < tasks.count) end.refusal = refusals.Of(taken);
  const bool part = plan.keepsPartOfCloud && pool.Stopped() && sums.HasMeans() && end.refusal.text.empty();
  if (part) {
    plan.keep(end.kept, sums.Means(tableRows, actual, first.outside));
    ++end.kept;
  }
  return end;
}

}  // namespace lumivex
