#include <algorithm>
#include <array>
#include <optional>

#include "files/results/own_block.h"

namespace lumivex {

namespace {

void WalkTable(FileLines& lines, std::string_view name, AmplitudeTable& table) {
  int rows = table.Rows();
  lines.Field(name, rows);
  if (rows < 0 || rows > mostFieldElements) lines.Refuse("there are not so many rows");
  // Rows are made as their lines come: the number alone must not take memory.
  std::vector<double> re = {0.0}, im = {0.0};
  for (int row = 1; row <= rows; ++row) {
    std::array<double, 2> value{};
    if (!lines.Reading()) value = {table.Re(row), table.Im(row)};
    lines.Numbers(value);
    if (!lines.Reading()) continue;
    re.push_back(value[0]);
    im.push_back(value[1]);
  }
  if (!lines.Reading()) return;
  table.Resize(rows);
  std::ranges::copy(re, table.RealParts().begin());
  std::ranges::copy(im, table.ImaginaryParts().begin());
}

void WalkTable(FileLines& lines, const std::string& name, Table2D& table) {
  int rows = static_cast<int>(table.rows), columns = static_cast<int>(table.columns);
  lines.Field(name + "Rows", rows);
  lines.Field(name + "Columns", columns);
  lines.MayMiss(true);
  lines.Field(name, table.cells);
  lines.MayMiss(false);
  if (rows < 0 || columns < 0 || static_cast<double>(rows) * columns != static_cast<double>(table.cells.size()))
    lines.Refuse("rows and columns do not make the cells");
  table.rows = static_cast<std::size_t>(rows);
  table.columns = static_cast<std::size_t>(columns);
}

void WalkWaves(FileLines& lines, PartialWaves& waves) {
  lines.Field("aRe", waves.aRe);
  lines.Field("aIm", waves.aIm);
  lines.Field("bRe", waves.bRe);
  lines.Field("bIm", waves.bIm);
}

void WalkWindow(FileLines& lines, const std::string& name, RowWindow& window) {
  lines.Field(name + "Low", window.low);
  lines.Field(name + "High", window.high);
}

void WalkWavefront(FileLines& lines, HuygensWave& wave) {
  lines.Field("p", wave.p);
  lines.Field("impact", wave.impact);
  lines.Field("deviation", wave.deviation);
  lines.Field("amplitudePerpendicular", wave.amplitudePerpendicular);
  lines.Field("amplitudeParallel", wave.amplitudeParallel);
  lines.Field("phasePerpendicular", wave.phasePerpendicular);
  lines.Field("phaseParallel", wave.phaseParallel);
  lines.Field("exitX", wave.exitX);
  lines.Field("exitY", wave.exitY);
  lines.Field("waveX", wave.waveX);
  lines.Field("waveY", wave.waveY);
}

void WalkLast(FileLines& lines, LastSphere& last) {
  lines.Field("lambda", last.lambda);
  lines.Field("radius", last.radius);
  lines.Field("sizeParameter", last.sizeParameter);
  lines.Field("waveNumber", last.waveNumber);
  lines.Field("sphereN", last.indices.sphereN);
  lines.Field("sphereK", last.indices.sphereK);
  lines.Field("medium", last.indices.medium);
  lines.Field("relativeRe", last.relativeRe);
  lines.Field("relativeIm", last.relativeIm);
  lines.Field("Qext", last.efficiencies.Qext);
  lines.Field("Qsca", last.efficiencies.Qsca);
  lines.Field("Qback", last.efficiencies.Qback);
  lines.Field("g", last.efficiencies.g);
  lines.Field("NSTOP", last.NSTOP);
  lines.Field("NMX", last.NMX);
  lines.Field("NANG", last.NANG);
  lines.Field("selectedRow", last.selectedRow);
  lines.Field("partialWaveFirst", last.partialWaveFirst);
  lines.Field("partialWaveLast", last.partialWaveLast);
  lines.Field("samples", last.samples);
  lines.Field("rainbowImpact", last.rainbowImpact);
  lines.Field("rainbowAngle", last.rainbowAngle);
  lines.Field("rayAngle", last.rayAngle);
  lines.Field("apertureCentre", last.apertureCentre);
  lines.Field("apertureWeight", last.apertureWeight);
  lines.Field("besselOrders", last.besselOrders);
}

/// Of a run by a series in a beam; a cloud has no limits of its own.
void WalkBeamNumbers(FileLines& lines, std::optional<BeamNumbers>& beam) {
  bool there = beam.has_value();
  lines.Field("beam", there);
  if (!there) return beam.reset();
  if (!beam) beam.emplace();
  lines.Field("s", beam->s);
  lines.Field("length", beam->length);
  lines.Field("QRe", beam->Q.re);
  lines.Field("QIm", beam->Q.im);
  lines.Field("Lmax", beam->limits.Lmax);
  lines.Field("Mmax", beam->limits.Mmax);
  lines.Field("Jmax", beam->Jmax);
  lines.Field("functionSeconds", beam->functions);
  lines.Field("shapeSeconds", beam->shape);
  lines.Field("waveSeconds", beam->waves);
  lines.Field("angleSeconds", beam->angles);
}

/// Of rays of flattened drops.
void WalkDropNumbers(FileLines& lines, std::optional<DropNumbers>& drop) {
  bool there = drop.has_value();
  lines.Field("drop", there);
  if (!there) return drop.reset();
  if (!drop) drop.emplace();
  lines.Field("axisRatio", drop->axisRatio);
  lines.Field("raysAsked", drop->raysAsked);
  lines.Field("raysDone", drop->raysDone);
  lines.Field("powerPerpendicular", drop->perpendicular);
  lines.Field("powerParallel", drop->parallel);
}

void WalkSky(FileLines& lines, DropSky& sky) {
  lines.Field("sectors", sky.sectors);
  if (sky.sectors == 0) return;
  WalkWindow(lines, "sky", sky.rows);
  lines.Field("skyRed", sky.red);
  lines.Field("skyGreen", sky.green);
  lines.Field("skyBlue", sky.blue);
}

bool IsSeriesInBeam(const RunRequest& asked) {
  const Method method = asked.method.method;
  return !asked.method.beam.Plane() && (method == Method::Mie || method == Method::Debye);
}

struct WalkFamily {
  FileLines& lines;

