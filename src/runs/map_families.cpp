/// Runs over two quantities: Lee diagrams and maps.

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <span>
#include <utility>

#include "runs/families.h"
#include "runs/map_sums.h"
#include "runs/run.h"
#include "solvers/series/mie_coefficients.h"
#include "solvers/series/mie_efficiencies.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
constexpr int fineRowsTo90 = 9001;  // 0.01 degrees

/// Cells whose spheres share vector lanes in one task: whole groups of lanes, so that no neighbour changes.
constexpr std::size_t cellsPerTask = 64;

Refusal TooManyCells() {
  return {"Input error", "Increase the step size or reduce the maximum/minimum range"};
}

/// Moves a setting to a value of what is swept; another wavelength is another setting.
void Move(Setting& setting, const RunRequest& request, Swept quantity, double value) {
  OpticalIndices& indices = setting.indices;
  switch (quantity) {
    case Swept::SphereIndex:
      indices.sphereN = value;
      break;
    case Swept::SphereAbsorption:
      indices.sphereK = value;
      break;
    case Swept::MediumIndex:
      indices.medium = value;
      break;
    case Swept::Radius:
      setting.radius = value;
      break;
    case Swept::SizeParameter:
    case Swept::Wavelength:
    case Swept::Time:
      break;
  }
  setting.mRe = indices.RelativeRe();
  setting.mIm = indices.RelativeIm();
  const double medium = indices.MediumInUse();
  const bool typed = request.particle.sizeTyped && quantity != Swept::Radius;
  if (quantity == Swept::SizeParameter || typed) {
    setting.x = quantity == Swept::SizeParameter ? value : setting.x;
    setting.radius = setting.x * setting.lambda / (2 * pi * medium);
  } else {
    setting.x = SizeParameterOf(setting.radius, medium, setting.lambda);
  }
}

/// The columns of a map over angle: each at all wavelengths of the light.
class Columns {
 public:
  Columns(const RunRequest& request, const AngleMapRun& run) : request_(request), run_(run) {
    const auto& light = request.light.spectrum;
    if (run.columns.quantity == Swept::Wavelength) {
      for (int i = 0; i < run.columns.Count(); ++i) Add(run.columns.At(i) / 1000);
    } else if (light) {
      for (int i = 1; i <= light->Count(); ++i) Add(double{light->wavelength[static_cast<std::size_t>(i)]});
    } else {
      Add(request.light.lambda);
    }
  }

  /// Why a material has no index at one of the wavelengths.
  const Refusal& Failure() const { return failure_; }

  std::size_t PerColumn() const { return run_.columns.quantity == Swept::Wavelength ? 1 : bases_.size(); }
  std::size_t Count() const { return PerColumn() * static_cast<std::size_t>(run_.columns.Count()); }
  int ColumnOf(std::size_t setting) const { return static_cast<int>(setting / PerColumn()); }
  /// From 1.
  int WavelengthOf(std::size_t setting) const { return static_cast<int>(setting % PerColumn()) + 1; }

  Setting At(std::size_t place) const {
    if (run_.columns.quantity == Swept::Wavelength) return bases_[place];
    Setting setting = bases_[place % bases_.size()];
    Move(setting, request_, run_.columns.quantity, run_.columns.At(ColumnOf(place)));
    return setting;
  }

  /// The one of a column that stands for the others where only one can be told.
  Setting MiddleOf(int column) const {
    return At(static_cast<std::size_t>(column) * PerColumn() + (PerColumn() - 1) / 2);
  }

 private:
  void Add(double lambda) {
    SettingResult at = SettingAt(request_, lambda);
    if (!at.Good() && failure_.text.empty()) failure_ = std::move(at.refusal);
    bases_.push_back(at.setting);
  }

  const RunRequest& request_;
  const AngleMapRun& run_;
  std::vector<Setting> bases_;  ///< by wavelength
  Refusal failure_;
};

