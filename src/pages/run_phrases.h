#pragma once

#include <optional>
#include <string>

#include "axes/panel_map.h"
#include "runs/results.h"

namespace lumivex {

// What is told of one thing of a run: parameters and marks are made of these.

inline constexpr double degreesPerRadian = 180 / 3.14159265358979324;

/// A number with all the digits that somebody may have typed.
std::string Number(double value);
std::string IndexWords(double real, double imaginary);

/// "400 to 700 nm in steps of 0.5 nm".
std::string AxisRange(double xmin, double xmax, double step, bool logSteps, const std::string& unit);
/// The unit behind a number of the horizontal axis.
std::string UnitOfAxis(const Graph& graph);
/// Scattering angles that a graph against something else is for: "140\u00B0", "0 to 180\u00B0"; empty without.
std::string AnglesAsked(const RunRequest& asked);

/// The beam; empty in a plane wave.
std::string BeamWords(const Illumination& light);
/// What tells the series of a beam from others beside the beam itself: limits and sums that were typed.
std::string BeamSumWords(const Illumination& light);
/// The pulse that a run answers; null in steady light.
const PulsedLight* PulseOf(const RunRequest& asked);

/// Whether the run has a radius of its own. Sizes that a table or a model has by itself are those of none.
bool HasRadius(const RunRequest& asked);
std::string SizesWords(const RunRequest& asked);
/// The wavelengths (nm) that an axis or a map goes through; nothing at one wavelength.
std::optional<XRange> WavelengthRange(const RunRequest& asked);
/// Refractive index of the sphere, or of the medium, as far as it is one of the run; empty where the axis has it.
std::string IndexOf(const Results& results, bool medium);
std::string LayersWords(const ProfileLayers& layers);

}  // namespace lumivex
