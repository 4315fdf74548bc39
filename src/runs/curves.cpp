#include "runs/curves.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <span>

#include "axes/typed_values.h"
#include "runs/settings.h"
#include "solvers/angles/scattering_pattern.h"
#include "solvers/functions/phase_degrees.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
constexpr double notComputed = std::numeric_limits<double>::quiet_NaN();

std::size_t At(int row) {
  return static_cast<std::size_t>(row);
}

double Contrast(double perpendicular, double parallel) {
  const double sum = perpendicular + parallel;
  return sum == 0 ? 0 : (perpendicular - parallel) / sum;
}

/// Elements 1 and up take the value; element 0 is 0.
void Size(Curves& curves, std::size_t size, double value) {
  for (auto* list :
       {&curves.perpendicular, &curves.parallel, &curves.unpolarised, &curves.extra1, &curves.extra2, &curves.extra3}) {
    list->assign(size, value);
    if (size > 0) list->front() = 0;
  }
}

/// What an intensity, or a modulus, is divided by.
double NormOf(const CurveLook& look, double waveNumber) {
  if (!look.invWavelength) return 1;
  return look.amplitude ? waveNumber : waveNumber * waveNumber;
}

struct AmplitudePair {
  ComplexD S1, S2;
};

double Intensity(const ComplexD& S) {
  return S.re * S.re + S.im * S.im;
}

void FillPoint(Curves& curves, std::size_t i, const AmplitudePair& pair, bool amplitude, double norm) {
  const double first = Intensity(pair.S1), second = Intensity(pair.S2);
  curves.perpendicular[i] = (amplitude ? std::sqrt(first) : first) / norm;
  curves.parallel[i] = (amplitude ? std::sqrt(second) : second) / norm;
  curves.unpolarised[i] = (curves.perpendicular[i] + curves.parallel[i]) / 2;
  curves.extra1[i] = Contrast(curves.perpendicular[i], curves.parallel[i]);
  curves.extra2[i] = PhaseDegrees(pair.S1.re, pair.S1.im);
  curves.extra3[i] = PhaseDegrees(pair.S2.re, pair.S2.im);
}

/// S11 in the curves, the ratios to it in the extras. The amplitudes of a cloud are moduli: its S33 and S34 come from
/// the means of S1 conj(S2), which is S33 - i S34.
template <class Found>
void Mueller(Curves& curves, std::size_t i, const AmplitudePair& pair, const Found& found) {
  ScatteringMatrix m = MatrixOf(pair.S1, pair.S2);
  if (i < found.crossRe.size()) {
    m.S33 = found.crossRe[i];
    m.S34 = -found.crossIm[i];
  }
  const double scale = m.S11 > 0 ? 1 / m.S11 : 0;
  curves.perpendicular[i] = curves.parallel[i] = curves.unpolarised[i] = m.S11;
  curves.extra1[i] = m.S12 * scale;
  curves.extra2[i] = m.S33 * scale;
  curves.extra3[i] = m.S34 * scale;
}

// Graphs against angle.

void Scale(Curves& curves, double factor) {
  for (auto* list : {&curves.perpendicular, &curves.parallel, &curves.unpolarised})
    for (std::size_t i = 1; i < list->size(); ++i) (*list)[i] *= factor;
}

/// |S|^2 of the sphere itself, also where the amplitudes were divided by x.
double UndoDivision(const Results& results) {
  const bool divided = SphereOptions(results.asked).divideBySize;
  return divided ? results.last.sizeParameter * results.last.sizeParameter : 1;
}

double MeanOverSphere(const Results& results, const Curves& curves) {
  const double x = results.last.sizeParameter;
  const bool oneMieSphere = results.asked.method.method == Method::Mie && !results.asked.Cloud();
  if (oneMieSphere) return x * x * results.last.efficiencies.Qsca / 4 / UndoDivision(results);
  return SphereMean(std::span(curves.unpolarised).subspan(1));
}

