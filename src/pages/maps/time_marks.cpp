#include "pages/maps/time_marks.h"

#include <array>
#include <cmath>
#include <optional>

#include "record/number_text.h"
#include "runs/settings.h"
#include "timedomain/ray_times.h"

namespace lumivex {

namespace {

/// Colours that stand out from a ramp over all hues: white and black, and pale shades, in turns.
const std::array waveColours = {RGB(255, 255, 255), RGB(255, 190, 255), RGB(190, 255, 255), RGB(255, 255, 150)};
const Colour rayColour = RGB(255, 255, 255), fallingColour = RGB(255, 140, 0);

/// Dots that have their values beside them are a tenth of the radius apart.
constexpr double betweenValues = 0.1;

struct RaysOfRun {
  RaySphere sphere;
  double mGroup = 1;
  double zero = 0;  ///< of the picture's times, fs
};

/// n - lambda dn/dlambda of the sphere; nothing where it has no index there.
std::optional<double> GroupIndex(const RunRequest& request, double lambda) {
  constexpr double part = 1e-3;
  const double h = part * lambda;
  const auto at = [&](double l) { return SettingAt(request, l); };
  const SettingResult below = at(lambda - h), middle = at(lambda), above = at(lambda + h);
  if (!below.Good() || !middle.Good() || !above.Good()) return std::nullopt;
  const double slope = (above.setting.indices.sphereN - below.setting.indices.sphereN) / (2 * h);
  return middle.setting.indices.sphereN - lambda * slope;
}

std::optional<RaysOfRun> RaysOf(const RunRequest& request, const PulsedLight& light) {
  const double lambda = light.pulse.wavelength;
  const SettingResult at = SettingAt(request, lambda);
  if (!at.Good() || !(at.setting.mRe > 0) || TraitsOf(request.method.method).layered) return std::nullopt;
  const double medium = at.setting.indices.MediumInUse();
  RaysOfRun rays{{at.setting.radius, medium, at.setting.mRe}, at.setting.mRe, 0};
  if (const auto group = GroupIndex(request, lambda)) rays.mGroup = *group / medium;
  if (light.fromCentre) rays.zero = 2 * at.setting.radius * medium / lightSpeed;
  return rays;
}

std::string ValuesAt(double angle, double time) {
  constexpr int digits = 5;
  return Significant(angle, digits) + "\u00B0 " + Significant(time, digits) + " fs";
}

void AddRays(const RaysOfRun& run, const TimePlotLook& look, std::vector<MapMarks>& marks) {
  for (const int side : {1, -1}) {
    if (!look.sides && side < 0) break;
    MapMarks dots;
    dots.colour = side > 0 ? rayColour : fallingColour;
    for (const TimedRay& ray : RayTimes(run.sphere, look.highestRay, look.step, run.mGroup)) {
      if (look.sides && ray.Side() != side) continue;
      const double time = ray.time - run.zero, tenths = ray.impact / betweenValues;
      dots.places.push_back({time, ray.angle});
      const bool told = look.values && std::fabs(tenths - std::round(tenths)) < 1e-6;
      dots.texts.push_back(told ? "p=" + std::to_string(ray.p) + " " + ValuesAt(ray.angle, time) : "");
    }
    if (!look.values) dots.texts.clear();
    if (!dots.places.empty()) marks.push_back(std::move(dots));
  }
}

void AddWaves(const RaysOfRun& run, const TimePlotLook& look, std::vector<MapMarks>& marks) {
  for (int p = 0; p <= look.highestWave; ++p) {
    MapMarks line;
    line.joined = true;
    line.colour = waveColours[static_cast<std::size_t>(p) % waveColours.size()];
    for (const TimePoint& corner : SurfaceWaveLine(run.sphere, p, look.surfaceIndex, look.halfTurns, run.mGroup)) {
      line.places.push_back({corner.time - run.zero, corner.angle});
      if (look.values)
        line.texts.push_back((line.places.size() == 1 ? "p=" + std::to_string(p) + " " : "") +
                             ValuesAt(corner.angle, corner.time - run.zero));
    }
    if (!line.places.empty()) marks.push_back(std::move(line));
  }
}

}  // namespace

std::vector<MapMarks> TimeMarksOf(const RunRequest& asked, const TimePlotLook& look) {
  std::vector<MapMarks> marks;
  const auto* map = std::get_if<AngleMapRun>(&asked.run);
  if (map == nullptr || !map->pulse || (!look.rays && !look.waves)) return marks;
  const auto run = RaysOf(asked, *map->pulse);
  if (!run) return marks;
  if (look.waves) AddWaves(*run, look, marks);
  if (look.rays) AddRays(*run, look, marks);
  return marks;
}

}  // namespace lumivex
