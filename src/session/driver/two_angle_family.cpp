#include "session/driver/two_angle_family.h"

#include <algorithm>
#include <limits>

#include "session/driver/progress.h"
#include "session/inputs/two_angle_inputs.h"
#include "session/routines/mie.h"
#include "solvers/angles/angle_window.h"

namespace lumivex {

namespace {

constexpr double pi = 3.14159265358979324;
constexpr double notComputed = std::numeric_limits<double>::quiet_NaN();
constexpr int stopRequested = 4;

/// What one sphere of many reports to: its share of the work is a share of one of `spheres`.
class SphereMonitor final : public RunMonitor {
 public:
  SphereMonitor(Session& session, double spheres) : session_(session), spheres_(spheres) {}

  bool Report(std::size_t index, std::size_t count) override {
    const double share = count > 0 ? static_cast<double>(index) / static_cast<double>(count) : 1;
    Show(done_ + share);
    return session_.state.PlotMode != stopRequested;
  }
  void SphereDone() { Show(++done_); }

 private:
  void Show(double spheresDone) {
    auto& s = session_.state;
    s.AngleLoopIndex = static_cast<int>(spheresDone / spheres_ * s.NN);
    Progress(session_);
  }

  Session& session_;
  double spheres_;
  double done_ = 0;
};

AngleRange Radians(double low, double high) {
  return {low * pi / 180, high * pi / 180};
}

/// The rows that both ranges need.
RowWindow RowsOfBoth(const RowWindow& a, const RowWindow& b) {
  return {std::min(a.low, b.low), std::max(a.high, b.high)};
}

struct ChartTables {
  Table2D first, second;
};

/// Fills the tables, column by column; false when the run was refused.
bool FillTables(Session& session, const TwoAngleInputs& inputs, ChartTables& tables) {
  auto& s = session.state;
  const AngleGrid grid(twoAngleRowsTo90);
  const AngleRange first = Radians(inputs.angle1Min, inputs.angle1Max);
  const AngleRange second = Radians(inputs.angle2Min, inputs.angle2Max);
  const RowWindow rows = RowsOfBoth(RowsOfRange(grid, first), RowsOfRange(grid, second));
  const double k = 2 * pi * s.MediumRIReal / s.Lambda;  // 1/um
  const bool divided = session.form1.mnuSize.Checked;
  SphereMonitor monitor(session, static_cast<double>(inputs.index.size() * inputs.radius.size()));
  AmplitudeTable S1, S2;
  const int columns = static_cast<int>(inputs.index.size()), lines = static_cast<int>(inputs.radius.size());
  for (s.ColumnIndex = 0; s.ColumnIndex < columns && s.PlotMode != stopRequested; ++s.ColumnIndex) {
    const auto column = static_cast<std::size_t>(s.ColumnIndex);
    s.RefRelReal = inputs.index[column] / s.MediumRIReal;
    for (s.RowIndex = 0; s.RowIndex < lines; ++s.RowIndex) {
      const auto row = static_cast<std::size_t>(s.RowIndex);
      s.Radius = inputs.radius[row];
      s.SizeParameter = k * s.Radius;
      BHMIE(session, {s.SizeParameter, s.RefRelReal, s.RefRelImag, twoAngleRowsTo90, rows.low, rows.high}, S1, S2,
            s.Qext, s.Qsca, s.Qback, s.Gsca, monitor);
      if (s.PlotMode == stopRequested) break;
      const double scale = 2 * pi / (k * k) * (divided ? s.SizeParameter * s.SizeParameter : 1);
      tables.first.At(row, column) = scale * IntegrateProduct(S1, S2, grid, first);
      tables.second.At(row, column) = scale * IntegrateProduct(S1, S2, grid, second);
      monitor.SphereDone();
      if (s.PlotMode == stopRequested) break;
    }
  }
  return s.PlotMode != stopRequested || s.StopAnswer != 0;
}

}  // namespace

void CalculateTwoAngle(Session& session) {
  auto& s = session.state;
  const auto inputs = ReadTwoAngleInputs(session);
  if (!inputs) {
    s.PlotMode = stopRequested;
    return;
  }
  s.NANG = twoAngleRowsTo90;
  s.NN = 2 * s.NANG - 1;
  ChartTables tables;
  for (Table2D* table : {&tables.first, &tables.second}) {
    table->Resize(inputs->radius.size(), inputs->index.size());
    std::ranges::fill(table->cells, notComputed);
  }
  if (!FillTables(session, *inputs, tables)) return;
  // The sphere varies, so that no material can be named.
  s.RunTitle = "Mie scattering into two ranges of angle";
  s.MapPerp = std::move(tables.first);
  s.MapPar = std::move(tables.second);
  s.Angle1Min = inputs->angle1Min;
  s.Angle1Max = inputs->angle1Max;
  s.Angle2Min = inputs->angle2Min;
  s.Angle2Max = inputs->angle2Max;
  s.TwoAngleIndex = inputs->index;
  s.TwoAngleRadius = inputs->radius;
}

}  // namespace lumivex