void ToWatts(const Results& results, const AngleRows& rows, Curves& curves) {
  const Light& light = results.asked.light;
  const double k = results.last.waveNumber;
  const AngleGrid grid = rows.Grid();
  double all = 0, back = 0;
  for (int row = 1; row <= std::min(grid.RowCount(), rows.window.high); ++row) {
    const double power = curves.unpolarised[At(row)] * std::sin(grid.Angle(row));
    all += power;
    if (row >= rows.NANG) back += row == rows.NANG ? power / 2 : power;
  }
  const double undo = UndoDivision(results);
  const double scale = undo * light.incidentDensity * 2 * pi / (k * k) * grid.DANG;
  curves.scatteredPower = scale * all;
  curves.backscatteredPower = scale * back;
  Scale(curves, undo * light.incidentDensity / (k * k * light.distance * light.distance));
}

void ToProbability(Curves& curves) {
  for (auto* list : {&curves.perpendicular, &curves.parallel, &curves.unpolarised}) {
    const auto rows = std::span(*list).subspan(1);
    std::ranges::copy(CumulativeProbability(rows), rows.begin());
  }
}

void ApplyQuantity(const Results& results, const AngleRows& rows, Curves& curves) {
  const double k = results.last.waveNumber;
  double mean = 0;
  switch (results.asked.graph.quantity) {
    case Quantity::PhaseFunction:
      mean = MeanOverSphere(results, curves);
      return Scale(curves, mean > 0 ? 1 / mean : 0);
    case Quantity::Irradiance:
      return ToWatts(results, rows, curves);
    case Quantity::DifferentialCrossSection:
      return Scale(curves, UndoDivision(results) / (k * k));
    case Quantity::CumulativeProbability:
      return ToProbability(curves);
    default:
      return;
  }
}

Curves CurvesOfFound(const Results& results, const CurveLook& look, const AngleFound& found) {
  const AngleRows& rows = std::get<AngleRun>(results.asked.run).rows;
  const Quantity quantity = results.asked.graph.quantity;
  const bool amplitude = look.amplitude && quantity == Quantity::Intensity;
  Curves curves;
  curves.x = AnglesOf(rows);
  // Units of light are what they are.
  curves.intensityNorm = quantity == Quantity::Intensity ? NormOf(look, results.last.waveNumber) : 1;
  curves.firstRow = std::max(rows.window.low, 1);
  curves.lastRow = std::min({rows.window.high, found.S1.Rows(), 2 * rows.NANG - 1});
  Size(curves, curves.x.size(), notComputed);
  for (int row = curves.firstRow; row <= curves.lastRow; ++row) {
    if (!found.rows.Contains(row)) continue;
    const AmplitudePair pair{found.S1.Value(row), found.S2.Value(row)};
    if (quantity == Quantity::ScatteringMatrix)
      Mueller(curves, At(row), pair, found);
    else
      FillPoint(curves, At(row), pair, amplitude, curves.intensityNorm);
  }
  ApplyQuantity(results, rows, curves);
  return curves;
}

// Spectra.

std::span<const double> RowsOfWavelength(const std::vector<double>& all, const AngleRows& rows, int wavelength) {
  const auto count = At(rows.window.high - rows.window.low + 1);
  return std::span(all).subspan(At(wavelength - 1) * count, count);
}

/// What an intensity of the wavelength counts with.
double WeightOf(const Results& results, const SpectrumFound& found, const CurveLook& look, int wavelength) {
  const double k = look.invWavelength ? found.waveNumber[At(wavelength)] : 1;
  const auto& spectrum = results.asked.light.spectrum;
  return (spectrum ? double{spectrum->weight[At(wavelength)]} : 1) / (k * k);
}

/// Adds intensities to a table, in all and by red, green and blue.
void AddWavelength(Table2D& table, std::size_t firstRow, std::span<const double> intensities, double weight,
                   const SpectrumOfLight& light, std::size_t i) {
  double* cell = &table.At(firstRow, 0);
  for (const double intensity : intensities) {
    const double weighed = weight * intensity;
    cell[0] += weighed;
    cell[1] += weighed * light.red[i];
    cell[2] += weighed * light.green[i];
    cell[3] += weighed * light.blue[i];
    cell += table.columns;
  }
}

