#include "runs/volume_sums.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "solvers/functions/complex_algebra.h"

namespace lumivex {

namespace {

/// Spheres of a task: of those that stand still, and of those that walk from point to point.
constexpr std::size_t standingPerTask = 4096, walkingPerTask = 16;

/// Steps of a walk from one look at the monitor to the next: some milliseconds.
constexpr std::size_t stepsBetweenLooks = 16384;

// What a sphere costs in pairs of angles of a series' term: its place, size and phase; and a step of its walk.
constexpr double standingWork = 250, stepWork = 350;

/// One sphere at its place.
struct Standing {
  std::size_t size = 0;
  ComplexD phase;
};

TaskList TasksOf(std::size_t spheres, std::size_t perTask, ShareOfSums share) {
  TaskList tasks;
  tasks.count = (spheres + perTask - 1) / perTask;
  tasks.shareBefore = share.before;
  tasks.shareOfRun = share.ofRun;
  return tasks;
}

using TakeStanding = std::function<void(std::size_t sphere, const Standing& standing)>;

/// Visits all spheres in their order. @return false after a Stop.
bool ForEachStanding(const VolumeSpheres& spheres, ShareOfSums share, TaskPool& pool, const TakeStanding& visit) {
  std::vector<std::vector<Standing>> slots(pool.Slots());
  TaskList tasks = TasksOf(spheres.Count(), standingPerTask, share);
  tasks.work = [&](std::size_t task, std::size_t slot, RunMonitor& monitor) {
    const std::size_t first = task * standingPerTask, end = std::min(first + standingPerTask, spheres.Count());
    slots[slot].clear();
    for (std::size_t sphere = first; sphere < end; ++sphere)
      slots[slot].push_back({spheres.SizeOf(sphere), spheres.PhaseAt(spheres.PlaceAt(sphere))});
    return monitor.Report(1, 1);
  };
  tasks.take = [&](std::size_t task, std::size_t slot) {
    std::size_t sphere = task * standingPerTask;
    for (const Standing& standing : slots[slot]) visit(sphere++, standing);
    return true;
  };
  return pool.Do(tasks) == tasks.count;
}

/// Sums over spheres, of fields and of the intensities of each for itself.
struct Sums {
  ComplexD S1{0, 0}, S2{0, 0};
  double alonePerp = 0, alonePar = 0;

