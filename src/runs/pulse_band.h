#pragma once

#include <vector>

#include "runs/results.h"
#include "runs/settings.h"
#include "timedomain/impulse_response.h"
#include "timedomain/pulse.h"

namespace lumivex {

/// A pulse with the sphere at each of the wavelengths that it holds.
struct PulseBand {
  Pulse pulse;
  std::vector<Setting> settings;  ///< of k = low..high
  Setting middle;                 ///< at the wavelength of the carrier
  Refusal refusal;                ///< of a pulse without a band, and where a material has no index in it

  bool Good() const { return refusal.text.empty(); }
  std::size_t Count() const { return settings.size(); }
  /// The place of the carrier among the settings.
  std::size_t MiddlePlace() const { return static_cast<std::size_t>(pulse.centre - pulse.low); }
  /// The share of all sums, 0 to 1, that comes before each setting: short waves have more terms.
  std::vector<double> WorkBefore() const;
};

PulseBand BandOf(const RunRequest& request, const PulsedLight& light);

/// The clock of an answer: zero, step and window, for the sphere and the medium at the wavelength of the carrier.
ResponseClock ClockOf(const PulsedLight& light, double radius, double medium);

/// The time (fs) that the last of the rays and surface waves that are worth a window arrives, counted as by the clock:
/// (2 a n/c)(1 + 4 m). What comes later is weak; resonances and the glory have no end.
double WindowWanted(double diameterTime, double m);

/// Samples of a clock between two times (fs): the exact times that they stand at.
struct SampleTimes {
  double first = 0;
  int count = 0;  ///< 0 where none is within
};
SampleTimes SamplesBetween(const ResponseClock& clock, double low, double high);

/// The axis of the whole window at one angle (radians); of efficiencies too, whose clock counts from the pulse.
AxisRun WholeWindow(const RunRequest& request, const PulsedLight& light, double angle);

/// The columns of a picture between two times: every sample, or equal steps where these are wider than a sample, of
/// which each shows the nearest sample. A step that is shown rounded is that of the samples.
Sweep TimeColumns(const ResponseClock& clock, double low, double high, double step);

}  // namespace lumivex
