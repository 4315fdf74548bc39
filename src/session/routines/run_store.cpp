#include "session/routines/run_store.h"

#include <algorithm>

#include "record/number_text.h"

namespace lumivex {

std::string MaterialsText(const Session& session) {
  const auto& s = session.state;
  return std::string(Trim(s.SphereName)) + " in " + std::string(Trim(s.MediumName));
}

void WriteRunTitle(Session& session, const std::string& words) {
  session.state.RunTitle = words + MaterialsText(session);
}

AngleGrid GridOf(const SolverCall& call) {
  return call.angle ? AngleGrid::At(*call.angle) : AngleGrid(call.NANG);
}

RowWindow WindowOf(const SolverCall& call) {
  return {std::max(call.RowLow, 1), std::min(call.RowHigh, GridOf(call).RowCount())};
}

void StoreGrid(Session& session, const SolverCall& call) {
  if (call.angle) return;
  auto& s = session.state;
  const AngleGrid grid(call.NANG);
  s.NANG = grid.NANG;
  s.NN = grid.RowCount();
  s.DANG = grid.DANG;
}

void ClearAmplitudes(const AngleGrid& grid, AmplitudeTable& S1, AmplitudeTable& S2) {
  const int rows = std::max(grid.RowCount(), S1.Rows());
  S1.Resize(rows);
  S2.Resize(rows);
}

void CopyRows(const AmplitudeTable& from, AmplitudeTable& to) {
  for (int row = 1; row <= from.Rows(); ++row) to.Set(row, from.Re(row), from.Im(row));
}

}  // namespace lumivex
