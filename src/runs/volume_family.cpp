/// Runs of many spheres in a volume.

#include <algorithm>
#include <cmath>
#include <utility>

#include "runs/families.h"
#include "runs/run.h"
#include "runs/volume_sums.h"
#include "runs/work.h"
#include "solvers/functions/complex_algebra.h"

namespace lumivex {

namespace {

constexpr double perMetre = 1e-6;  // 1/m in 1/um

/// The points of an axis, first index 1. Of numbers of spheres, which are whole, those that fall together count once.
std::vector<double> PointsOf(AxisVariable axis, const AxisRun& run) {
  std::vector<double> x = {0};
  const double ratio = StepRatio(run);
  for (int point = 1; point <= run.points; ++point) {
    const double position = AxisPosition(run, ratio, point);
    const double value = axis == AxisVariable::Number ? std::nearbyint(position) : position;
    if (point == 1 || axis != AxisVariable::Number || value > x.back()) x.push_back(value);
  }
  return x;
}

VolumeFound Sized(std::vector<double> x) {
  VolumeFound found;
  const auto points = static_cast<int>(x.size()) - 1;
  found.S1.Resize(points);
  found.S2.Resize(points);
  found.alonePerp.assign(x.size(), 0.0);
  found.alonePar.assign(x.size(), 0.0);
  found.x = std::move(x);
  return found;
}

/// Whether particles of a sample are there and scatter.
bool Counts(const CloudSamples& samples, std::size_t sample) {
  return samples.weight[sample] > 0 && samples.radius[sample] > 0;
}

/// What the spheres of one setting are calculated with.
struct Volume {
  const RunRequest& request;
  const VolumeRun& run;
  TaskPool& pool;
  LastSphere& last;
  RunRequest oneByOne;  ///< the same without sizes: each is a setting of its own

  Volume(const RunRequest& asked, const VolumeRun& volume, TaskPool& tasks, Results& results)
      : request(asked), run(volume), pool(tasks), last(results.last), oneByOne(asked) {
    oneByOne.sizes = OneSize{};
  }
};

/// The samples about a setting as settings, those that count.
void AddSettings(const Setting& setting, const CloudSamples& samples, std::vector<Setting>& settings) {
  for (std::size_t i = 1; i < samples.radius.size(); ++i) {
    if (!Counts(samples, i)) continue;
    settings.push_back(setting);
    settings.back().radius = samples.radius[i];
    settings.back().x = SizeParameterOf(samples.radius[i], setting.indices.MediumInUse(), setting.lambda);
  }
}

/// Calculates spheres at the angle of the run; `keep` takes each in its order.
SettingsEnd Solve(const Volume& volume, std::vector<Setting> settings, ShareOfSums share,
                  std::function<void(std::size_t, SettingFound&&)> keep) {
  const SettingsPlan plan{volume.oneByOne,
                          std::move(settings),
                          AngleGrid::At(volume.run.axis.angle),
                          {1, 1},
                          false,
                          true,
                          std::move(keep),
                          {},
                          {},
                          share.before,
                          share.ofRun};
  return RunSettings(plan, volume.pool);
}

/// Means of the efficiencies over the sizes about a setting, as every graph of a cloud tells them.
void Tell(const Volume& volume, const Setting& setting, const CloudSums& sums) {
  const SettingFound means = sums.Means(1, false);
  TellSphere(means.sphere, volume.last);
  volume.last.samples = means.samples;
  TellSetting(setting, volume.last);
  TellAngle(volume.run.axis.angle, volume.last);
}

/// Amplitudes by size, those that count in the order in which they were solved.
class AmplitudesBySize {
 public:
  AmplitudesBySize(const CloudSamples& samples, std::size_t sizes) : samples_(samples) {
    all.radius.assign(sizes, 0.0);
    all.S1.assign(sizes, {0, 0});
    all.S2.assign(sizes, {0, 0});
    sums.Begin({1, 1}, false);
  }

  void Add(const SphereSolution& sphere) {
    while (!Counts(samples_, next_)) ++next_;
    all.radius[next_ - 1] = samples_.radius[next_];
    all.S1[next_ - 1] = sphere.S1.Value(1);
    all.S2[next_ - 1] = sphere.S2.Value(1);
    sums.Add(sphere, samples_.radius[next_], samples_.weight[next_]);
    ++next_;
  }

  SizeAmplitudes all;
  CloudSums sums;

 private:
  const CloudSamples& samples_;
  std::size_t next_ = 1;
};

/// Spheres of the same sizes at every point.
FamilyEnd RunOverSpheres(const Volume& volume, const Setting& setting, VolumeFound& found) {
  const CloudSamples samples = SamplesOf(volume.request.sizes, setting.radius);
  if (samples.failure != SizeFailure::None) return {false, RefusalOf(samples.failure)};
  const VolumeSpheres spheres(volume.run, samples, perMetre * setting.WaveNumber());
  AmplitudesBySize amplitudes(samples, spheres.Sizes());
  std::vector<Setting> settings;
  AddSettings(setting, samples, settings);
  const AxisVariable axis = volume.request.graph.axis;
  const double ofSums = SumsWork(axis, volume.run) / std::max(PairTermsOf(volume.request), 1.0);
  const SettingsEnd solved =
      Solve(volume, settings, {0, 1 - ofSums}, [&](std::size_t, SettingFound&& one) { amplitudes.Add(one.sphere); });
  if (solved.kept < settings.size() || settings.empty()) return {false, solved.refusal};
  if (!Volume1(axis, spheres, amplitudes.all, {1 - ofSums, ofSums}, volume.pool, found)) return {};
  Tell(volume, setting, amplitudes.sums);
  return {true, {}};
}

/// Settings that are held at once: sizes of many radii.
constexpr std::size_t mostSettings = 50000;

/// Spheres of each radius at the same places: what changes along the axis is the sphere, and not the speckle.
class OverRadii {
 public:
  OverRadii(const Volume& volume, const Setting& base, VolumeFound& found)
      : volume_(volume), base_(base), found_(found), points_(found.x.size() - 1), first_(SamplesAt(1)) {}

