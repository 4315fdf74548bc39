#include "session/checks/range_check.h"

#include <array>
#include <string>

#include "session/checks/check.h"

namespace lumivex {

namespace {

// The order is part of the design: the first rule that ends the check decides the message.
constexpr std::array rules = {
    DecimalCommas,  // all others read numbers
    CoatedSphereGraphs,
    ProfileOfIndex,
    DropInputs,
    SellmeierLimits,
    BeamMethods,
    BeamInputs,
    NegativeAbsorption,
    MethodKnown,
    LogarithmicSteps,
    FurtherAxisRange,
    MapRange,
    DistributionWidth,
    PolarPlot,
    CubicInterpolation,
    MethodAgainstGraph,
    BeamGraphs,
    SingleWavelengthBand,
    WavelengthAxisBand,
    NumericInputs,
    LeeDiagramAxis,
    ColourCount,
    LeeDistribution,
    ComplexIndex,
    DebyeInputs,
    AiryInputs,
    DiffractionIndex,
    SurfaceWaveInputs,
    SizeAxis,
    WavelengthAxis,
    SunOnlyAgainstAngle,
    LeeSteps,
    LeeSpecialDistribution,
    AxisStepCount,
    VolumeSpheres,  // the cube, and then the axis that lies in it
    VolumeAxis,
    SunResolution,
    RayleighSize,
    SphereNotTooSmall,
    AngularStep,
    AngleScale,
    MapSize,
    AmplitudeScale,
    LastLogarithmicStep,
};

/// A mark that an earlier check left goes, so that mending one of two marked inputs is enough.
void ClearMarks(Form1& form) {
  for (Control* control : form.Controls())
    if (control->BackColour == colours::BadInput) control->BackColour = colours::White;
}

Verdict AskRules(Check& check) {
  for (const auto& rule : rules)
    if (const Verdict verdict = rule(check); verdict != Verdict::GoOn) return verdict;
  return Verdict::GoOn;
}

}  // namespace

Verdict Refuse(Check& check, std::initializer_list<Control*> marked, std::string_view text, std::string_view title) {
  for (Control* control : marked) control->BackColour = colours::BadInput;
  check.session.platform.Message(title, text);
  return Verdict::End;
}

Verdict Warn(Check& check, std::string_view text, std::string_view title) {
  check.session.platform.Message(title, text);
  return Verdict::GoOn;
}

void RaiseQuietly(Session& session, std::string_view event) {
  const int before = session.state.RestoringSettings;
  session.state.RestoringSettings = 1;
  session.events.Raise(event);
  session.state.RestoringSettings = before;
}

bool IsAxisGraph(const RunState& s) {
  return ChosenGraph(s).AgainstAxis();
}

bool HasWavelengthAxis(const RunState& s) {
  return ChosenGraph(s).WavelengthAxis();
}

void RangeCheck(Session& session, double& Xmin, double& Xmax, double& Ymin, double& Ymax, int& abort) {
  ClearMarks(session.form1);
  Check check{session, session.form1, session.state, Xmin, Xmax, Ymin, Ymax};
  Verdict verdict = AskRules(check);
  if (verdict == Verdict::Repeat) verdict = AskRules(check);
  if (verdict != Verdict::GoOn) {
    abort = 1;
    return;
  }
  Xmin = check.Xmin;
  Xmax = check.Xmax;
  Ymin = check.Ymin;
  Ymax = check.Ymax;
}

}  // namespace lumivex
