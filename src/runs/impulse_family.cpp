/// Runs in the light of a pulse: amplitudes at the wavelengths of its band, transformed into what arrives with time.

#include <algorithm>
#include <cmath>
#include <vector>

#include "runs/families.h"
#include "runs/map_sums.h"
#include "runs/pulse_band.h"
#include "runs/run.h"
#include "timedomain/response_samples.h"

namespace lumivex {

namespace {

/// Amplitudes of one block of rows at all wavelengths: 256 MB as pairs of double precision. They are kept in single
/// precision, as the cells are: its rounding, a part in 1e8 of each wavelength, leaves 1e-17 of the strongest light.
constexpr double mostNumbersOfBlock = 32e6;
constexpr std::size_t numbersOfRow = 4;  // both parts of both amplitudes
constexpr int rowsOfTask = 8;

/// The amplitudes of a cloud are moduli: what its spheres send has no time.
Refusal OneSphereOnly() {
  return {"Input error", "This graph type is available only for monodisperse calculations"};
}

/// Amplitudes by wavelength and row: of each wavelength the real parts of S1 of all rows, its imaginary parts, S2.
class BlockOfRows {
 public:
  BlockOfRows(RowWindow rows, std::size_t bands)
      : rows_(rows), count_(static_cast<std::size_t>(rows.high - rows.low + 1)) {
    numbers_.resize(numbersOfRow * count_ * bands);
  }

  RowWindow Rows() const { return rows_; }

  void Take(std::size_t band, const SphereSolution& sphere) {
    float* to = numbers_.data() + numbersOfRow * count_ * band;
    for (const AmplitudeTable* S : {&sphere.S1, &sphere.S2})
      for (const auto part : {S->RealParts(), S->ImaginaryParts()}) {
        const auto wanted = part.subspan(static_cast<std::size_t>(rows_.low), count_);
        std::ranges::transform(wanted, to, [](double value) { return static_cast<float>(value); });
        to += count_;
      }
  }

  /// Gathers the numbers of some neighbouring rows, each in one piece: of a row the four lists of the bands.
  void Gather(std::size_t first, std::size_t rows, std::size_t bands, std::vector<float>& into) const {
    into.resize(rows * numbersOfRow * bands);
    for (std::size_t band = 0; band < bands; ++band)
      for (std::size_t list = 0; list < numbersOfRow; ++list) {
        const float* from = numbers_.data() + (numbersOfRow * band + list) * count_ + first;
        for (std::size_t row = 0; row < rows; ++row) into[(row * numbersOfRow + list) * bands + band] = from[row];
      }
  }

 private:
  RowWindow rows_;
  std::size_t count_;
  std::vector<float> numbers_;
};

/// The rows of a picture in blocks, the first ones first.
std::vector<RowWindow> BlocksOf(RowWindow window, std::size_t bands, int mostRows) {
  const double fit = mostNumbersOfBlock / static_cast<double>(numbersOfRow * bands);
  const int rows = std::clamp(static_cast<int>(fit), 1, mostRows);
  std::vector<RowWindow> blocks;
  for (int low = window.low; low <= window.high; low += rows)
    blocks.push_back({low, std::min(low + rows - 1, window.high)});
  return blocks;
}

/// The picture of angle and time on its way.
struct TimeMap {
  const RunRequest& request;
  const AngleMapRun& run;
  const PulseBand& band;
  const ResponseSamples& samples;
  TaskPool& pool;
  MapFound found;
  int rowsDone = 0;
  Results& results;

  /// Of the work of a block the part that the sums are; the transforms are the rest.
  double ShareOfSums(int rows) const {
    // Seconds of one thread for a term of a row, for one of its coefficients, and for a step of a transform.
    constexpr double ofRow = 2e-10, ofTerm = 2e-8, ofStep = 2.5e-9;
    double terms = 0;
    for (const Setting& setting : band.settings) terms += setting.x + 2;
    const double length = samples.Length();
    const double sums = terms * (ofRow * rows + ofTerm);
    const double transforms =
        2.0 * rows * static_cast<double>(samples.Transforms()) * length * std::log2(length) * ofStep;
    return sums / (sums + transforms);
  }

