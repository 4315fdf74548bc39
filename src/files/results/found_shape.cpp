#include <algorithm>
#include <array>
#include <cmath>

#include "files/results/own_block.h"
#include "runs/curves.h"
#include "solvers/series/mie_coefficients.h"

namespace lumivex {

namespace {

std::size_t Size(int last) {
  return static_cast<std::size_t>(last) + 1;
}

bool SameSizes(std::initializer_list<const std::vector<double>*> lists, std::size_t size) {
  return std::ranges::all_of(lists, [&](const auto* list) { return list->size() == size; });
}

bool Fit(const PartialWaves& waves) {
  return !waves.aRe.empty() && SameSizes({&waves.aIm, &waves.bRe, &waves.bIm}, waves.aRe.size());
}

bool Fit(const HuygensWave& w) {
  return w.p >= 0 && SameSizes({&w.deviation, &w.amplitudePerpendicular, &w.amplitudeParallel, &w.phasePerpendicular,
                                &w.phaseParallel, &w.exitX, &w.exitY, &w.waveX, &w.waveY},
                               w.impact.size());
}

bool Within(RowWindow window, int last) {
  return window.high < window.low || (window.low >= 1 && window.high <= last);
}

struct Fits {
  const Results& results;

  bool operator()(const AngleFound& found) const {
    const AngleRows& rows = *RowsOf(results.asked.run);
    // Averages and the disc of the sun look beyond the last row.
    constexpr int spare = 100;
    const int count = found.S1.Rows(), whole = 2 * rows.NANG - 1;
    const auto second = [&](const AmplitudeTable& table) { return table.Rows() == 0 || table.Rows() >= whole; };
    const bool cross = found.crossRe.empty() || found.crossRe.size() >= Size(rows.window.high);
    return count >= whole && count <= whole + spare && found.S2.Rows() == count && second(found.S1b) &&
           found.S2b.Rows() == found.S1b.Rows() && cross && found.crossIm.size() == found.crossRe.size() &&
           Within(found.rows.forward, count) && Within(found.rows.mirrored, count) && Fit(found.waves) &&
           std::ranges::all_of(found.wavefronts, [](const HuygensWave& wave) { return Fit(wave); });
  }
  bool operator()(const SpectrumFound& found) const {
    const AngleRows& rows = *RowsOf(results.asked.run);
    const int count = results.asked.Wavelengths();
    const auto values =
        static_cast<std::size_t>(rows.window.high - rows.window.low + 1) * static_cast<std::size_t>(found.done);
    return found.done >= 1 && found.done <= count && SameSizes({&found.perpendicular, &found.parallel}, values) &&
           found.waveNumber.size() == Size(count) && found.S1.Rows() >= rows.window.high &&
           found.S2.Rows() == found.S1.Rows();
  }
  bool operator()(const AxisFound& found) const {
    const int points = std::get<AxisRun>(results.asked.run).points;
    const Quantity quantity = results.asked.graph.quantity;
    const bool bows = quantity == Quantity::BowAngle;
    const bool amplitudes = !results.asked.graph.OfEfficiencies() && quantity != Quantity::Power && !bows;
    const auto fitsBow = [&](const std::vector<double>& bow) { return bow.size() == (bows ? Size(points) : 0); };
    const bool cross = found.crossRe.empty() || found.crossRe.size() == Size(points);
    return std::ranges::all_of(found.bows, fitsBow) && found.done >= 0 && found.done <= points &&
           found.S1.Rows() == found.S2.Rows() && (amplitudes ? found.S1.Rows() == points : found.S1.Rows() <= points) &&
           cross && found.crossIm.size() == found.crossRe.size() &&
           (results.asked.graph.family == Family::PulseAnswer || found.Qabs.empty()) &&
           (found.Qabs.empty() || found.Qabs.size() == Size(points)) &&
           SameSizes({&found.x, &found.waveNumber, &found.radius, &found.size, &found.Qext, &found.Qsca, &found.Qback,
                      &found.g, &found.Cext, &found.Csca, &found.powerPerp, &found.powerPar},
                     Size(points));
  }
  bool operator()(const ConvergenceFound& found) const {
    const std::size_t size = found.perpendicular.size();
    const int terms = static_cast<int>(size) - 1;
    return size >= 2 && SameSizes({&found.parallel, &found.unpolarised}, size) && Fit(found.waves) &&
           found.S1.Rows() == found.S2.Rows() &&
           (results.last.beam ? FitsBeam(found, terms) : results.last.NSTOP == terms);
  }
  /// Sums over L or over |M| of a beam.
  bool FitsBeam(const ConvergenceFound& found, int terms) const {
    const BeamLimits& limits = results.last.beam->limits;
    const bool overL = std::get<ConvergenceRun>(results.asked.run).over == ConvergenceRun::Over::L;
    const auto fit = [&](const ConvergenceFound::Terms& list) {
      return SameSizes({&list.ofPi, &list.ofTau, &list.ratio}, Size(terms));
    };
    return found.first == (overL ? 1 : 0) && terms == (overL ? limits.Lmax : limits.Mmax + 1) &&
           fit(found.perpendicularTerms) && fit(found.parallelTerms);
  }
  bool operator()(const DebyeAnalysisFound& found) const {
    const int rows = std::get<DebyeAnalysisRun>(results.asked.run).limit + 2;
    return found.dots1.Rows() == rows && found.dots2.Rows() == rows && found.done >= 1 && found.done <= rows &&
           found.S1b.Rows() == found.S2b.Rows();
  }
  bool operator()(const TwoAngleFound& found) const {
    const auto& run = std::get<TwoAngleRun>(results.asked.run);
    const auto fits = [&](const Table2D& table) {
      return table.rows == run.radius.size() && table.columns == run.index.size();
    };
    return fits(found.first) && fits(found.second) && Fit(found.waves) && found.done >= 0 &&
           static_cast<std::size_t>(found.done) <= found.first.cells.size();
  }
  bool operator()(const MapFound& found) const {
    int columns = 0, rows = 0, firstRow = 1;
    if (const auto* angles = std::get_if<AngleMapRun>(&results.asked.run)) {
      columns = angles->columns.Count();
      rows = angles->rows.window.high - angles->rows.window.low + 1;
      firstRow = angles->rows.window.low;
      // Of a pulse that was stopped there are whole rows.
      if (angles->pulse && found.rows >= 1) rows = std::min(rows, found.rows);
    } else {
      const auto& map = std::get<EfficiencyMapRun>(results.asked.run);
      columns = map.columns.Count();
      rows = map.rows.Count();
    }
    const bool angles = std::holds_alternative<AngleMapRun>(results.asked.run);
    const std::size_t panels = angles || results.asked.graph.quantity == Quantity::Intensity ? 2 : 3;
    const bool spectrum = angles && results.asked.light.spectrum.has_value();
    const auto cells = static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows);
    const auto fits = [&](const MapPanel& panel) {
      const std::size_t colours = spectrum ? cells : 0;
      return panel.value.size() == cells - colours && panel.red.size() == colours && panel.green.size() == colours &&
             panel.blue.size() == colours;
    };
    const auto known = [&](const std::vector<std::uint16_t>& list) {
      return list.size() == cells &&
             std::ranges::all_of(list, [&](std::uint16_t i) { return int{i} <= results.asked.Wavelengths(); });
    };
    return found.columns == columns && found.rows == rows && found.firstRow == firstRow && found.done >= 1 &&
           found.done <= columns && found.panels.size() == panels && std::ranges::all_of(found.panels, fits) &&
           found.strongest.size() == (spectrum ? panels : 0) && std::ranges::all_of(found.strongest, known);
  }
  bool operator()(const VolumeFound& found) const {
    const std::size_t size = found.x.size();
    return size >= 2 && size <= Size(std::get<VolumeRun>(results.asked.run).axis.points) &&
           SameSizes({&found.alonePerp, &found.alonePar}, size) && found.S1.Rows() == static_cast<int>(size) - 1 &&
           found.S2.Rows() == found.S1.Rows();
  }
};

/// Rays that were traced are some of those asked for.
bool FitsDrop(const std::optional<DropNumbers>& drop) {
  return !drop || (drop->axisRatio > 0 && drop->raysDone >= 0 && drop->raysDone <= drop->raysAsked &&
                   drop->perpendicular >= 0 && drop->parallel >= 0);
}

/// A table over the sky has the rows of the run, where there is one.
bool FitsSky(const Results& results) {
  const DropSky& sky = results.sky;
  if (sky.sectors == 0) return sky.red.empty() && sky.green.empty() && sky.blue.empty();
  const AngleRows* rows = RowsOf(results.asked.run);
  constexpr int mostSectors = 360;
  if (rows == nullptr || sky.sectors < 1 || sky.sectors > mostSectors || !(sky.rows == rows->window)) return false;
  for (const auto* channel : {&sky.red, &sky.green, &sky.blue})
    if (channel->size() != sky.Size() || std::ranges::any_of(*channel, [](float value) { return !(value >= 0); }))
      return false;
  return true;
}

/// Values that cannot lie below 0 do not. What was not calculated counts as 0.
struct Possible {
  const Results& results;