Curves CurvesOfFound(const Results& results, const CurveLook& look, const SpectrumFound&) {
  const AngleRows& rows = std::get<SpectrumRun>(results.asked.run).rows;
  const SpectrumSums sums = SumsOf(results, look);
  Curves curves;
  curves.x = AnglesOf(rows);
  curves.intensityNorm = NormOf(look, results.last.waveNumber);
  curves.firstRow = rows.window.low;
  curves.lastRow = rows.window.high;
  Size(curves, curves.x.size(), 0);
  for (int row = rows.window.low; row <= rows.window.high; ++row) {
    const double perpendicular = sums.perpendicular.At(At(row), 0), parallel = sums.parallel.At(At(row), 0);
    curves.perpendicular[At(row)] = look.amplitude ? std::sqrt(perpendicular) : perpendicular;
    curves.parallel[At(row)] = look.amplitude ? std::sqrt(parallel) : parallel;
    curves.unpolarised[At(row)] = (curves.perpendicular[At(row)] + curves.parallel[At(row)]) / 2;
    curves.extra1[At(row)] = Contrast(perpendicular, parallel);
  }
  return curves;
}

// Axes.

struct PointCurves {
  double perpendicular = 0, parallel = 0, unpolarised = 0;
};

/// The three curves of a quantity at a point.
PointCurves QuantityAt(const Results& results, const AxisFound& found, std::size_t i) {
  const auto all = [](double value) { return PointCurves{value, value, value}; };
  const double r = found.radius[i], volume = 4.0 / 3 * pi * std::pow(r, 3);  // um3
  const bool perVolume = std::get<AxisRun>(results.asked.run).constantVolume;
  double factor = 1;
  switch (results.asked.graph.quantity) {
    case Quantity::Efficiencies:
      // Per volume: many small spheres in place of one large.
      factor = perVolume ? pi * r * r / volume : 1;
      if (!found.Qabs.empty()) return {found.Qext[i], found.Qsca[i], found.Qabs[i]};
      return {factor * found.Qext[i], factor * found.Qsca[i], factor * (found.Qext[i] - found.Qsca[i])};
    case Quantity::CrossSections:
      factor = perVolume ? 1e-12 / volume : 1e-12;  // m2
      return {factor * found.Cext[i], factor * found.Csca[i], factor * (found.Cext[i] - found.Csca[i])};
    case Quantity::Qback:
      return all(found.Qback[i]);
    case Quantity::Qradar:
      return all(4 * pi * found.Qback[i]);
    case Quantity::Asymmetry:
      return all(found.g[i]);
    case Quantity::Albedo:
      return all(found.Cext[i] == 0 ? 0 : found.Csca[i] / found.Cext[i]);
    case Quantity::BowAngle:
      return {found.bows[0][i], found.bows[1][i], found.bows[2][i]};
    case Quantity::Power:
      return {found.powerPerp[i], found.powerPar[i], (found.powerPerp[i] + found.powerPar[i]) / 2};
    default:
      return {};
  }
}

Curves CurvesOfFound(const Results& results, const CurveLook& look, const AxisFound& found) {
  const Graph& graph = results.asked.graph;
  Curves curves;
  curves.x = found.x;
  const auto& axis = std::get<AxisRun>(results.asked.run);
  if (look.invWavelength && graph.WavelengthAxis())
    for (double& x : std::span(curves.x).subspan(1)) x = InverseWavelength(x);
  else if (!axis.logSteps && !axis.pulse)
    std::ranges::transform(curves.x, curves.x.begin(), TypedValues(axis.xmin, axis.step));
  curves.lastRow = std::max(static_cast<int>(found.x.size()) - 1, 0);
  Size(curves, found.x.size(), notComputed);
  for (int point = 1; point <= std::min(found.done, curves.lastRow); ++point) {
    const std::size_t i = At(point);
    if (graph.OfEfficiencies() || graph.quantity == Quantity::Power || graph.quantity == Quantity::BowAngle) {
      const PointCurves values = QuantityAt(results, found, i);
      curves.perpendicular[i] = values.perpendicular;
      curves.parallel[i] = values.parallel;
      curves.unpolarised[i] = values.unpolarised;
      curves.extra1[i] = curves.extra2[i] = curves.extra3[i] = 0;
      continue;
    }
    const AmplitudePair pair{found.S1.Value(point), found.S2.Value(point)};
    curves.intensityNorm = NormOf(look, found.waveNumber[i]);
    if (graph.quantity == Quantity::ScatteringMatrix)
      Mueller(curves, i, pair, found);
    else
      FillPoint(curves, i, pair, look.amplitude, curves.intensityNorm);
  }
  return curves;
}

