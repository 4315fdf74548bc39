#include "pages/maps/map_sides.h"

#include <algorithm>
#include <array>

#include "record/number_text.h"

namespace lumivex {

namespace {

/// A swept quantity in words.
struct SideText {
  Swept quantity;
  std::string_view title, firstLine, secondLine, name, unit;
};

constexpr std::array sideTexts = {
    SideText{Swept::Radius, "Radius (\u00B5m)", "Radius", "(\u00B5m)", "Radius", "\u00B5m"},
    SideText{Swept::SphereIndex, "Refractive index", "Refractive", "index", "Refractive index", ""},
    SideText{Swept::SphereAbsorption, "Imaginary refractive index", "Imaginary", "ref. index",
             "Imaginary refractive index", ""},
    SideText{Swept::MediumIndex, "Refractive index", "Refractive", "index", "Refractive index of medium", ""},
    SideText{Swept::Wavelength, "Wavelength (nm)", "Wavelength", "(nm)", "Wavelength", "nm"},
    SideText{Swept::SizeParameter, "Size parameter x", "Size", "parameter x", "Size parameter x", ""},
    SideText{Swept::Time, "Time (fs)", "Time", "(fs)", "Time", "fs"},
};

}  // namespace

MapSide SideOf(const Sweep& sweep) {
  const auto text = std::ranges::find(sideTexts, sweep.quantity, &SideText::quantity);
  return {{sweep.LowShown(), sweep.high, sweep.Count(), sweep.geometric},
          std::string(text->title),
          std::string(text->firstLine),
          std::string(text->secondLine),
          std::string(text->name),
          std::string(text->unit)};
}

MapSide SideOf(const AngleRows& rows, int firstRow, int count) {
  const double lowest = rows.Origin() + (firstRow - 1) * rows.step;
  return {{lowest, lowest + (count - 1) * rows.step, count, false},
          "Scattering angle (deg.)",
          "Scattering",
          "angle (deg.)",
          "Scattering angle",
          "deg"};
}

bool Sweeps(const FamilyRun& run, Swept quantity) {
  if (const auto* angles = std::get_if<AngleMapRun>(&run)) return angles->columns.quantity == quantity;
  const auto* map = std::get_if<EfficiencyMapRun>(&run);
  return map != nullptr && (map->columns.quantity == quantity || map->rows.quantity == quantity);
}

std::string SweepWords(const Sweep& sweep) {
  const MapSide side = SideOf(sweep);
  // Times stand where samples do, and have many digits.
  const bool times = sweep.quantity == Swept::Time;
  const auto number = [times](double value) { return Significant(times ? RoundDecimals(value, 2) : value, 8); };
  return side.name + ": " + number(sweep.LowShown()) + " to " + number(sweep.high) +
         (side.unit.empty() ? "" : " " + side.unit) + " in " + CountOf(sweep.steps, "step") +
         (sweep.geometric && sweep.steps > 1 ? " of equal ratio" : "");
}

}  // namespace lumivex
