/// Rays of flattened drops, counted by angle.

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "runs/further_methods.h"
#include "runs/watched.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
constexpr double mmPerRadius = 2e-3;  // of a drop's size, by um
constexpr int skySectors = 72;        // of two degrees and a half

Refusal DropRefusal(std::string text, InputAtFault at = InputAtFault::Size) {
  return {"Flattened drops", std::move(text), at};
}

DropMaterial MaterialOf(const SphereAsked& asked) {
  return {asked.mRe, 2 * asked.x * asked.mIm};
}

/// Rays of one drop, taken apart into nets that each go over the whole wave front: so many of them that were traced
/// before a Stop are a fair sample of all.
class DropCount {
 public:
  DropCount(const MethodOptions& options, const SphereAsked& asked)
      : orders_(options.rays),
        shape_(*ShapeOfDrop(options.drop, asked.radius)),
        material_(MaterialOf(asked)),
        light_(options.drop.elevation),
        window_(WindowOf(asked)),
        x_(asked.x),
        side_(static_cast<int>(std::ceil(std::sqrt(options.drop.rays)))) {
    constexpr double raysPerNet = 1e5, degree = pi / 180;
    constexpr int leastNets = 64;
    nets_ = std::min(std::max(static_cast<int>(options.drop.rays / raysPerNet), leastNets), side_);
    rows_.first = asked.grid.Angle(window_.low);
    rows_.step = asked.grid.NANG > 1 ? asked.grid.DANG : degree;
    rows_.count = window_.high - window_.low + 1;
    rows_.clock = options.drop.clock;
    rows_.clockHalfWidth = options.drop.clockHalfWidth;
    rows_.sectors = options.drop.sky ? skySectors : 0;
  }

  std::size_t Nets() const { return static_cast<std::size_t>(nets_); }

  /// Traces the rays of one net: every so many lines of the whole.
  /// @return false after a Stop.
  bool Trace(std::size_t net, DropPower& power, RunMonitor& monitor) const {
    power = {};
    Watched watched(monitor);
    for (int line = static_cast<int>(net); line < side_ && watched.goesOn; line += nets_)
      AddDropRays(shape_, material_, light_, orders_, side_, line, line + 1, rows_, power, watched);
    return watched.goesOn;
  }

  /// Adds a net, in the order of their numbers.
  void Take(const DropPower& power) {
    const auto add = [](const std::vector<double>& from, std::vector<double>& to) {
      to.resize(from.size());
      for (std::size_t i = 0; i < from.size(); ++i) to[i] += from[i];
    };
    add(power.perpendicular, sum_.perpendicular);
    add(power.parallel, sum_.parallel);
    add(power.sky, sum_.sky);
    sum_.allPerpendicular += power.allPerpendicular;
    sum_.allParallel += power.allParallel;
    for (int line = taken_; line < side_; line += nets_) ++lines_;
    ++taken_;
  }

  /// The amplitudes of the nets taken.
  void Fill(SphereSolution& solution) const {
    const double lines = side_;
    solution.drop = DropNumbers{shape_.AxisRatio(), lines * lines, lines * lines_};
    if (lines_ == 0) return;
    const double share = lines / lines_, square = x_ * x_ * share;
    for (int row = 1; row <= rows_.count; ++row) {
      const auto i = static_cast<std::size_t>(row - 1);
      const double perSteradian = square / rows_.SolidAngle(row);
      solution.S1.Set(window_.low + row - 1, std::sqrt(sum_.perpendicular[i] * perSteradian), 0);
      solution.S2.Set(window_.low + row - 1, std::sqrt(sum_.parallel[i] * perSteradian), 0);
    }
    solution.rows = {{window_.low, window_.high}, {}};
    solution.drop->perpendicular = sum_.allPerpendicular * share / pi;
    solution.drop->parallel = sum_.allParallel * share / pi;
    DropRows sector = rows_;
    sector.clockHalfWidth = rows_.sectors > 0 ? pi / rows_.sectors : 0;  // both sides of the bow
    solution.sky.reserve(sum_.sky.size());
    for (std::size_t i = 0; i < sum_.sky.size(); ++i) {
      const int row = static_cast<int>(i % static_cast<std::size_t>(rows_.count)) + 1;
      solution.sky.push_back(static_cast<float>(sum_.sky[i] * square / sector.SolidAngle(row)));
    }
  }

 private:
  std::vector<int> orders_;
  DropShape shape_;
  DropMaterial material_;
  DropLight light_;
  RowWindow window_;
  double x_;
  int side_, nets_ = 1, taken_ = 0, lines_ = 0;
  DropRows rows_;
  DropPower sum_;
};

}  // namespace

std::optional<DropShape> ShapeOfDrop(const DropOptions& options, double radius) {
  const double mm = mmPerRadius * radius;
  if (!(mm > 0 && mm <= largestDropMm)) return std::nullopt;
  if (options.form == DropForm::Spheroid && options.axisRatio) return DropShape::Spheroid(*options.axisRatio);
  return options.form == DropForm::Burgeroid ? DropShape::Burgeroid(mm) : DropShape::Spheroid(AxisRatioOfSize(mm));
}

Refusal BeyondDrops(const MethodOptions& options, const SphereAsked& asked) {
  if (std::ranges::none_of(options.rays, [](int p) { return p != 0; })) return NoRays();
  if (!(options.drop.rays >= 1)) return NoRays();
  if (!(asked.mRe > 1))
    return DropRefusal("Flattened drops need a refractive index greater than that of the medium", InputAtFault::None);
  if (asked.x < leastSizeOfRays)
    return DropRefusal("Flattened drops need a larger size: the size parameter x must be at least 10");
  const auto shape = ShapeOfDrop(options.drop, asked.radius);
  if (!shape) return DropRefusal("Drops are not larger than 6 mm: the radius must not be greater than 3000 \u00B5m");
  if (shape->IsConcave()) return DropRefusal("A drop of this size is hollow below: its rays are not traced");
  return {};
}

SphereSolution NonSpherical(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  SphereSolution solution = EmptySolution(asked);
  solution.refusal = BeyondDrops(options, asked);
  if (solution.Refused()) return solution;
  DropCount count(options, asked);
  DropPower power;
  for (std::size_t net = 0; net < count.Nets(); ++net) {
    if (!count.Trace(net, power, monitor)) {
      solution.finished = false;
      return solution;
    }
    count.Take(power);
  }
  count.Fill(solution);
  return solution;
}

SphereSolution NonSphericalInParts(const MethodOptions& options, const SphereAsked& asked, TaskPool& pool) {
  SphereSolution solution = EmptySolution(asked);
  solution.refusal = BeyondDrops(options, asked);
  if (solution.Refused()) return solution;
  DropCount count(options, asked);
  std::vector<DropPower> slots(pool.Slots());
  TaskList tasks;
  tasks.count = count.Nets();
  tasks.work = [&](std::size_t net, std::size_t slot, RunMonitor& monitor) {
    return count.Trace(net, slots[slot], monitor);
  };
  tasks.take = [&](std::size_t, std::size_t slot) {
    count.Take(slots[slot]);
    return true;
  };
  solution.finished = pool.Do(tasks) == tasks.count;
  count.Fill(solution);
  return solution;
}

}  // namespace lumivex