  void operator()(AngleFound& found) const {
    WalkTable(lines, "S1", found.S1);
    WalkTable(lines, "S2", found.S2);
    WalkTable(lines, "S1b", found.S1b);
    WalkTable(lines, "S2b", found.S2b);
    lines.Field("crossRe", found.crossRe);
    lines.Field("crossIm", found.crossIm);
    WalkWindow(lines, "forward", found.rows.forward);
    WalkWindow(lines, "mirrored", found.rows.mirrored);
    WalkWaves(lines, found.waves);
    constexpr int mostWavefronts = 1001;
    int wavefronts = static_cast<int>(found.wavefronts.size());
    lines.Field("wavefronts", wavefronts);
    if (wavefronts < 0 || wavefronts > mostWavefronts) lines.Refuse("there are not so many wavefronts");
    found.wavefronts.resize(static_cast<std::size_t>(wavefronts));
    for (HuygensWave& wave : found.wavefronts) WalkWavefront(lines, wave);
  }
  /// The intensities stand among the lines of the layout; those of all digits here.
  void operator()(SpectrumFound& found) const {
    lines.Field("done", found.done);
    lines.Field("waveNumber", found.waveNumber);
    lines.Field("perpendicular", found.perpendicular);
    lines.Field("parallel", found.parallel);
    WalkTable(lines, "S1", found.S1);
    WalkTable(lines, "S2", found.S2);
  }
  void operator()(AxisFound& found) const {
    lines.Field("done", found.done);
    WalkTable(lines, "S1", found.S1);
    WalkTable(lines, "S2", found.S2);
    lines.Field("crossRe", found.crossRe);
    lines.Field("crossIm", found.crossIm);
    lines.Field("x", found.x);
    lines.Field("waveNumber", found.waveNumber);
    lines.Field("radius", found.radius);
    lines.Field("size", found.size);
    lines.Field("Qext", found.Qext);
    lines.Field("Qsca", found.Qsca);
    lines.Field("Qback", found.Qback);
    lines.Field("g", found.g);
    lines.Field("Cext", found.Cext);
    lines.Field("Csca", found.Csca);
    lines.Field("powerPerp", found.powerPerp);
    lines.Field("powerPar", found.powerPar);
    if (pulse) lines.Field("Qabs", found.Qabs);
    if (!bows) return;
    lines.MayMiss(true);
    lines.Field("bow2", found.bows[0]);
    lines.Field("bow3", found.bows[1]);
    lines.Field("bow4", found.bows[2]);
    lines.MayMiss(false);
  }
  void operator()(ConvergenceFound& found) const {
    lines.Field("perpendicular", found.perpendicular);
    lines.Field("parallel", found.parallel);
    lines.Field("unpolarised", found.unpolarised);
    WalkTable(lines, "S1", found.S1);
    WalkTable(lines, "S2", found.S2);
    WalkWaves(lines, found.waves);
    if (!beam) return;
    lines.Field("first", found.first);
    for (ConvergenceFound::Terms* terms : {&found.perpendicularTerms, &found.parallelTerms}) {
      lines.Field("ofPi", terms->ofPi);
      lines.Field("ofTau", terms->ofTau);
      lines.Field("ratio", terms->ratio);
    }
  }
  void operator()(DebyeAnalysisFound& found) const {
    lines.Field("done", found.done);
    WalkTable(lines, "dots1", found.dots1);
    WalkTable(lines, "dots2", found.dots2);
    WalkTable(lines, "S1b", found.S1b);
    WalkTable(lines, "S2b", found.S2b);
  }
  void operator()(TwoAngleFound& found) const {
    lines.Field("done", found.done);
    WalkTable(lines, "first", found.first);
    WalkTable(lines, "second", found.second);
    WalkWaves(lines, found.waves);
  }
  /// Of a map over angle or of quantities the cells stand among the lines of the layout, to the last digit; of a Lee
  /// diagram here.
  void operator()(MapFound& found) const {
    lines.Field("done", found.done);
    lines.Field("columns", found.columns);
    lines.Field("rows", found.rows);
    lines.Field("firstRow", found.firstRow);
    bool cells = lee;
    lines.Field("cells", cells);
    if (cells) {
      int panels = static_cast<int>(found.panels.size());
      lines.Field("panels", panels);
      if (panels < 2 || panels > 3) lines.Refuse("there are not so many panels");
      found.panels.resize(static_cast<std::size_t>(panels));
      for (MapPanel& panel : found.panels) {
        lines.Field("value", panel.value);
        lines.Field("red", panel.red);
        lines.Field("green", panel.green);
        lines.Field("blue", panel.blue);
      }
    }
    int strongest = static_cast<int>(found.strongest.size());
    lines.Field("strongest", strongest);
    if (strongest < 0 || strongest > 3) lines.Refuse("there are not so many panels");
    found.strongest.resize(static_cast<std::size_t>(strongest));
    for (auto& list : found.strongest) lines.Field("wavelength", list);
  }
  void operator()(VolumeFound& found) const {
    lines.Field("x", found.x);
    WalkTable(lines, "S1", found.S1);
    WalkTable(lines, "S2", found.S2);
    lines.Field("alonePerp", found.alonePerp);
    lines.Field("alonePar", found.alonePar);
  }

