#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace lumivex {

/// What the program can do, as far as a list, a menu or a table may offer it. An entry of a list or menu whose feature
/// is not in `availableFeatures` is left out of it altogether: nothing that is offered is dead.
enum class Feature {
  Always,
  MieSeries,
  DebyeSeries,
  RayOptics,
  AiryTheory,
  SimpleScattering,  ///< Rayleigh, diffraction, aperture, van de Hulst
  SurfaceWaves,
  CoatedSphere,
  InhomogeneousSphere,
  NonSphericalDrops,
  Heiligenschein,
  Beams,
  AngleIntensity,
  AngleFamily,   ///< phase function, Watts, scattering matrix and the other graphs against angle
  AxisFamilies,  ///< graphs against wavelength, size, index; Q, asymmetry, albedo, power
  ImpulseResponse,
  FourierTransform,
  LeeDiagrams,
  Maps,
  VolumeGraphs,
  GraphLook,  ///< sizes, backgrounds, grids, pens, panels, polar plots
  AllMaterials,
  SeveralWavelengths,
  ColourBars,  ///< bars and maps in colour: brightness, saturation and gamma
  SizeDistributions,
  BatchFiles,
  Simulation,
};

/// The one place that says what is there.
inline constexpr std::array availableFeatures = {
    Feature::Always,
    Feature::MieSeries,
    Feature::AllMaterials,
    Feature::SizeDistributions,
    Feature::DebyeSeries,
    Feature::RayOptics,
    Feature::AiryTheory,
    Feature::SimpleScattering,
    Feature::AngleIntensity,
    Feature::AngleFamily,
    Feature::AxisFamilies,
    Feature::VolumeGraphs,
    Feature::GraphLook,
    Feature::SeveralWavelengths,
    Feature::ColourBars,
    Feature::LeeDiagrams,
    Feature::Maps,
    Feature::BatchFiles,
    Feature::CoatedSphere,
    Feature::InhomogeneousSphere,
    Feature::Simulation,
    Feature::Beams,
    Feature::FourierTransform,
    Feature::SurfaceWaves,
    Feature::NonSphericalDrops,
    Feature::Heiligenschein,
    Feature::ImpulseResponse,
};

constexpr bool IsAvailable(Feature feature) {
  return std::find(availableFeatures.begin(), availableFeatures.end(), feature) != availableFeatures.end();
}

}  // namespace lumivex