ColumnSums::Weight WeightOf(const RunRequest& request, const AngleMapRun& run, const Setting& setting, int wavelength) {
  ColumnSums::Weight weight;
  const double k = run.invWavelength ? setting.WaveNumber() : 1;
  weight.intensity = 1 / (k * k);
  if (!request.light.spectrum) return weight;
  const SpectrumOfLight& light = *request.light.spectrum;
  const auto i = static_cast<std::size_t>(wavelength);
  weight.intensity *= double{light.weight[i]};
  weight.red = light.red[i];
  weight.green = light.green[i];
  weight.blue = light.blue[i];
  return weight;
}

/// The share of the work that comes before each column, 0 to 1: large spheres take longer.
std::vector<double> ShareBeforeColumns(const RunRequest& request, const AngleMapRun& run) {
  std::vector<double> before = {0};
  for (const double work : WorkOfColumns(request, run)) before.push_back(before.back() + work);
  const double all = before.back();
  if (!(all > 0)) return {};
  for (double& share : before) share /= all;
  return before;
}

/// The cells of a map without angles, column by column.
struct CellSettings {
  const RunRequest& request;
  const EfficiencyMapRun& run;
  Setting base;

  std::size_t Rows() const { return static_cast<std::size_t>(run.rows.Count()); }
  std::size_t Count() const { return Rows() * static_cast<std::size_t>(run.columns.Count()); }
  Setting At(std::size_t cell) const {
    Setting setting = base;
    Move(setting, request, run.columns.quantity, run.columns.At(static_cast<int>(cell / Rows())));
    Move(setting, request, run.rows.quantity, run.rows.At(static_cast<int>(cell % Rows())));
    return setting;
  }
};

/// Where cells are written to, and how many columns are whole.
struct MapOfCells {
  MapFound found;
  std::atomic<int> whole = 0;
  LastSphere last;

  void Tell(std::size_t cell, RunProgress& progress) const {
    progress.column = static_cast<int>(cell) / found.rows;
    progress.row = static_cast<int>(cell) % found.rows;
    progress.map = &found;
    progress.columnsDone = whole.load(std::memory_order_acquire);
  }
  void Done(std::size_t cells) {
    whole.store(static_cast<int>(cells / static_cast<std::size_t>(found.rows)), std::memory_order_release);
  }
  void SetEfficiencies(std::size_t cell, double Qext, double Qsca) {
    // What a sphere without absorption leaves of the difference is rounding, which a picture would show as a pattern.
    constexpr double rounding = 1e-12;
    const double Qabs = Qext - Qsca;
    found.panels[0].value[cell] = static_cast<float>(Qext);
    found.panels[1].value[cell] = static_cast<float>(Qsca);
    found.panels[2].value[cell] = std::abs(Qabs) <= rounding * Qext ? 0.0F : static_cast<float>(Qabs);
  }
  void SetIntensities(std::size_t cell, double perpendicular, double parallel) {
    found.panels[0].value[cell] = static_cast<float>(perpendicular);
    found.panels[1].value[cell] = static_cast<float>(parallel);
  }
};

