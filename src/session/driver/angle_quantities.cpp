#include "session/driver/angle_quantities.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "record/number_text.h"
#include "solvers/angles/angle_grid.h"
#include "solvers/angles/scattering_pattern.h"

namespace lumivex {

namespace {

constexpr double pi = 3.14159265358979324;

/// Rows of the present run that were summed.
struct Rows {
  int low, high;
};

Rows RowsOf(const MainFormState& s) {
  return {s.AngleLow, std::min(s.AngleHigh, s.S1.Rows())};
}

void ScaleCurves(MainFormState& s, double factor) {
  const Rows rows = RowsOf(s);
  for (int row = rows.low; row <= rows.high; ++row)
    for (auto* curve : {&s.Iperp, &s.Ipar, &s.Iunpol}) (*curve)[static_cast<std::size_t>(row)] *= factor;
}

/// |S|^2 of the sphere itself, also where the amplitudes were divided by x.
double UndoDivision(const Session& session) {
  const double x = session.state.SizeParameter;
  return session.form1.mnuSize.Checked ? x * x : 1;
}

/// Whether the stored results are means over the sizes of a cloud.
bool IsCloud(const SizeState& s) {
  return !s.CloudCrossRe.empty();
}

void PhaseFunction(Session& session) {
  auto& s = session.state;
  const std::size_t first = 1, count = static_cast<std::size_t>(s.NN);
  double mean = 0;
  if (s.CalcMethod == 1 && !IsCloud(s)) {
    mean = s.SizeParameter * s.SizeParameter * s.Qsca / 4 / UndoDivision(session);
  } else {
    mean = SphereMean(std::span(s.Iunpol).subspan(first, count));
  }
  ScaleCurves(s, mean > 0 ? 1 / mean : 0);
}

void Watts(Session& session) {
  auto& s = session.state;
  const double k = s.WaveNumber;
  const AngleGrid grid(s.NANG);
  const int rows = std::min(s.NN, s.AngleHigh);
  double all = 0, back = 0;
  for (int row = 1; row <= rows; ++row) {
    const double power = s.Iunpol[static_cast<std::size_t>(row)] * std::sin(grid.Angle(row));
    all += power;
    if (row >= s.NANG) back += row == s.NANG ? power / 2 : power;
  }
  const double scale = UndoDivision(session) * s.IncidentDensity * 2 * pi / (k * k) * grid.DANG;
  s.ScatteredPower = scale * all;
  s.BackscatteredPower = scale * back;
  ScaleCurves(s, UndoDivision(session) * s.IncidentDensity / (k * k * s.Distance * s.Distance));
}

void DifferentialCrossSection(Session& session) {
  auto& s = session.state;
  ScaleCurves(s, UndoDivision(session) / (s.WaveNumber * s.WaveNumber));
}

void Mueller(Session& session) {
  auto& s = session.state;
  const Rows rows = RowsOf(s);
  for (int row = rows.low; row <= rows.high; ++row) {
    const auto i = static_cast<std::size_t>(row);
    if (std::isfinite(s.Iperp[i])) FillMatrixPoint(s, i, {s.S1.Value(row), s.S2.Value(row)});
  }
}

void Cumulative(Session& session) {
  auto& s = session.state;
  const std::size_t first = 1, count = static_cast<std::size_t>(s.NN);
  for (auto* curve : {&s.Iperp, &s.Ipar, &s.Iunpol}) {
    const auto rows = std::span(*curve).subspan(first, count);
    std::ranges::copy(CumulativeProbability(rows), rows.begin());
  }
}

struct QuantityRow {
  int subType;
  bool allRows;
  void (*apply)(Session&);
};
constexpr std::array quantities = {
    QuantityRow{2, true, PhaseFunction},
    QuantityRow{3, true, Watts},
    QuantityRow{4, false, DifferentialCrossSection},
    QuantityRow{6, false, Mueller},
    QuantityRow{7, true, Cumulative},
};

}  // namespace

bool NeedsAllRows(const RunState& s) {
  return s.GraphType == 1 && std::ranges::any_of(quantities, [&](const QuantityRow& q) {
           return q.subType == s.GraphSubType && q.allRows;
         });
}

void FillMatrixPoint(MainFormState& s, std::size_t i, const AmplitudePair& pair) {
  ScatteringMatrix m = MatrixOf(pair.S1, pair.S2);
  if (IsCloud(s) && i < s.CloudCrossRe.size()) {
    // S33 - i S34 is S1 conj(S2).
    m.S33 = s.CloudCrossRe[i];
    m.S34 = -s.CloudCrossIm[i];
  }
  ResultArrays& r = s;
  const double scale = m.S11 > 0 ? 1 / m.S11 : 0;
  r.Iperp[i] = r.Ipar[i] = r.Iunpol[i] = m.S11;
  r.Extra1[i] = m.S12 * scale;
  r.Extra2[i] = m.S33 * scale;
  r.Extra3[i] = m.S34 * scale;
}

void ApplyAngleQuantity(Session& session) {
  const auto& s = session.state;
  if (s.GraphType != 1) return;
  for (const auto& quantity : quantities)
    if (quantity.subType == s.GraphSubType) quantity.apply(session);
}

}  // namespace lumivex