  /// @return whether the whole block was done.
  bool Do(RowWindow rows, Refusal& refusal) {
    const double all = run.rows.window.high - run.rows.window.low + 1;
    const double before = rowsDone / all, share = (rows.high - rows.low + 1) / all;
    const double sums = ShareOfSums(rows.high - rows.low + 1);
    BlockOfRows block(rows, band.Count());
    refusal = Sum(block, before, share * sums);
    if (!refusal.text.empty() || pool.Stopped() || pool.Overflowed()) return false;
    if (!Transform(block, before + share * sums, share * (1 - sums))) return false;
    rowsDone += rows.high - rows.low + 1;
    return true;
  }

 private:
  Refusal Sum(BlockOfRows& block, double before, double share) {
    SettingsPlan plan{request, SettingList(band.settings), run.rows.Grid(), block.Rows(), false, false, {}, {}};
    plan.keep = [&](std::size_t place, SettingFound&& at) {
      block.Take(place, at.sphere);
      if (place == band.MiddlePlace()) TellSphere(at.sphere, results.last);
    };
    plan.place = [this](std::size_t, RunProgress& progress) { Tell(progress); };
    const std::vector<double> work = band.WorkBefore();
    plan.workBefore = [&work](std::size_t setting) { return work[std::min(setting, work.size() - 1)]; };
    plan.shareBefore = before;
    plan.shareOfRun = share;
    return RunSettings(plan, pool).refusal;
  }

  bool Transform(const BlockOfRows& block, double before, double share) {
    const RowWindow rows = block.Rows();
    const auto count = static_cast<std::size_t>(rows.high - rows.low + 1), bands = band.Count();
    struct Slot {
      std::vector<float> numbers;
      std::vector<double> intensities;
      ResponseSamples::Scratch scratch;
    };
    std::vector<Slot> slots(pool.Slots());
    TaskList tasks;
    tasks.count = (count + rowsOfTask - 1) / rowsOfTask;
    tasks.shareBefore = before;
    tasks.shareOfRun = share;
    tasks.work = [&](std::size_t task, std::size_t slotIndex, RunMonitor& monitor) {
      Slot& slot = slots[slotIndex];
      const std::size_t first = task * rowsOfTask, size = std::min<std::size_t>(rowsOfTask, count - first);
      block.Gather(first, size, bands, slot.numbers);
      const auto columns = static_cast<std::size_t>(found.columns);
      slot.intensities.resize(rowsOfTask * columns);
      for (std::size_t panel = 0; panel < 2; ++panel) {
        for (std::size_t row = 0; row < size; ++row) {
          const float* real = slot.numbers.data() + (numbersOfRow * row + 2 * panel) * bands;
          const std::span of(slot.intensities.data() + row * columns, columns);
          samples.Intensities({real, bands}, {real + bands, bands}, of, slot.scratch);
          if (!monitor.Report(panel * size + row + 1, 2 * size)) return false;
        }
        Write(panel, rows.low - run.rows.window.low + static_cast<int>(first), size, slot.intensities);
      }
      return true;
    };
    tasks.take = [](std::size_t, std::size_t) { return true; };
    tasks.place = [&](std::size_t, RunProgress& progress) {
      TellPlace(band.middle, progress);
      Tell(progress);
    };
    return pool.Do(tasks) == tasks.count;
  }

  /// Writes neighbouring rows side by side: cells lie column by column. Rows beyond those that are done are in the
  /// hands of this block's tasks.
  void Write(std::size_t panel, int first, std::size_t rows, const std::vector<double>& intensities) {
    const auto columns = static_cast<std::size_t>(found.columns);
    float* cell = found.panels[panel].value.data() + found.At(0, first);
    for (std::size_t column = 0; column < columns; ++column) {
      for (std::size_t row = 0; row < rows; ++row) cell[row] = static_cast<float>(intensities[row * columns + column]);
      cell += found.rows;
    }
  }