Curves CurvesOfFound(const Results&, const CurveLook&, const ConvergenceFound& found) {
  Curves curves;
  const std::size_t size = found.perpendicular.size();
  Size(curves, size, 0);
  curves.perpendicular = found.perpendicular;
  curves.parallel = found.parallel;
  curves.unpolarised = found.unpolarised;
  curves.x.assign(size, 0);
  for (std::size_t n = 1; n < size; ++n) curves.x[n] = static_cast<double>(n) + found.first - 1;
  curves.lastRow = std::max(static_cast<int>(size) - 1, 0);
  return curves;
}

/// Moduli and phases of what is left, against the number of terms taken away.
Curves CurvesOfFound(const Results&, const CurveLook&, const DebyeAnalysisFound& found) {
  Curves curves;
  Size(curves, At(found.done) + 1, 0);
  curves.x.assign(At(found.done) + 1, 0);
  curves.lastRow = found.done;
  for (int j = 1; j <= found.done; ++j) {
    const ComplexD a = found.dots1.Value(j), b = found.dots2.Value(j);
    curves.x[At(j)] = j - 1;
    curves.perpendicular[At(j)] = std::sqrt(Intensity(a));
    curves.parallel[At(j)] = std::sqrt(Intensity(b));
    curves.unpolarised[At(j)] = (curves.perpendicular[At(j)] + curves.parallel[At(j)]) / 2;
    curves.extra2[At(j)] = PhaseDegrees(a.re, a.im);
    curves.extra3[At(j)] = PhaseDegrees(b.re, b.im);
  }
  return curves;
}

Curves CurvesOfFound(const Results& results, const CurveLook& look, const VolumeFound& found) {
  const AxisRun& axis = std::get<VolumeRun>(results.asked.run).axis;
  Curves curves;
  curves.x = found.x;
  if (!axis.logSteps) std::ranges::transform(curves.x, curves.x.begin(), TypedValues(axis.xmin, axis.step));
  curves.lastRow = std::max(static_cast<int>(found.x.size()) - 1, 0);
  curves.intensityNorm = NormOf(look, results.last.waveNumber);
  Size(curves, found.x.size(), notComputed);
  for (auto* list : {&curves.alonePerpendicular, &curves.aloneParallel, &curves.aloneUnpolarised})
    list->assign(found.x.size(), 0);
  const auto alone = [&](double intensity) {
    return (look.amplitude ? std::sqrt(intensity) : intensity) / curves.intensityNorm;
  };
  for (int point = 1; point <= curves.lastRow; ++point) {
    const std::size_t i = At(point);
    FillPoint(curves, i, {found.S1.Value(point), found.S2.Value(point)}, look.amplitude, curves.intensityNorm);
    curves.alonePerpendicular[i] = alone(found.alonePerp[i]);
    curves.aloneParallel[i] = alone(found.alonePar[i]);
    curves.aloneUnpolarised[i] = (curves.alonePerpendicular[i] + curves.aloneParallel[i]) / 2;
  }
  return curves;
}

/// A chart of two cross-sections has no x of its own, and a map no curves: they are drawn from their tables.
Curves CurvesOfFound(const Results&, const CurveLook&, const TwoAngleFound&) {
  return {};
}
Curves CurvesOfFound(const Results&, const CurveLook&, const MapFound&) {
  return {};
}

}  // namespace

double InverseWavelength(double nm) {
  return 1000 / nm;
}

Curves CurvesOf(const Results& results, const CurveLook& look) {
  return std::visit([&](const auto& found) { return CurvesOfFound(results, look, found); }, results.found);
}

