/// The rainbows of a flattened drop along the clock.

#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

#include "runs/families.h"
#include "runs/further_methods.h"

namespace lumivex {

namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double none = std::numeric_limits<double>::quiet_NaN();

bool IsSelected(const MethodOptions& options, int p) {
  const auto i = static_cast<std::size_t>(p);
  return i < options.rays.size() && options.rays[i] != 0;
}

}  // namespace

std::vector<std::array<double, 2>> BowsOfSectors(const Results& results, int sectors) {
  constexpr int primary = 2, secondary = 3;
  std::vector<std::array<double, 2>> bows(static_cast<std::size_t>(sectors), {none, none});
  const MethodOptions& method = results.asked.method;
  const auto shape = ShapeOfDrop(method.drop, results.last.radius);
  if (method.method != Method::Burgeroid || !shape) return bows;
  const DropLight light(method.drop.elevation);
  for (int sector = 0; sector < sectors; ++sector) {
    const double clock = (sector + 0.5) / sectors * std::numbers::pi;
    for (const int p : {secondary, primary}) {
      if (!IsSelected(method, p)) continue;
      const auto bow = FindDropBow(*shape, results.last.relativeRe, light, p, clock);
      if (bow) bows[static_cast<std::size_t>(sector)][p == primary ? 1 : 0] = bow->angle / degree;
    }
  }
  return bows;
}

Refusal SolveBows(const RunRequest& request, const Setting& setting, TaskPool& pool, AxisFound& found) {
  SphereAsked asked{setting.x, setting.mRe, setting.mIm, {}, {}, nullptr};
  AskForSphere(request.particle, setting, setting.radius, asked);
  if (Refusal beyond = BeyondDrops(request.method, asked); !beyond.text.empty()) return beyond;
  bool any = false;
  for (int p = lowestBow; p <= highestBow; ++p) any = any || IsSelected(request.method, p);
  if (!any) return NoRays();
  const DropShape shape = *ShapeOfDrop(request.method.drop, setting.radius);
  const DropLight light(request.method.drop.elevation);
  for (auto& bow : found.bows) bow.assign(found.x.size(), none);
  TaskList tasks;
  tasks.count = found.x.size() - 1;
  tasks.work = [&](std::size_t task, std::size_t, RunMonitor& monitor) {
    for (int p = lowestBow; p <= highestBow; ++p) {
      if (!monitor.Report(task, tasks.count)) return false;
      if (!IsSelected(request.method, p)) continue;
      const auto bow = FindDropBow(shape, setting.mRe, light, p, found.x[task + 1] * degree);
      if (bow) found.bows[static_cast<std::size_t>(p - lowestBow)][task + 1] = bow->angle / degree;
    }
    return true;
  };
  tasks.take = [](std::size_t, std::size_t) { return true; };
  tasks.place = [](std::size_t task, RunProgress& progress) { progress.point = static_cast<int>(task) + 1; };
  found.done = static_cast<int>(pool.Do(tasks));
  for (auto& bow : found.bows)
    for (std::size_t i = static_cast<std::size_t>(found.done) + 1; i < bow.size(); ++i) bow[i] = none;
  return {};
}

}  // namespace lumivex