  void Tell(RunProgress& progress) const {
    progress.row = rowsDone;
    if (rowsDone == 0) return;
    progress.map = &found;
    progress.columnsDone = found.columns;
    progress.rowsDone = rowsDone;
  }
};

/// The response of a list of amplitudes of the band, at the samples of a clock.
struct AnswerOf {
  const PulseBand& band;
  const ResponseClock& clock;
  ImpulseResponse response{band.pulse};
  ImpulseResponse::Scratch scratch;
  std::vector<double> real, imag;

  void Transform(const std::vector<double>& re, const std::vector<double>& im) {
    real.resize(static_cast<std::size_t>(clock.length));
    imag.resize(real.size());
    response.Respond(re, im, real, imag, scratch);
  }
  ComplexD At(double time) const {
    const auto j = static_cast<std::size_t>(clock.SampleAt(time));
    return {real[j], imag[j]};
  }
};

/// Amplitudes and efficiencies of the band, by place.
struct BandValues {
  explicit BandValues(std::size_t count) {
    for (auto* list : {&S1Re, &S1Im, &S2Re, &S2Im, &Qext, &Qsca}) list->assign(count, 0.0);
  }
  std::vector<double> S1Re, S1Im, S2Re, S2Im, Qext, Qsca;
};

Refusal SolveBand(const RunRequest& request, const PulseBand& band, double angle, TaskPool& pool, BandValues& values,
                  LastSphere& last) {
  SettingsPlan plan{request, SettingList(band.settings), AngleGrid::At(angle), {1, 1}, false, false, {}, {}};
  plan.keep = [&](std::size_t i, SettingFound&& at) {
    values.S1Re[i] = at.sphere.S1.Re(1);
    values.S1Im[i] = at.sphere.S1.Im(1);
    values.S2Re[i] = at.sphere.S2.Re(1);
    values.S2Im[i] = at.sphere.S2.Im(1);
    values.Qext[i] = at.sphere.efficiencies.Qext;
    values.Qsca[i] = at.sphere.efficiencies.Qsca;
    if (i != band.MiddlePlace()) return;
    TellSphere(at.sphere, last);
    last.samples = at.samples;
  };
  plan.place = [](std::size_t i, RunProgress& progress) { progress.point = static_cast<int>(i) + 1; };
  const std::vector<double> work = band.WorkBefore();
  plan.workBefore = [&work](std::size_t setting) { return work[std::min(setting, work.size() - 1)]; };
  return RunSettings(plan, pool).refusal;
}

/// A time (fs) as it is to be read: the last digits of a sum of steps tell nothing.
double WithoutRounding(double time) {
  constexpr double finest = 1e9;
  return std::nearbyint(time * finest) / finest;
}

/// Points of time with everything else that the points of an axis have.
AxisFound PointsOfTime(const AxisRun& run, const Setting& middle) {
  AxisFound found;
  const auto size = static_cast<std::size_t>(run.points) + 1;
  for (auto* list : {&found.x, &found.Qext, &found.Qsca, &found.Qback, &found.g, &found.Cext, &found.Csca,
                     &found.powerPerp, &found.powerPar})
    list->assign(size, 0.0);
  found.waveNumber.assign(size, middle.WaveNumber());
  found.radius.assign(size, middle.radius);
  found.size.assign(size, middle.x);
  for (int point = 1; point <= run.points; ++point)
    found.x[static_cast<std::size_t>(point)] = WithoutRounding(run.xmin + (point - 1) * run.step);
  found.S1.Resize(run.points);
  found.S2.Resize(run.points);
  found.done = run.points;
  return found;
}

void FillFields(AnswerOf& answer, const BandValues& values, AxisFound& found) {
  answer.Transform(values.S1Re, values.S1Im);
  for (int point = 1; point <= found.done; ++point) {
    const ComplexD field = answer.At(found.x[static_cast<std::size_t>(point)]);
    found.S1.Set(point, field.re, field.im);
  }
  answer.Transform(values.S2Re, values.S2Im);
  for (int point = 1; point <= found.done; ++point) {
    const ComplexD field = answer.At(found.x[static_cast<std::size_t>(point)]);
    found.S2.Set(point, field.re, field.im);
  }
}

/// Efficiencies have no phase: their answer is the same before and after the pulse.
void FillEfficiencies(AnswerOf& answer, const BandValues& values, AxisFound& found) {
  const std::vector<double> none(values.Qext.size(), 0.0);
  std::vector<double> Qabs = values.Qext;
  for (std::size_t i = 0; i < Qabs.size(); ++i) Qabs[i] -= values.Qsca[i];
  found.Qabs.assign(found.x.size(), 0.0);
  const auto fill = [&](const std::vector<double>& Q, std::vector<double>& into) {
    answer.Transform(Q, none);
    for (int point = 1; point <= found.done; ++point) {
      const auto i = static_cast<std::size_t>(point);
      const ComplexD field = answer.At(found.x[i]);
      into[i] = field.re * field.re + field.im * field.im;
    }
  };
  fill(values.Qext, found.Qext);
  fill(values.Qsca, found.Qsca);
  fill(Qabs, found.Qabs);
}

}  // namespace

FamilyEnd RunImpulse(const RunRequest& request, const AngleMapRun& run, TaskPool& pool, Results& results,
                     int mostRowsOfBlock) {
  if (request.Cloud()) return {false, OneSphereOnly()};
  if (MapCells(request.run) > mostTimeCells)
    return {false, {"Input error", "Increase the step size or reduce the maximum/minimum range"}};
  const PulseBand band = BandOf(request, *run.pulse);
  if (!band.Good()) return {false, band.refusal};
  const ResponseClock clock = ClockOf(*run.pulse, band.middle.radius, band.middle.indices.MediumInUse());
  std::vector<std::int32_t> columns;
  for (int column = 0; column < run.columns.Count(); ++column)
    columns.push_back(clock.SampleAt(run.columns.At(column)));
  const ResponseSamples samples(band.pulse, columns);
  const RowWindow window = run.rows.window;
  TimeMap map{request, run,    band,
              samples, pool,   EmptyMap(run.columns.Count(), window.high - window.low + 1, 2, false),
              0,       results};
  map.found.firstRow = window.low;
  Refusal refusal;
  for (const RowWindow rows : BlocksOf(window, band.Count(), mostRowsOfBlock))
    if (!map.Do(rows, refusal)) break;
  if (!refusal.text.empty() || map.rowsDone == 0) return {false, std::move(refusal)};
  MapFound& found = map.found;
  if (map.rowsDone < found.rows) found = FirstRows(found, map.rowsDone);
  found.done = found.columns;
  TellSetting(band.middle, results.last);
  results.last.NANG = run.rows.NANG;
  results.found = std::move(found);
  return {true, {}};
}

FamilyEnd RunPulseAnswer(const RunRequest& request, const AxisRun& run, TaskPool& pool, Results& results) {
  const bool efficiencies = request.graph.quantity == Quantity::Efficiencies;
  if (!efficiencies && request.Cloud()) return {false, OneSphereOnly()};
  const PulseBand band = BandOf(request, *run.pulse);
  if (!band.Good()) return {false, band.refusal};
  const double medium = band.middle.indices.MediumInUse();
  // Times of efficiencies are counted from the pulse.
  const PulsedLight light{run.pulse->pulse, efficiencies || run.pulse->fromCentre};
  const ResponseClock clock = ClockOf(light, band.middle.radius, medium);
  BandValues values(band.Count());
  Refusal refusal = SolveBand(request, band, run.angle, pool, values, results.last);
  // A part of the band is another pulse.
  if (!refusal.text.empty() || pool.Stopped() || pool.Overflowed()) return {false, std::move(refusal)};
  AxisFound found = PointsOfTime(run, band.middle);
  AnswerOf answer{band, clock, ImpulseResponse(band.pulse), {}, {}, {}};
  if (efficiencies)
    FillEfficiencies(answer, values, found);
  else
    FillFields(answer, values, found);
  TellSetting(band.middle, results.last);
  if (!efficiencies) TellAngle(run.angle, results.last);
  results.found = std::move(found);
  return {true, {}};
}

}  // namespace lumivex