  void Add(const SizeAmplitudes& amplitudes, std::size_t size, const ComplexD& phase) {
    S1 = S1 + amplitudes.S1[size] * phase;
    S2 = S2 + amplitudes.S2[size] * phase;
    AddAlone(amplitudes, size);
  }
  void AddAlone(const SizeAmplitudes& amplitudes, std::size_t size) {
    alonePerp += SquaredModulus(amplitudes.S1[size]);
    alonePar += SquaredModulus(amplitudes.S2[size]);
  }
};

void Keep(VolumeFound& found, std::size_t point, const Sums& sums) {
  found.S1.Set(static_cast<int>(point), sums.S1.re, sums.S1.im);
  found.S2.Set(static_cast<int>(point), sums.S2.re, sums.S2.im);
  found.alonePerp[point] = sums.alonePerp;
  found.alonePar[point] = sums.alonePar;
}

bool MoveFirst(const VolumeSpheres& spheres, const SizeAmplitudes& amplitudes, ShareOfSums share, TaskPool& pool,
               VolumeFound& found) {
  Sums others;
  const bool whole = ForEachStanding(spheres, share, pool, [&](std::size_t sphere, const Standing& standing) {
    if (sphere > 0) others.Add(amplitudes, standing.size, standing.phase);
  });
  const std::size_t size = spheres.SizeOf(0);
  Place place = spheres.PlaceAt(0);
  for (std::size_t point = 1; whole && point < found.x.size(); ++point) {
    Sums all = others;
    place.x = found.x[point];
    all.Add(amplitudes, size, spheres.PhaseAt(place));
    Keep(found, point, all);
  }
  return whole;
}

bool AddOneByOne(const VolumeSpheres& spheres, const SizeAmplitudes& amplitudes, ShareOfSums share, TaskPool& pool,
                 VolumeFound& found) {
  Sums sums;
  std::size_t point = 1;
  return ForEachStanding(spheres, share, pool, [&](std::size_t sphere, const Standing& standing) {
    sums.Add(amplitudes, standing.size, standing.phase);
    for (; point < found.x.size() && found.x[point] <= static_cast<double>(sphere + 1); ++point)
      Keep(found, point, sums);
  });
}

bool LetWalk(const VolumeSpheres& spheres, const SizeAmplitudes& amplitudes, ShareOfSums share, TaskPool& pool,
             VolumeFound& found) {
  const std::size_t points = found.x.size();
  std::vector<std::vector<Sums>> slots(pool.Slots());
  std::vector<Sums> all(points);
  TaskList tasks = TasksOf(spheres.Count(), walkingPerTask, share);
  tasks.work = [&](std::size_t task, std::size_t slot, RunMonitor& monitor) {
    std::vector<Sums>& sums = slots[slot];
    sums.assign(points, {});
    const std::size_t first = task * walkingPerTask, end = std::min(first + walkingPerTask, spheres.Count());
    std::size_t steps = 0;
    for (std::size_t sphere = first; sphere < end; ++sphere) {
      const std::size_t size = spheres.SizeOf(sphere);
      if (!(amplitudes.radius[size] > 0)) continue;
      BrownianWalk walk = spheres.WalkOf(sphere, amplitudes.radius[size]);
      double time = 0;
      for (std::size_t point = 1; point < points; ++point) {
        walk.Go(found.x[point] - time);
        time = found.x[point];
        sums[point].Add(amplitudes, size, spheres.PhaseAt(walk.Here()));
        if (++steps % stepsBetweenLooks == 0 && !monitor.Report(steps, walkingPerTask * points)) return false;
      }
    }
    return monitor.Report(1, 1);
  };
  tasks.take = [&](std::size_t, std::size_t slot) {
    for (std::size_t point = 1; point < points; ++point) {
      const Sums& part = slots[slot][point];
      Sums& sum = all[point];
      sum.S1 = sum.S1 + part.S1;
      sum.S2 = sum.S2 + part.S2;
      sum.alonePerp += part.alonePerp;
      sum.alonePar += part.alonePar;
    }
    return true;
  };
  if (pool.Do(tasks) < tasks.count) return false;
  for (std::size_t point = 1; point < points; ++point) Keep(found, point, all[point]);
  return true;
}

}  // namespace

VolumeSpheres::VolumeSpheres(const VolumeRun& run, const CloudSamples& samples, double waveNumber)
    : count_(static_cast<std::size_t>(run.count)),
      seed_(run.seed),
      side_(run.side),
      alongX_(-waveNumber * std::sin(run.axis.angle)),
      alongZ_(waveNumber * (1 - std::cos(run.axis.angle))) {
  double sum = 0;
  for (int i = 1; i <= samples.Count(); ++i) {
    sum += samples.weight[static_cast<std::size_t>(i)];
    upTo_.push_back(sum);
  }
  upTo_.push_back(sum + samples.outside);
}

std::size_t VolumeSpheres::SizeOf(std::size_t sphere) const {
  if (upTo_.front() >= upTo_.back()) return 0;
  SphereRandom random(seed_, RandomUse::Size, sphere);
  const double drawn = random.Uniform() * upTo_.back();
  const auto size = std::ranges::upper_bound(upTo_, drawn) - upTo_.begin();
  return std::min(static_cast<std::size_t>(size), upTo_.size() - 1);
}

ComplexD VolumeSpheres::PhaseAt(const Place& place) const {
  const double phase = alongX_ * place.x + alongZ_ * place.z;
  return {std::cos(phase), std::sin(phase)};
}

bool Volume1(AxisVariable axis, const VolumeSpheres& spheres, const SizeAmplitudes& amplitudes, ShareOfSums share,
             TaskPool& pool, VolumeFound& found) {
  switch (axis) {
    case AxisVariable::Place:
      return MoveFirst(spheres, amplitudes, share, pool, found);
    case AxisVariable::Number:
      return AddOneByOne(spheres, amplitudes, share, pool, found);
    case AxisVariable::Time:
      return LetWalk(spheres, amplitudes, share, pool, found);
    default:
      return false;
  }
}

PhaseSums SumPhases(const VolumeSpheres& spheres, ShareOfSums share, TaskPool& pool) {
  PhaseSums sums;
  sums.sum.assign(spheres.Sizes(), {0, 0});
  sums.count.assign(spheres.Sizes(), 0);
  sums.whole = ForEachStanding(spheres, share, pool, [&](std::size_t, const Standing& standing) {
    sums.sum[standing.size] = sums.sum[standing.size] + standing.phase;
    sums.count[standing.size] += 1;
  });
  return sums;
}

double SumsWork(AxisVariable axis, const VolumeRun& run) {
  const double spheres = run.count;
  return axis == AxisVariable::Time ? stepWork * spheres * run.axis.points : standingWork * spheres;
}

}  // namespace lumivex
