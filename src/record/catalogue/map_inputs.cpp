#include "record/catalogue/map_inputs.h"

#include <algorithm>
#include <array>

namespace lumivex {

namespace {

constexpr std::array inputRows = {
    MapInputs{.code = {19, 1}, .size = SizeField::Radius},
    MapInputs{.code = {20, 1}, .further = false},
    MapInputs{.code = {20, 2}, .size = SizeField::Angle, .further = false, .absorption = true, .fixedMedium = true},
    MapInputs{.code = {22, 1}, .size = SizeField::Radius, .held = Swept::SphereAbsorption},
    MapInputs{.code = {22, 2}, .size = SizeField::Radius},
    MapInputs{.code = {23, 1}, .size = SizeField::Angle, .held = Swept::SphereIndex},
    MapInputs{.code = {24, 1}},
    MapInputs{.code = {25, 1}, .size = SizeField::Angle},
    MapInputs{.code = {26, 1}, .held = Swept::SphereAbsorption, .fixedMedium = true},
    MapInputs{.code = {26, 2}, .held = Swept::SphereAbsorption, .fixedMedium = true},
    MapInputs{.code = {26, 4}, .held = Swept::SphereAbsorption, .fixedMedium = true, .angle = true},
    MapInputs{.code = {27, 1}, .held = Swept::SphereIndex, .fixedMedium = true},
    MapInputs{.code = {28, 1}, .held = Swept::SizeParameter, .fixedMedium = true},
    MapInputs{.code = {28, 3}, .held = Swept::SizeParameter, .fixedMedium = true, .angle = true},
};

constexpr std::string_view radiusLabel = "Radius (\u00B5m)", limitsLabel = "Minimum, maximum",
                           stepsLabel = "No. of steps", angleLabel = "Scattering angle",
                           imaginaryIndex = "Refractive index (imag)", realIndex = "Refractive index (real)",
                           sizeParameter = "Size parameter x", ofSphere = "Refractive index sphere";

constexpr std::array captionRows = {
    ControlText{{19, 0}, "Frame9", "Time axis"},       ControlText{{19, 0}, "Label32", "Time (femtoseconds)"},
    ControlText{{19, 0}, "Label35", "Step (fs)"},      ControlText{{20, 0}, "Frame9", ofSphere},
    ControlText{{20, 0}, "Label32", "Imaginary part"}, ControlText{{20, 1}, "Label7", "Minimum radius"},
    ControlText{{20, 1}, "Label24", "Maximum radius"}, ControlText{{20, 1}, "Frame3", "Drop size"},
    ControlText{{20, 2}, "Label7", "Minimum RI"},      ControlText{{20, 2}, "Label24", "Maximum RI"},
    ControlText{{20, 2}, "Frame3", ofSphere},          ControlText{{20, 2}, "Label19", radiusLabel},
    ControlText{{22, 1}, "Frame9", ofSphere},          ControlText{{22, 2}, "Frame9", "Refractive index medium"},
    ControlText{{22, 0}, "Label30", "Imaginary part"}, ControlText{{22, 0}, "Label32", "Real part"},
    ControlText{{22, 0}, "Label35", stepsLabel},       ControlText{{23, 1}, "Frame9", ofSphere},
    ControlText{{23, 1}, "Label30", "Real part"},      ControlText{{23, 1}, "Label32", "Imaginary part"},
    ControlText{{23, 1}, "Label35", stepsLabel},       ControlText{{23, 1}, "Label19", radiusLabel},
    ControlText{{24, 1}, "Frame9", "Radius"},          ControlText{{24, 1}, "Label32", limitsLabel},
    ControlText{{24, 1}, "Label35", stepsLabel},       ControlText{{25, 1}, "Frame9", "Wavelength (nm)"},
    ControlText{{25, 1}, "Label32", limitsLabel},      ControlText{{25, 1}, "Label35", stepsLabel},
    ControlText{{25, 1}, "Label19", radiusLabel},      ControlText{{26, 0}, "Frame2", sizeParameter},
    ControlText{{26, 0}, "Frame8", "Vertical scale"},  ControlText{{26, 0}, "Label30", imaginaryIndex},
    ControlText{{26, 0}, "Label32", realIndex},        ControlText{{26, 4}, "Label19", angleLabel},
    ControlText{{27, 1}, "Frame2", sizeParameter},     ControlText{{27, 1}, "Frame8", "Vertical scale"},
    ControlText{{27, 1}, "Label30", realIndex},        ControlText{{27, 1}, "Label32", imaginaryIndex},
    ControlText{{28, 0}, "Frame2", imaginaryIndex},    ControlText{{28, 0}, "Frame8", "Horizontal scale"},
    ControlText{{28, 0}, "Label30", sizeParameter},    ControlText{{28, 0}, "Label32", realIndex},
    ControlText{{28, 3}, "Label19", angleLabel},
};

/// What all maps without angles have in common.
constexpr std::array cellCaptions = {
    ControlText{{0, 0}, "Frame9", "Particle"},       ControlText{{0, 0}, "Label5", stepsLabel},
    ControlText{{0, 0}, "Label35", stepsLabel},      ControlText{{0, 0}, "Label2", "Maximum value"},
    ControlText{{0, 0}, "Label3", "Minimum value"},  ControlText{{0, 0}, "Label18", "Colour scale"},
    ControlText{{0, 0}, "Label26", "Intensity map"},
};

constexpr std::array sweepRows = {
    ControlText{{20, 1}, "txtRadius", "10"}, ControlText{{20, 1}, "txtRmax", "20"},
    ControlText{{20, 1}, "txtRstep", "4"},   ControlText{{20, 2}, "txtRadius", "1.1"},
    ControlText{{20, 2}, "txtRmax", "2"},    ControlText{{20, 2}, "txtRstep", "10"},
    ControlText{{20, 2}, "txtAngle", "10"},
};

constexpr std::array startRows = {
    ControlText{{20, 1}, "txtXmin", "178"},       ControlText{{20, 1}, "txtXmax", "180"},
    ControlText{{20, 1}, "cboStep", "0.05"},      ControlText{{20, 2}, "txtXmin", "170"},
    ControlText{{20, 2}, "txtXmax", "180"},       ControlText{{20, 2}, "cboStep", "0.1"},
    ControlText{{20, 0}, "cboWave", "3"},         ControlText{{20, 0}, "cboDistrib", "Log-normal"},
    ControlText{{19, 0}, "cboWave", "1"},         ControlText{{19, 0}, "txtXmin", "0"},
    ControlText{{19, 0}, "txtXmax", "180"},       ControlText{{19, 0}, "cboStep", "0.5"},
    ControlText{{19, 0}, "cboBright", "3"},       ControlText{{22, 0}, "cboWave", "1"},
    ControlText{{22, 0}, "txtF9_fixed", "0"},     ControlText{{22, 0}, "txtF9_min", "1.1"},
    ControlText{{22, 0}, "txtF9_max", "1.5"},     ControlText{{22, 0}, "txtF9_step", "4"},
    ControlText{{22, 0}, "txtXmin", "178"},       ControlText{{22, 0}, "txtXmax", "180"},
    ControlText{{22, 0}, "cboStep", "0.05"},      ControlText{{23, 1}, "txtF9_min", "0.001"},
    ControlText{{23, 1}, "txtF9_max", "0.01"},    ControlText{{23, 1}, "txtF9_step", "4"},
    ControlText{{23, 1}, "txtF9_fixed", "1.333"}, ControlText{{23, 1}, "txtXmin", "137"},
    ControlText{{23, 1}, "txtXmax", "145"},       ControlText{{23, 1}, "cboStep", "0.05"},
    ControlText{{23, 1}, "txtAngle", "10"},       ControlText{{23, 1}, "cboWave", "1"},
    ControlText{{24, 1}, "txtF9_min", "5"},       ControlText{{24, 1}, "txtF9_max", "20"},
    ControlText{{24, 1}, "txtF9_step", "4"},      ControlText{{24, 1}, "txtLambda", "0.65"},
    ControlText{{24, 1}, "txtRadius", "10"},      ControlText{{24, 1}, "cboPol", "Both"},
    ControlText{{24, 1}, "txtXmin", "137"},       ControlText{{24, 1}, "txtXmax", "145"},
    ControlText{{24, 1}, "cboStep", "0.05"},      ControlText{{24, 1}, "cboWave", "1"},
    ControlText{{25, 1}, "txtF9_min", "400"},     ControlText{{25, 1}, "txtF9_max", "700"},
    ControlText{{25, 1}, "txtF9_step", "4"},      ControlText{{25, 1}, "txtXmin", "137"},
    ControlText{{25, 1}, "txtXmax", "145"},       ControlText{{25, 1}, "cboStep", "0.05"},
    ControlText{{25, 1}, "txtAngle", "10"},       ControlText{{25, 1}, "cboWave", "1"},
    ControlText{{25, 1}, "txtLambda", "0.65"},    ControlText{{25, 1}, "cboPol", "Both"},
    ControlText{{26, 0}, "txtXmin", "0.1"},       ControlText{{26, 0}, "txtXmax", "20"},
    ControlText{{26, 0}, "txtF9_fixed", "0"},     ControlText{{26, 0}, "txtF9_min", "1.1"},
    ControlText{{26, 0}, "txtF9_max", "2"},       ControlText{{27, 1}, "txtXmin", "0.1"},
    ControlText{{27, 1}, "txtXmax", "20"},        ControlText{{27, 1}, "txtF9_fixed", "1.5"},
    ControlText{{27, 1}, "txtF9_min", "0"},       ControlText{{27, 1}, "txtF9_max", "0.5"},
    ControlText{{28, 0}, "txtXmin", "0"},         ControlText{{28, 0}, "txtXmax", "0.5"},
    ControlText{{28, 0}, "txtF9_fixed", "10"},    ControlText{{28, 0}, "txtF9_min", "1.1"},
    ControlText{{28, 0}, "txtF9_max", "2"},
};

constexpr std::array cellStarts = {
    ControlText{{0, 0}, "txtAngle", "170"},   ControlText{{0, 0}, "txtRefractMedium", "1.33"},
    ControlText{{0, 0}, "cboWave", "1"},      ControlText{{0, 0}, "cboStep", "100"},
    ControlText{{0, 0}, "txtF9_step", "100"},
};

/// The rows of single graphs with those that all maps without angles share.
template <std::size_t own, std::size_t shared>
constexpr auto WithShared(const std::array<ControlText, own>& rows, const std::array<ControlText, shared>& ofCells) {
  constexpr std::array types = {26, 27, 28};
  std::array<ControlText, own + types.size() * shared> all{};
  auto next = std::ranges::copy(rows, all.begin()).out;
  for (const int type : types)
    for (const ControlText& row : ofCells) *next++ = {{type, 0}, row.control, row.text};
  return all;
}

constexpr auto allCaptions = WithShared(captionRows, cellCaptions);
constexpr auto allStarts = WithShared(startRows, cellStarts);

}  // namespace

const MapInputs* FindMapInputs(const Graph& graph) {
  const auto row = std::ranges::find(inputRows, graph.code, &MapInputs::code);
  return row == inputRows.end() ? nullptr : &*row;
}

std::span<const ControlText> MapCaptions() {
  return allCaptions;
}

std::span<const ControlText> MapStarts() {
  return allStarts;
}

std::span<const ControlText> SweepStarts() {
  return sweepRows;
}

std::string_view MapScaleAtStart(const Graph& graph, bool oneWavelength) {
  const bool overIndex = graph.family == Family::AngleMap && (graph.VariesIndex() || graph.VariesMedium()) &&
                         FindSwept(graph)->columns != Swept::SphereAbsorption;
  return graph.family == Family::Lee || (overIndex && !oneWavelength) ? "Normalised" : "Absolute";
}

}  // namespace lumivex
