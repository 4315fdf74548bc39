#pragma once

#include <optional>
#include <string_view>
#include <variant>
#include <vector>

namespace lumivex {

/// n(r) proportional to r^alpha exp(-b r^gamma), r in um: the modified gamma distribution.
struct GammaSizes {
  double alpha = 0, b = 0, gamma = 1;
  bool operator==(const GammaSizes&) const = default;
};

/// A log-normal mode: dn/dln r = fraction/(sqrt(2 pi) ln spread) exp(-(ln(r/median)/ln spread)^2/2).
struct SizeMode {
  double median = 0;    ///< um
  double spread = 0;    ///< geometric standard deviation, above 1
  double fraction = 0;  ///< number, relative to the other modes
  bool operator==(const SizeMode&) const = default;
};

using SizeModel = std::variant<GammaSizes, std::vector<SizeMode>>;

/// Cumulus cloud C1 (D. Deirmendjian, Electromagnetic Scattering on Spherical Polydispersions, 1969): r^6 exp(-1.5 r).
inline constexpr GammaSizes CumulusCloud{6, 1.5, 1};
/// Haze M of the same source: r exp(-8.944 sqrt r).
inline constexpr GammaSizes Haze{1, 8.944, 0.5};

/// The standard gamma distribution of a shape with an effective radius (the ratio of the third to the second moment):
/// r^(shape - 1) exp(-r (shape + 2)/effectiveRadius). Nothing where one of them is not positive.
std::optional<GammaSizes> GammaOfShape(double shape, double effectiveRadius);

/// Aerosols of three log-normal modes (R. Jaenicke, Tropospheric aerosols, in Aerosol-Cloud-Climate Interactions, 1993;
/// weighted by number): "Aerosol m0" maritime, "Aerosol m6" rural. Empty for another name.
std::vector<SizeMode> AerosolModes(std::string_view name);

/// Whether all modes can be used: median and fraction not below 0, spread above 1, and some number in them.
bool AreUsable(const std::vector<SizeMode>& modes);

/// Number per unit of radius, to a constant factor that depends on the model only.
double NumberDensity(const SizeModel& model, double radius);
/// Share of the particles smaller than a radius.
double NumberBelow(const SizeModel& model, double radius);
/// Share of the sum of r^2, which light is scattered by, that particles smaller than a radius have.
double AreaBelow(const SizeModel& model, double radius);

enum class SizeSteps { Ratio, Equal };

/// Samples of a model; first index 1.
struct SizeSamples {
  std::vector<double> radius;  ///< um
  std::vector<double> weight;  ///< share of the particles in the slice; with `outside` the sum is 1
  double outside = 0;          ///< share of the particles beyond the range
  float lowest = 0;            ///< range that holds all but 1e-4 of the sum of r^2
  float highest = 0;
  double ratio = 1;  ///< of neighbouring radii; 1 with equal steps
};

/// Cuts the range into slices of equal ratio or width and takes the middle of each; its weight is the density there
/// times the slice's width.
///
/// The range goes by area and not by number: of an aerosol of dust most particles scatter next to nothing, and the few
/// large ones nearly all. Particles beyond it are told, so that means count them.
SizeSamples SampleModel(const SizeModel& model, int count, SizeSteps steps);

}  // namespace lumivex