  static bool None(std::initializer_list<const std::vector<double>*> lists) {
    return std::ranges::all_of(lists, [](const auto* list) { return std::ranges::none_of(*list, Below0<double>); });
  }
  template <class Value>
  static bool Below0(Value value) {
    return value < 0;
  }
  bool MayLie(std::size_t curve) const { return MayLieBelow0(results.asked.graph, results.asked.method.method, curve); }

  bool operator()(const AngleFound&) const { return true; }
  bool operator()(const SpectrumFound& found) const {
    return None({&found.perpendicular, &found.parallel, &found.waveNumber});
  }
  bool operator()(const AxisFound& found) const {
    const bool byTerms = SumsTerms(results.asked.method.method);
    if (!None({&found.bows[0], &found.bows[1], &found.bows[2]})) return false;
    return None({&found.waveNumber, &found.radius, &found.size, &found.Qback, &found.powerPerp, &found.powerPar}) &&
           (byTerms || None({&found.Qext, &found.Cext, &found.Qsca, &found.Csca}));
  }
  bool operator()(const ConvergenceFound& found) const {
    return None({&found.perpendicular, &found.parallel, &found.unpolarised});
  }
  bool operator()(const DebyeAnalysisFound&) const { return true; }
  bool operator()(const TwoAngleFound& found) const { return None({&found.first.cells, &found.second.cells}); }
  bool operator()(const MapFound& found) const {
    for (std::size_t i = 0; i < found.panels.size(); ++i) {
      const MapPanel& panel = found.panels[i];
      for (const auto* list : {&panel.value, &panel.red, &panel.green, &panel.blue})
        if (!MayLie(list == &panel.value ? i : 0) && std::ranges::any_of(*list, Below0<float>)) return false;
    }
    return true;
  }
  bool operator()(const VolumeFound& found) const { return None({&found.alonePerp, &found.alonePar}); }
};

/// Signs tell gain from loss in the absorption, and forward from backward in g; the rest of a sphere has none.
bool HasNoneBelow0(const Results& results, bool byTerms) {
  const LastSphere& last = results.last;
  const double never[] = {last.radius,          last.sizeParameter,      last.waveNumber,
                          last.indices.sphereN, last.indices.medium,     last.core.n,
                          last.relativeRe,      last.efficiencies.Qback, results.seconds};
  const auto below0 = [](double value) { return value < 0; };
  // Of a beam that misses the sphere rounding leaves an extinction of either sign.
  const bool wholes = !below0(last.efficiencies.Qsca) && (last.beam || !below0(last.efficiencies.Qext));
  return std::ranges::none_of(never, below0) && (byTerms || wholes);
}

bool IsSphere(const LastSphere& last) {
  const bool beam = !last.beam || (last.beam->limits.Lmax >= 1 && last.beam->limits.Lmax <= MaxSeriesTerms &&
                                   last.beam->limits.Mmax >= 0 && last.beam->limits.Mmax <= last.beam->limits.Lmax);
  return beam && last.lambda > 0 && last.NANG >= 1 && last.NANG <= 1'000'000 && last.NSTOP >= 0 && last.NMX >= 0 &&
         last.partialWaveFirst >= 0 && last.partialWaveLast >= 0 && last.selectedRow >= 1 &&
         last.selectedRow <= 2 * last.NANG - 1 && last.samples >= 0;
}

}  // namespace

std::string MisfitOf(const Results& results) {
  if (!IsSphere(results.last)) return "The sphere of the file cannot be one";
  if (!std::visit(Fits{results}, results.found) || !FitsSky(results) || !FitsDrop(results.last.drop))
    return "The numbers of the file are not as many as its inputs ask for";
  const bool byTerms = SumsTerms(results.asked.method.method);
  if (!HasNoneBelow0(results, byTerms) || !std::visit(Possible{results}, results.found))
    return "The file holds values below 0 where none can be";
  return {};
}

}  // namespace lumivex
