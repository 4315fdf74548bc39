#include "session/driver/keep_map.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace lumivex {

namespace {

void KeepColumns(AxisState& axis, const Sweep& columns) {
  axis.AxisMin = columns.low;
  axis.AxisMax = columns.high;
  axis.AxisSteps = columns.steps;
  axis.AxisRatio = columns.geometric ? std::pow(columns.high / columns.low, 1.0 / columns.steps) : 1;
}

/// The channels of a panel; of one wavelength its value three times.
std::array<CellView, 3> ChannelsOf(const MapFound& found, std::size_t panel) {
  const MapPanel& cells = found.panels[panel];
  const auto view = [&](const std::vector<float>& channel) {
    return CellView{cells.red.empty() ? cells.value : channel, found.rows};
  };
  return {view(cells.red), view(cells.green), view(cells.blue)};
}

/// The greatest value of a column; of two polarisations their mean is the third panel.
std::array<double, 3> MaximaOf(const MapFound& found, int column) {
  std::array<double, 3> greatest{};
  const auto raise = [&](std::size_t panel, double value) { greatest[panel] = std::max(greatest[panel], value); };
  const bool polarisations = found.panels.size() == 2;
  const auto channel = [&](std::vector<float> MapPanel::*list) {
    if ((found.panels.front().*list).empty()) return;
    for (std::size_t cell = found.At(column, 0); cell < found.At(column + 1, 0); ++cell) {
      for (std::size_t panel = 0; panel < found.panels.size(); ++panel)
        raise(panel, double{(found.panels[panel].*list)[cell]});
      if (polarisations) raise(2, (double{(found.panels[0].*list)[cell]} + double{(found.panels[1].*list)[cell]}) / 2);
    }
  };
  for (const auto list : {&MapPanel::value, &MapPanel::red, &MapPanel::green, &MapPanel::blue}) channel(list);
  return greatest;
}

}  // namespace

void KeepMap(MainFormState& s, const Results& results, const MapFound& found) {
  const FamilyRun& run = results.asked.run;
  const auto* angles = std::get_if<AngleMapRun>(&run);
  KeepColumns(s, angles != nullptr ? angles->columns : std::get<EfficiencyMapRun>(run).columns);
  LeeResults& lee = s;
  lee = {};
  if (found.panels.size() == 2) {
    const auto first = ChannelsOf(found, 0), second = ChannelsOf(found, 1);
    lee.LeeRedPerp = first[0];
    lee.LeeGreenPerp = first[1];
    lee.LeeBluePerp = first[2];
    lee.LeeRedPar = second[0];
    lee.LeeGreenPar = second[1];
    lee.LeeBluePar = second[2];
  }
  lee.LeeColumnMaximum.Resize(static_cast<std::size_t>(found.columns), 3);
  for (int column = 0; column < found.done; ++column) {
    const auto maxima = MaximaOf(found, column);
    for (std::size_t panel = 0; panel < maxima.size(); ++panel)
      lee.LeeColumnMaximum.At(static_cast<std::size_t>(column), panel) = maxima[panel];
  }
  lee.LeeRowOffset = found.firstRow - 1;
  lee.LeeRowStart = angles != nullptr ? static_cast<int>(std::lround(angles->rows.firstPoint)) : 1;
  lee.LeeRowEnd = angles != nullptr ? static_cast<int>(std::lround(angles->rows.lastPoint)) : found.rows;
  lee.LeeCellWidth = (s.LeePanelWidth - s.GraphLeft) / static_cast<float>(std::max(found.columns - 1, 1));
  s.ColumnIndex = found.done - 1;
  s.RowIndex = found.rows - 1;
}

}  // namespace lumivex