/// Mie spheres side by side in vector lanes.
Refusal SolveCellsInLanes(const CellSettings& cells, TaskPool& pool, MapOfCells& map) {
  const RunRequest& request = cells.request;
  const std::size_t count = cells.Count();
  // Series grow with x and with both parts of the index: if any sphere is beyond the limits, one at a corner is. To try
  // millions of them would take half a second, in which nobody looks for a Stop.
  for (const std::size_t cell : {std::size_t{0}, cells.Rows() - 1, count - cells.Rows(), count - 1}) {
    const Setting setting = cells.At(cell);
    if (Refusal beyond = BeyondLimits(request.method, setting.x, setting.mRe, setting.mIm); !beyond.text.empty())
      return beyond;
  }
  EfficiencyOptions options{request.method.divideBySize, request.method.classicStart};
  const bool intensities = request.graph.quantity == Quantity::Intensity;
  if (intensities) options.angle = cells.run.angle;
  TaskList tasks;
  tasks.count = (count + cellsPerTask - 1) / cellsPerTask;
  const auto cellsBefore = [count](std::size_t task) { return std::min(task * cellsPerTask, count); };
  tasks.work = [&](std::size_t task, std::size_t, RunMonitor& monitor) {
    const std::size_t first = cellsBefore(task), size = cellsBefore(task + 1) - first;
    std::array<std::array<double, cellsPerTask>, 11> lists;
    const auto list = [&](std::size_t i) { return std::span(lists[i]).first(size); };
    const auto amplitude = [&](std::size_t i) { return intensities ? list(i) : std::span<double>(); };
    for (std::size_t i = 0; i < size; ++i) {
      const Setting setting = cells.At(first + i);
      lists[0][i] = setting.x;
      lists[1][i] = setting.mRe;
      lists[2][i] = setting.mIm;
    }
    const EfficiencyLists found{list(3),      list(4),      list(5),      list(6),
                                amplitude(7), amplitude(8), amplitude(9), amplitude(10)};
    if (SolveEfficiencies({list(0), list(1), list(2)}, found, options, monitor) < size) return false;
    const auto square = [&](std::size_t re, std::size_t i) {
      return lists[re][i] * lists[re][i] + lists[re + 1][i] * lists[re + 1][i];
    };
    for (std::size_t i = 0; i < size; ++i) {
      if (intensities)
        map.SetIntensities(first + i, square(7, i), square(9, i));
      else
        map.SetEfficiencies(first + i, lists[3][i], lists[4][i]);
    }
    return true;
  };
  tasks.take = [&](std::size_t task, std::size_t) {
    map.Done(cellsBefore(task + 1));
    return true;
  };
  tasks.place = [&](std::size_t task, RunProgress& progress) {
    TellPlace(cells.At(cellsBefore(task)), progress);
    map.Tell(cellsBefore(task), progress);
  };
  pool.Do(tasks);
  return {};
}

/// Other methods, and clouds.
Refusal SolveCells(const CellSettings& cells, TaskPool& pool, MapOfCells& map) {
  const RunRequest& request = cells.request;
  SettingsPlan plan{request,
                    {cells.Count(), [&cells](std::size_t cell) { return cells.At(cell); }},
                    AngleGrid::At(cells.run.angle),
                    {1, 1},
                    false,
                    false,
                    {},
                    {}};
  plan.keep = [&](std::size_t cell, SettingFound&& at) {
    if (request.graph.quantity == Quantity::Intensity)
      map.SetIntensities(cell, at.sphere.S1.Intensity(1), at.sphere.S2.Intensity(1));
    else
      map.SetEfficiencies(cell, at.sphere.efficiencies.Qext, at.sphere.efficiencies.Qsca);
    TellSphere(at.sphere, map.last);
    map.last.samples = at.samples;
    map.Done(cell + 1);
  };
  plan.place = [&](std::size_t cell, RunProgress& progress) { map.Tell(cell, progress); };
  return RunSettings(plan, pool).refusal;
}

}  // namespace

SettingResult SettingOfColumn(const RunRequest& request, const AngleMapRun& run, int column, double lambda) {
  const double value = run.columns.At(column);
  if (run.columns.quantity == Swept::Wavelength) return SettingAt(request, value / 1000);
  SettingResult result = SettingAt(request, lambda);
  Move(result.setting, request, run.columns.quantity, value);
  return result;
}

SettingResult SettingOfCell(const RunRequest& request, const EfficiencyMapRun& run, int column, int row) {
  SettingResult result = SettingAt(request, request.light.lambda);
  Move(result.setting, request, run.columns.quantity, run.columns.At(column));
  Move(result.setting, request, run.rows.quantity, run.rows.At(row));
  return result;
}

double MapCells(const FamilyRun& run) {
  if (const auto* map = std::get_if<AngleMapRun>(&run))
    return (1.0 + map->rows.window.high - map->rows.window.low) * (map->columns.steps + 1.0);
  if (const auto* map = std::get_if<EfficiencyMapRun>(&run))
    return (map->columns.steps + 1.0) * (map->rows.steps + 1.0);
  return 0;
}

