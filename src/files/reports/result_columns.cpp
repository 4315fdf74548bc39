#include "files/reports/result_columns.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

#include "materials/index/material.h"
#include "record/catalogue/graph_texts.h"
#include "record/number_text.h"
#include "solvers/functions/phase_degrees.h"

namespace lumivex {

namespace {

constexpr double notComputed = std::numeric_limits<double>::quiet_NaN();

std::size_t At(int row) {
  return static_cast<std::size_t>(row);
}

struct RowsShown {
  int first = 1, last = 0;
};

/// Rows of the results that lie in the range asked for.
RowsShown RowsOfResults(const Results& results) {
  constexpr double nearly = 1e-6;  // of a row: what rounding leaves of limits that are multiples of the step
  if (const AngleRows* rows = RowsOf(results.asked.run)) {
    const int first = static_cast<int>(std::ceil(rows->firstPoint - nearly));
    const int last = static_cast<int>(std::floor(rows->lastPoint + nearly));
    return {std::max({first, rows->window.low, 1}), std::min({last, rows->window.high, 2 * rows->NANG - 1})};
  }
  if (const auto* axis = results.Find<AxisFound>()) return {1, axis->done};
  if (const auto* terms = results.Find<ConvergenceFound>())
    return {1, static_cast<int>(terms->perpendicular.size()) - 1};
  if (const auto* analysis = results.Find<DebyeAnalysisFound>()) return {1, analysis->done};
  if (const auto* volume = results.Find<VolumeFound>()) return {1, static_cast<int>(volume->x.size()) - 1};
  return {};
}

/// The values of the axis; wavelengths as they are, also where the curves have their inverse.
std::vector<double> AxisValues(const Results& results, const Curves& curves) {
  const auto* axis = results.Find<AxisFound>();
  if (axis == nullptr || !results.asked.graph.WavelengthAxis()) return curves.x;
  std::vector<double> x = axis->x;
  // Half a femtometre is what the arithmetic of the points leaves.
  for (double& nm : x) nm = RoundDecimals(nm, 9);
  return x;
}

/// The refractive index of the sphere at each point of an axis.
void AddIndexColumns(const Results& results, const std::vector<double>& x, ResultColumns& table) {
  const RunRequest& asked = results.asked;
  const OpticalIndices& indices = results.last.indices;
  std::vector<double> real(x.size(), indices.sphereN), imaginary(x.size(), indices.sphereK);
  if (asked.graph.axis == AxisVariable::RefractiveIndex) real = x;
  if (asked.graph.WavelengthAxis()) {
    for (std::size_t i = table.first; i <= table.last; ++i) {
      const auto found = IndexAt(asked.particle.sphere, x[i] / 1000).value;
      real[i] = found ? found->n : notComputed;
      imaginary[i] = found ? found->k : notComputed;
    }
  }
  table.columns.push_back({"Ref Index (real)", std::move(real)});
  table.columns.push_back({"Ref Index (imaginary)", std::move(imaginary)});
}

/// |S1|^2, |S2|^2 and their sum, of a matrix whose elements are made of them.
void AddSquares(const AmplitudeTable& S1, const AmplitudeTable& S2, ResultColumns& table) {
  const auto square = [](const AmplitudeTable& S, std::size_t row) {
    const ComplexD value = S.Value(static_cast<int>(row));
    return value.re * value.re + value.im * value.im;
  };
  std::vector<double> first(table.last + 1, 0), second = first, sum = first;
  for (std::size_t row = table.first; row <= table.last; ++row) {
    first[row] = square(S1, row);
    second[row] = square(S2, row);
    sum[row] = first[row] + second[row];
  }
  table.columns.push_back({"(S1(theta))^2", std::move(first)});
  table.columns.push_back({"(S2(theta))^2", std::move(second)});
  table.columns.push_back({"(S1(theta))^2 + (S2(theta))^2", std::move(sum)});
}

void AddQuantity(const Graph& graph, Curves&& curves, ResultColumns& table) {
  const auto three = [&](std::string_view a, std::string_view b, std::string_view c) {
    table.columns.push_back({std::string(a), std::move(curves.perpendicular)});
    table.columns.push_back({std::string(b), std::move(curves.parallel)});
    table.columns.push_back({std::string(c), std::move(curves.unpolarised)});
  };
  const auto one = [&](std::string_view name) {
    table.columns.push_back({std::string(name), std::move(curves.perpendicular)});
  };
  switch (graph.quantity) {
    case Quantity::Efficiencies:
      return three("Qext", "Qsca", "Qabs");
    case Quantity::CrossSections:
      return three("Cext m^2", "Csca m^2", "Cabs m^2");
    case Quantity::Qback:
      return one("Qback");
    case Quantity::Qradar:
      return one("Qradar");
    case Quantity::Asymmetry:
      return one("Asymmetry g");
    case Quantity::Albedo:
      return one("Albedo");
    default:
      return three("Perpendicular", "Parallel", "Unpolarised");
  }
}

struct Amplitudes {
  const AmplitudeTable* S1 = nullptr;
  const AmplitudeTable* S2 = nullptr;
};

Amplitudes AmplitudesOf(const Results& results) {
  if (const auto* found = results.Find<AngleFound>()) return {&found->S1, &found->S2};
  if (const auto* found = results.Find<SpectrumFound>()) return {&found->S1, &found->S2};
  if (const auto* found = results.Find<AxisFound>()) return {&found->S1, &found->S2};
  if (const auto* found = results.Find<DebyeAnalysisFound>()) return {&found->dots1, &found->dots2};
  if (const auto* found = results.Find<VolumeFound>()) return {&found->S1, &found->S2};
  return {};
}

/// The rows shown, as far as both amplitudes have them.
void LimitTo(const Amplitudes& amplitudes, ResultColumns& table) {
  const int rows = std::min(amplitudes.S1->Rows(), amplitudes.S2->Rows());
  table.last = std::min(table.last, At(std::max(rows, 0)));
}

/// Whether a row was calculated: of a run that was stopped not all are.
bool IsDone(const Results& results, std::size_t row) {
  const auto* found = results.Find<AngleFound>();
  return found == nullptr || found->rows.Contains(static_cast<int>(row));
}

void AddAmplitude(const Results& results, const std::string& name, const AmplitudeTable& S, ResultColumns& table) {
  std::vector<double> real(table.last + 1, notComputed), imaginary = real, magnitude = real, phase = real;
  for (std::size_t row = table.first; row <= table.last; ++row) {
    if (!IsDone(results, row)) continue;
    const ComplexD value = S.Value(static_cast<int>(row));
    real[row] = value.re;
    imaginary[row] = value.im;
    magnitude[row] = std::hypot(value.re, value.im);
    phase[row] = PhaseDegrees(value.re, value.im);
  }
  table.columns.push_back({name + " Real", std::move(real)});
  table.columns.push_back({name + " Imaginary", std::move(imaginary)});
  table.columns.push_back({name + " Magnitude", std::move(magnitude)});
  table.columns.push_back({name + " Phase", std::move(phase)});
}

}  // namespace

std::string AxisHeadingOf(const Graph& graph) {
  switch (graph.axis) {
    case AxisVariable::Angle:
      return "Angle";
    case AxisVariable::Wavelength:
      return "Wavelength";
    case AxisVariable::Radius:
      return "Radius";
    case AxisVariable::Diameter:
      return "Diameter";
    case AxisVariable::Terms:
      return "Terms";
    default:
      return std::string(XTitleOf(graph, {}));
  }
}

ResultColumns CurveColumnsOf(const Results& results, const CurveLook& look) {
  const Graph& graph = results.asked.graph;
  ResultColumns table;
  const RowsShown rows = RowsOfResults(results);
  if (rows.last < rows.first || std::holds_alternative<MapFound>(results.found)) return table;
  Curves curves = CurvesOf(results, look);
  table.first = At(rows.first);
  table.last = std::min(At(rows.last), curves.x.size() - 1);
  const bool matrix = graph.quantity == Quantity::ScatteringMatrix;
  std::vector<double> x = AxisValues(results, curves);
  table.columns.push_back({matrix && graph.AgainstAngle() ? "theta" : AxisHeadingOf(graph), x});
  if (!graph.AgainstAngle()) AddIndexColumns(results, x, table);
  if (const Amplitudes amplitudes = AmplitudesOf(results); matrix && amplitudes.S1 != nullptr) {
    LimitTo(amplitudes, table);
    AddSquares(*amplitudes.S1, *amplitudes.S2, table);
  } else {
    AddQuantity(graph, std::move(curves), table);
  }
  return table;
}

ResultColumns AmplitudeColumnsOf(const Results& results) {
  ResultColumns table;
  const RowsShown rows = RowsOfResults(results);
  const Amplitudes amplitudes = AmplitudesOf(results);
  if (amplitudes.S1 == nullptr || rows.last < rows.first) return table;
  const Curves curves = CurvesOf(results, {});
  table.first = At(rows.first);
  table.last = std::min(At(rows.last), curves.x.size() - 1);
  LimitTo(amplitudes, table);
  if (table.last < table.first) return table;
  table.columns.push_back({AxisHeadingOf(results.asked.graph), AxisValues(results, curves)});
  AddAmplitude(results, "S1", *amplitudes.S1, table);
  AddAmplitude(results, "S2", *amplitudes.S2, table);
  return table;
}

std::string TextOfColumns(const ResultColumns& table) {
  if (table.columns.empty() || table.last < table.first) return {};
  std::string text;
  const auto end = [&](const ResultColumns::Column& column) { text += &column == &table.columns.back() ? '\n' : '\t'; };
  for (const auto& column : table.columns) {
    text += column.heading;
    end(column);
  }
  for (std::size_t row = table.first; row <= table.last; ++row)
    for (const auto& column : table.columns) {
      if (std::isfinite(column.values[row])) text += Shortest(column.values[row]);
      end(column);
    }
  return text;
}

}  // namespace lumivex
