#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "record/session.h"

namespace lumivex {

/// What the rules look at, and the limits of the axes as numbers.
struct Check {
  Session& session;
  Form1& form;
  MainFormState& state;
  double Xmin = 0, Xmax = 0, Ymin = 0, Ymax = 0;
  bool waterExchanged = false;  ///< a rule has put another water model in place; the check runs once more
};

/// Whether the rules after this one are asked.
enum class Verdict { GoOn, End, Repeat };

inline constexpr std::string_view inputError = "Input error";
inline constexpr std::string_view automaticLimit = "Automatic";

/// Marks inputs red, tells why and ends the check.
Verdict Refuse(Check& check, std::initializer_list<Control*> marked, std::string_view text,
               std::string_view title = inputError);

/// Tells, and goes on.
Verdict Warn(Check& check, std::string_view text, std::string_view title = inputError);

/// Raises an event with dialogs held back, as while settings are restored.
void RaiseQuietly(Session& session, std::string_view event);

/// Whether the graph has an axis of wavelength.
bool HasWavelengthAxis(const RunState& s);
/// Whether it has an axis of points.
bool IsAxisGraph(const RunState& s);

// The rules, in the order in which they stand in range_check.cpp.
// An input that is not on the screen is never the reason of a refusal.
Verdict DecimalCommas(Check& check);
Verdict CoatedSphereGraphs(Check& check);
Verdict ProfileOfIndex(Check& check);
Verdict DropInputs(Check& check);
Verdict SellmeierLimits(Check& check);
Verdict BeamMethods(Check& check);
Verdict BeamInputs(Check& check);
Verdict BeamGraphs(Check& check);
Verdict NegativeAbsorption(Check& check);
Verdict MethodKnown(Check& check);
Verdict LogarithmicSteps(Check& check);
Verdict FurtherAxisRange(Check& check);
Verdict MapRange(Check& check);
Verdict DistributionWidth(Check& check);
Verdict PolarPlot(Check& check);
Verdict CubicInterpolation(Check& check);
Verdict MethodAgainstGraph(Check& check);
Verdict SingleWavelengthBand(Check& check);
Verdict WavelengthAxisBand(Check& check);
Verdict NumericInputs(Check& check);
Verdict LeeDiagramAxis(Check& check);
Verdict ColourCount(Check& check);
Verdict LeeDistribution(Check& check);
Verdict ComplexIndex(Check& check);
Verdict DebyeInputs(Check& check);
Verdict AiryInputs(Check& check);
Verdict DiffractionIndex(Check& check);
Verdict SurfaceWaveInputs(Check& check);
Verdict SizeAxis(Check& check);
Verdict WavelengthAxis(Check& check);
Verdict SunOnlyAgainstAngle(Check& check);
Verdict LeeSteps(Check& check);
Verdict MapSize(Check& check);
Verdict LeeSpecialDistribution(Check& check);
Verdict AxisStepCount(Check& check);
Verdict VolumeAxis(Check& check);
Verdict VolumeSpheres(Check& check);
Verdict SunResolution(Check& check);
Verdict RayleighSize(Check& check);
Verdict SphereNotTooSmall(Check& check);
Verdict AngularStep(Check& check);
Verdict AngleScale(Check& check);
Verdict AmplitudeScale(Check& check);
Verdict LastLogarithmicStep(Check& check);

}  // namespace lumivex