FamilyEnd Overplot_Map(const RunRequest& request, const AngleMapRun& run, TaskPool& pool, Results& results) {
  if (run.pulse) return RunImpulse(request, run, pool, results);
  if (MapCells(request.run) > mostMapCells) return {false, TooManyCells()};
  const Columns columns(request, run);
  if (!columns.Failure().text.empty()) return {false, columns.Failure()};
  const RowWindow window = run.rows.window;
  const bool spectrum = request.light.spectrum.has_value();
  MapFound found = EmptyMap(run.columns.Count(), window.high - window.low + 1, 2, spectrum);
  found.firstRow = window.low;
  std::atomic<int> whole = 0;
  ColumnSums sums(window, spectrum);
  SettingsPlan plan{request,
                    {columns.Count(), [&columns](std::size_t setting) { return columns.At(setting); }},
                    run.rows.Grid(),
                    window,
                    false,
                    false,
                    {},
                    {}};
  plan.keep = [&](std::size_t setting, SettingFound&& at) {
    const int wavelength = columns.WavelengthOf(setting);
    if (wavelength == 1) sums.Begin();
    sums.Add(at.sphere.S1, at.sphere.S2, WeightOf(request, run, columns.At(setting), wavelength), wavelength);
    if (static_cast<std::size_t>(wavelength) < columns.PerColumn()) return;
    const int column = columns.ColumnOf(setting);
    sums.Write(found, column);
    TellSphere(at.sphere, results.last);
    results.last.samples = at.samples;
    whole.store(column + 1, std::memory_order_release);
  };
  plan.place = [&](std::size_t setting, RunProgress& progress) {
    progress.column = columns.ColumnOf(setting);
    progress.wavelength = columns.WavelengthOf(setting);
    progress.map = &found;
    progress.columnsDone = whole.load(std::memory_order_acquire);
  };
  if (const std::vector<double> before = ShareBeforeColumns(request, run); !before.empty())
    plan.workBefore = [before, perColumn = columns.PerColumn()](std::size_t setting) {
      const std::size_t column = setting / perColumn;
      if (column + 1 >= before.size()) return 1.0;
      const double part = static_cast<double>(setting % perColumn) / static_cast<double>(perColumn);
      return before[column] + (before[column + 1] - before[column]) * part;
    };
  SettingsEnd end = RunSettings(plan, pool);
  found.done = whole;
  if (!end.refusal.text.empty() || found.done == 0) return {false, std::move(end.refusal)};
  TellSetting(columns.MiddleOf(found.done - 1), results.last);
  results.last.NANG = run.rows.NANG;
  results.found = std::move(found);
  return {true, {}};
}

FamilyEnd Overplot_Map(const RunRequest& request, const EfficiencyMapRun& run, TaskPool& pool, Results& results) {
  if (MapCells(request.run) > mostMapCells) return {false, TooManyCells()};
  const SettingResult at = SettingAt(request, request.light.lambda);
  if (!at.Good()) return {false, at.refusal};
  const CellSettings cells{request, run, at.setting};
  const bool intensities = request.graph.quantity == Quantity::Intensity;
  MapOfCells map;
  map.found = EmptyMap(run.columns.Count(), run.rows.Count(), intensities ? 2 : 3, false);
  const bool lanes = request.method.method == Method::Mie && !request.Cloud();
  Refusal refusal = lanes ? SolveCellsInLanes(cells, pool, map) : SolveCells(cells, pool, map);
  MapFound& found = map.found;
  found.done = map.whole;
  if (!refusal.text.empty() || found.done == 0) return {false, std::move(refusal)};
  // Of a column that was not finished nothing is told.
  for (MapPanel& panel : found.panels)
    std::fill(panel.value.begin() + static_cast<std::ptrdiff_t>(found.At(found.done, 0)), panel.value.end(), 0.0F);
  const Setting last = cells.At(found.At(found.done, 0) - 1);
  results.last = map.last;
  TellSetting(last, results.last);
  if (lanes) results.last.NSTOP = NStopEstimate(last.x);
  if (intensities) {
    const AngleGrid grid(fineRowsTo90);
    results.last.NANG = fineRowsTo90;
    results.last.selectedRow =
        std::clamp(static_cast<int>(std::nearbyint(run.angle / grid.DANG)) + 1, 1, grid.RowCount());
  } else {
    const std::size_t cell = found.At(found.done, 0) - 1;
    results.last.efficiencies.Qext = double{found.panels[0].value[cell]};
    results.last.efficiencies.Qsca = double{found.panels[1].value[cell]};
  }
  results.found = std::move(found);
  return {true, {}};
}

}  // namespace lumivex