SpectrumSums SumsOf(const Results& results, const CurveLook& look) {
  SpectrumSums sums;
  const auto* found = results.Find<SpectrumFound>();
  const auto& light = results.asked.light.spectrum;
  if (found == nullptr || !light) return sums;
  constexpr std::size_t columns = 4;
  const AngleRows& rows = std::get<SpectrumRun>(results.asked.run).rows;
  for (Table2D* table : {&sums.perpendicular, &sums.parallel, &sums.mean}) table->Resize(At(2 * rows.NANG), columns);
  const std::size_t first = At(rows.window.low);
  for (int i = 1; i <= found->done; ++i) {
    const WavelengthLight one = LightOfWavelength(results, look, i);
    AddWavelength(sums.perpendicular, first, one.perpendicular, one.weight, *light, At(i));
    AddWavelength(sums.parallel, first, one.parallel, one.weight, *light, At(i));
  }
  for (std::size_t cell = 0; cell < sums.mean.cells.size(); ++cell)
    sums.mean.cells[cell] = (sums.perpendicular.cells[cell] + sums.parallel.cells[cell]) / 2;
  return sums;
}

WavelengthLight LightOfWavelength(const Results& results, const CurveLook& look, int wavelength) {
  const auto* found = results.Find<SpectrumFound>();
  if (found == nullptr) return {};
  const AngleRows& rows = std::get<SpectrumRun>(results.asked.run).rows;
  return {RowsOfWavelength(found->perpendicular, rows, wavelength), RowsOfWavelength(found->parallel, rows, wavelength),
          WeightOf(results, *found, look, wavelength)};
}

Curves CurvesOfWavelength(const Results& results, const CurveLook& look, int wavelength) {
  Curves curves;
  const auto* found = results.Find<SpectrumFound>();
  if (found == nullptr) return curves;
  const AngleRows& rows = std::get<SpectrumRun>(results.asked.run).rows;
  curves.x = AnglesOf(rows);
  curves.firstRow = rows.window.low;
  curves.lastRow = rows.window.high;
  Size(curves, curves.x.size(), notComputed);
  const auto [perpendicular, parallel, weight] = LightOfWavelength(results, look, wavelength);
  const auto shown = [&look, weight = weight](double intensity) {
    return look.amplitude ? std::sqrt(weight * intensity) : weight * intensity;
  };
  for (std::size_t i = 0; i < perpendicular.size(); ++i) {
    const std::size_t j = At(rows.window.low) + i;
    curves.perpendicular[j] = shown(perpendicular[i]);
    curves.parallel[j] = shown(parallel[i]);
    curves.unpolarised[j] = (curves.perpendicular[j] + curves.parallel[j]) / 2;
    curves.extra1[j] = Contrast(perpendicular[i], parallel[i]);
  }
  return curves;
}

std::vector<double> AnglesOf(const AngleRows& rows) {
  std::vector<double> x(At(2 * rows.NANG), notComputed);
  const TypedValues typed(rows.Origin(), rows.step);
  for (int row = std::max(rows.window.low, 1); row <= rows.window.high && At(row) < x.size(); ++row)
    x[At(row)] = typed(rows.Origin() + (row - 1) * rows.step);
  return x;
}

const AngleRows* RowsOf(const FamilyRun& run) {
  if (const auto* angles = std::get_if<AngleRun>(&run)) return &angles->rows;
  if (const auto* spectrum = std::get_if<SpectrumRun>(&run)) return &spectrum->rows;
  if (const auto* map = std::get_if<AngleMapRun>(&run)) return &map->rows;
  return nullptr;
}

const AxisRun* AxisOf(const FamilyRun& run) {
  if (const auto* axis = std::get_if<AxisRun>(&run)) return axis;
  if (const auto* volume = std::get_if<VolumeRun>(&run)) return &volume->axis;
  return nullptr;
}

double StepOf(const RunRequest& asked) {
  if (const AngleRows* rows = RowsOf(asked.run)) return rows->step;
  if (const AxisRun* axis = AxisOf(asked.run)) return axis->step;
  return 1;
}

}  // namespace lumivex
