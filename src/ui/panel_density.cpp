#include "ui/panel_density.h"

#include <algorithm>
#include <iterator>

namespace lumivex {

namespace {

constexpr PanelDensity densities[] = {{0.90, 100, false}, {0.86, 100, false}, {0.82, 100, false}, {0.78, 100, false},
                                      {0.75, 100, false}, {0.75, 100, true},  {0.75, 94, true},   {0.73, 90, true},
                                      {0.71, 86, true},   {0.69, 82, true}};

}  // namespace

std::span<const PanelDensity> PanelDensities() {
  return densities;
}

PanelFit FitInto(double roomPx, bool readings, const std::function<double(std::size_t density)>& unitOf) {
  const auto firstThatFits = [&](double units) {
    std::size_t density = 0;
    while (density < std::size(densities) && unitOf(density) * units > roomPx) ++density;
    return density;
  };
  const std::size_t withReadings = readings ? firstThatFits(unitsWithReadings) : std::size(densities);
  if (withReadings < std::size(densities)) return {withReadings, unitsWithReadings};
  return {std::min(firstThatFits(panelUnits), std::size(densities) - 1), panelUnits};
}

}  // namespace lumivex