  bool lee = false, beam = false, bows = false, pulse = false;
};

/// The alternative of what is found by a family.
struct FoundOf {
  FamilyFound operator()(const AngleRun&) const { return AngleFound{}; }
  FamilyFound operator()(const SpectrumRun&) const { return SpectrumFound{}; }
  FamilyFound operator()(const AxisRun&) const { return AxisFound{}; }
  FamilyFound operator()(const ConvergenceRun&) const { return ConvergenceFound{}; }
  FamilyFound operator()(const DebyeAnalysisRun&) const { return DebyeAnalysisFound{}; }
  FamilyFound operator()(const TwoAngleRun&) const { return TwoAngleFound{}; }
  FamilyFound operator()(const AngleMapRun&) const { return MapFound{}; }
  FamilyFound operator()(const EfficiencyMapRun&) const { return MapFound{}; }
  FamilyFound operator()(const VolumeRun&) const { return VolumeFound{}; }
};

}  // namespace

void WalkFound(FileLines& lines, Results& results) {
  lines.PassOverUnknown();
  WalkLast(lines, results.last);
  if (results.asked.particle.core) {
    lines.Field("coreN", results.last.core.n);
    lines.Field("coreK", results.last.core.k);
  }
  const bool beam = IsSeriesInBeam(results.asked);
  if (beam) WalkBeamNumbers(lines, results.last.beam);
  const Graph& graph = results.asked.graph;
  const bool drop = results.asked.method.method == Method::Burgeroid && graph.AgainstAngle();
  if (drop) WalkDropNumbers(lines, results.last.drop);
  if (drop) WalkSky(lines, results.sky);
  lines.Field("seconds", results.seconds);
  if (lines.Reading()) {
    // Cells that the layout has brought already are kept.
    FamilyFound empty = std::visit(FoundOf{}, results.asked.run);
    if (empty.index() != results.found.index()) results.found = std::move(empty);
  }
  std::visit(WalkFamily{lines, graph.family == Family::Lee, beam, graph.quantity == Quantity::BowAngle,
                        graph.family == Family::PulseAnswer},
             results.found);
}

}  // namespace lumivex
