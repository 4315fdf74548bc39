#pragma once

#include <string>
#include <vector>

#include "record/session.h"

namespace lumivex {

/// A band of wavelengths (um, in vacuo) in which a material in use is known, and what is said beyond it.
struct MaterialBand {
  double low = 0, high = 0;
  std::string name = {};       ///< "Gold"
  std::string title = {};      ///< of the message
  std::string one = {};        ///< at a single wavelength
  std::string range = {};      ///< over an axis or a spectrum
  bool sphereFormula = false;  ///< the sphere's water by the formula of the IAPWS, which Segelstein's table can replace

  /// Whether wavelengths (um) lie in the band. Both sides are rounded: tables hold their limits in single precision,
  /// and 1e-7 um is beyond what any of them tells apart.
  bool Holds(double lowest, double highest) const;
};

/// The bands of the materials ticked for the sphere and the medium; a water model that both take has one. Water first,
/// then files, then metals. Materials that are known everywhere have none.
std::vector<MaterialBand> BandsInUse(const Session& session);

/// Wavelengths of a run that has more than one.
struct WavelengthRange {
  double low = 0, high = 0;  ///< um
  bool onAxis = false;       ///< typed as the limits of the axis
  bool onFurther = false;    ///< typed as those of a map's columns
  bool ofPulse = false;      ///< those that a pulse of the wavelength holds
  bool Any() const { return onAxis || onFurther || high > 0; }
};

/// Those of the axis, or of the spectrum; 0 to 0 for a run at one wavelength.
WavelengthRange RangeOfRun(const Session& session);

/// Which wavelengths would work, where a material in use is not known over the whole wavelength axis: for the status
/// line. Empty where all is well.
std::string WayOutOfBand(const Session& session);

}  // namespace lumivex