  FamilyEnd Run() {
    if (first_.failure != SizeFailure::None) return {false, RefusalOf(first_.failure)};
    const double ofSums = SumsWork(AxisVariable::Radius, volume_.run) / std::max(PairTermsOf(volume_.request), 1.0);
    const VolumeSpheres spheres(volume_.run, first_, perMetre * base_.WaveNumber());
    phases_ = SumPhases(spheres, {0, ofSums}, volume_.pool);
    if (!phases_.whole) return {};
    const std::size_t perChunk = std::max<std::size_t>(mostSettings / phases_.sum.size(), 1);
    for (std::size_t from = 1; from <= points_; from += perChunk) {
      const std::size_t end = std::min(from + perChunk, points_ + 1);
      const auto upTo = [&](std::size_t point) {
        return ofSums + (1 - ofSums) * static_cast<double>(point - 1) / static_cast<double>(points_);
      };
      Refusal refusal;
      if (!SolveChunk(from, end, {upTo(from), upTo(end) - upTo(from)}, refusal)) return {false, std::move(refusal)};
    }
    return {true, {}};
  }

 private:
  CloudSamples SamplesAt(std::size_t point) const { return SamplesOf(volume_.request.sizes, found_.x[point]); }
  Setting SettingAt(std::size_t point) const {
    return SettingAtPoint(volume_.request, AxisVariable::Radius, found_.x[point], base_).setting;
  }

  /// @return false after a Stop, or with a refusal.
  bool SolveChunk(std::size_t from, std::size_t end, ShareOfSums share, Refusal& refusal) {
    std::vector<Setting> settings;
    std::vector<CloudSamples> samples;
    std::vector<std::size_t> pointOf;  // by setting
    for (std::size_t point = from; point < end; ++point) {
      samples.push_back(SamplesAt(point));
      AddSettings(SettingAt(point), samples.back(), settings);
      pointOf.resize(settings.size(), point);
    }
    std::optional<AmplitudesBySize> amplitudes;
    const auto keep = [&](std::size_t index, SettingFound&& one) {
      const std::size_t point = pointOf[index];
      if (index == 0 || pointOf[index - 1] != point) amplitudes.emplace(samples[point - from], phases_.sum.size());
      amplitudes->Add(one.sphere);
      if (index + 1 == pointOf.size() || pointOf[index + 1] != point) Keep(point, *amplitudes);
    };
    SettingsEnd solved = Solve(volume_, std::move(settings), share, keep);
    refusal = std::move(solved.refusal);
    return !pointOf.empty() && solved.kept == pointOf.size();
  }

  void Keep(std::size_t point, const AmplitudesBySize& amplitudes) {
    ComplexD S1{0, 0}, S2{0, 0};
    for (std::size_t size = 0; size < phases_.sum.size(); ++size) {
      const ComplexD one1 = amplitudes.all.S1[size], one2 = amplitudes.all.S2[size];
      S1 = S1 + one1 * phases_.sum[size];
      S2 = S2 + one2 * phases_.sum[size];
      found_.alonePerp[point] += phases_.count[size] * SquaredModulus(one1);
      found_.alonePar[point] += phases_.count[size] * SquaredModulus(one2);
    }
    found_.S1.Set(static_cast<int>(point), S1.re, S1.im);
    found_.S2.Set(static_cast<int>(point), S2.re, S2.im);
    if (point == points_) Tell(volume_, SettingAt(point), amplitudes.sums);
  }

  const Volume& volume_;
  const Setting& base_;
  VolumeFound& found_;
  std::size_t points_;
  CloudSamples first_;
  PhaseSums phases_;
};

}  // namespace

Refusal BeyondVolume(const RunRequest& request) {
  const auto* run = std::get_if<VolumeRun>(&request.run);
  if (run == nullptr) return {};
  SettingResult at = SettingAt(request, request.light.lambda);
  if (!at.Good()) return at.refusal;
  if (request.graph.axis == AxisVariable::Radius)
    at = SettingAtPoint(request, AxisVariable::Radius, run->axis.xmax, at.setting);
  std::vector<Setting> largest;
  AddSettings(at.setting, SamplesOf(request.sizes, at.setting.radius), largest);
  for (const Setting& one : largest)
    if (Refusal beyond = BeyondLimits(request.method, one.x, one.mRe, one.mIm); !beyond.text.empty()) return beyond;
  return {};
}

FamilyEnd RunVolume(const RunRequest& request, const VolumeRun& run, TaskPool& pool, Results& results) {
  if (Refusal beyond = BeyondVolume(request); !beyond.text.empty()) return {false, std::move(beyond)};
  const SettingResult at = SettingAt(request, request.light.lambda);
  if (!at.Good()) return {false, at.refusal};
  const Volume volume(request, run, pool, results);
  VolumeFound found = Sized(PointsOf(request.graph.axis, run.axis));
  const bool radii = request.graph.axis == AxisVariable::Radius;
  FamilyEnd end = radii ? OverRadii(volume, at.setting, found).Run() : RunOverSpheres(volume, at.setting, found);
  if (end.found) results.found = std::move(found);
  return end;
}

}  // namespace lumivex
