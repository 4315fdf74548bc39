#pragma once

#include <optional>
#include <vector>

#include "record/session.h"

namespace lumivex {

/// Most curves of a two-angle chart, and most spheres in all: minutes of calculation, 16 MB of results.
inline constexpr int mostTwoAngleCurves = 400;
inline constexpr double mostTwoAngleSpheres = 1e6;

/// The inputs of a two-angle chart as numbers.
struct TwoAngleInputs {
  double angle1Min = 0, angle1Max = 0, angle2Min = 0, angle2Max = 0;  ///< degrees
  std::vector<double> index;   ///< of the sphere in vacuo, by column, first index 0
  std::vector<double> radius;  ///< um, by row, first index 0
};

/// Reads dlogTwoAngle. An input that cannot be used is marked and told; nothing then.
std::optional<TwoAngleInputs> ReadTwoAngleInputs(Session& session);

/// Shows the dialog, unless settings are being restored.
void AskTwoAngle(Session& session);

/// Chooses the graph; where it is chosen already, shows its dialog.
void mnuTwoAngle_Click(Session& session);

/// OK of the dialog holds the inputs against their limits.
void dlogTwoAngle_OKButton_Click(Session& session);

}  // namespace lumivex
