#include "session/info.h"

#include <algorithm>

#include "record/number_text.h"
#include "session/driver/progress.h"
#include "session/inputs/methods.h"
#include "session/inputs/sizes/read_sizes.h"

namespace lumivex {

namespace {

std::string Number(double value) {
  return Significant(value, 8);
}

std::string IndexWords(double real, double imaginary) {
  return imaginary == 0 ? Number(real) : Number(real) + " + " + Number(imaginary) + " i";
}

/// First and last of a list and the number between.
std::string SpanWords(const std::vector<double>& values) {
  if (values.size() == 1) return Number(values.front());
  return Number(values.front()) + " to " + Number(values.back()) + " in " + std::to_string(values.size() - 1) +
         " steps";
}

std::string TimeWords(double seconds) {
  return seconds < 1 ? Significant(seconds * 1000, 2) + " ms" : Significant(seconds, 3) + " s";
}

/// The method of the results as its list has it.
std::string MethodName(const MainFormState& s) {
  return std::string(TextOfMethod(static_cast<Method>(s.ResultMethod), s.DiffractionVariant));
}

bool BySeries(const MainFormState& s) {
  return s.ResultMethod <= 2 || s.ResultMethod == 13;
}

/// "117 terms, 3 ms"; the time alone for methods that sum no series.
std::string RunWords(const MainFormState& s) {
  return (BySeries(s) ? std::to_string(s.NSTOP) + " terms, " : "") + TimeWords(s.LastRunSeconds);
}

/// Shortest and longest wavelength of the results.
std::string SpectrumRange(const MainFormState& s) {
  const double first = 1000 * double{s.WavelengthList[1]};
  const double last = 1000 * double{s.WavelengthList[static_cast<std::size_t>(s.ResultWavelengths)]};
  return Significant(std::min(first, last), 6) + " to " + Significant(std::max(first, last), 6) + " nm";
}

bool SizeOnAxis(const MainFormState& s) {
  const Graph* graph = &GraphOf({s.PrevGraphType, s.PrevGraphSubType});
  if (graph->family != Family::Axis) return false;
  const AxisVariable v = graph->axis;
  return v == AxisVariable::Radius || v == AxisVariable::Diameter || v == AxisVariable::SizeParameter;
}

/// The parameters that the record and the inputs hold.
std::vector<std::string> ParametersNow(const Session& session) {
  const auto& s = session.state;
  const auto& form = session.form1;
  std::vector<std::string> lines;
  lines.push_back("Method: " + MethodName(s));
  if (s.ResultMethod > 1 && !form.lblDebyeRays.Caption.empty()) lines.push_back("   " + form.lblDebyeRays.Caption);
  lines.push_back("Graph: " + form.cboGraph.Text);
  const bool spectrum = s.ResultWavelengths > 1;
  const bool twoAngle = s.PrevGraphType == 1 && s.PrevGraphSubType == 5 && !s.TwoAngleRadius.empty();
  if (spectrum) {
    lines.push_back(std::to_string(s.ResultWavelengths) + " wavelengths, " + SpectrumRange(s));
    lines.push_back("Light: " + s.ResultSource);
  } else {
    lines.push_back("Wavelength: " + Number(s.Lambda) + " \u00B5m in vacuo");
  }
  // Of several wavelengths the one in the middle stands for the others.
  const std::string middle = spectrum ? " at " + Significant(1000 * s.Lambda, 6) + " nm" : "";
  if (twoAngle) {
    lines.push_back("Radius: " + SpanWords(s.TwoAngleRadius) + " \u00B5m");
    lines.push_back("Sphere: n = " + SpanWords(s.TwoAngleIndex));
  } else {
    if (!SizeOnAxis(s)) {
      lines.push_back("Radius: " + Number(s.Radius) + " \u00B5m");
      lines.push_back("Size parameter x: " + Number(s.SizeParameter) + middle);
    }
    if (form.optDisp.Checked) lines.push_back("Sizes: " + WordsForSizes(form));
    lines.push_back(form.lblSphere.Caption);
    lines.push_back("   n = " + IndexWords(s.SphereRIReal, s.SphereRIImag) + middle);
  }
  lines.push_back(form.lblRI_Medium.Caption);
  lines.push_back("   n = " + Number(s.MediumRIReal) + middle);
  if (twoAngle) {
    lines.push_back("Angles: " + Number(s.Angle1Min) + " to " + Number(s.Angle1Max) + "\u00B0 and " +
                    Number(s.Angle2Min) + " to " + Number(s.Angle2Max) + "\u00B0");
    lines.push_back("Spheres: " + std::to_string(s.TwoAngleRadius.size() * s.TwoAngleIndex.size()) + ", " +
                    TimeWords(s.LastRunSeconds));
    return lines;
  }
  const std::string unit = s.PrevGraphType < 10 ? "\u00B0" : "";
  lines.push_back(
      form.Frame2.Caption + ": " + Number(s.Xmin) + unit + " to " + Number(s.Xmax) + unit +
      (form.mnuXStepLog.Checked ? " in " + Number(s.Xstep) + " steps" : " in steps of " + Number(s.Xstep) + unit));
  lines.push_back((spectrum || !BySeries(s) ? "Calculated in " : "Series: ") +
                  (spectrum ? TimeWords(s.LastRunSeconds) : RunWords(s)));
  return lines;
}

}  // namespace

std::vector<std::string> RunParameters(const Session& session) {
  return session.state.DrawnLines;
}

void KeepRunParameters(Session& session) {
  auto& s = session.state;
  s.RunLabel = session.form1.lblDebyeRays.Caption;
  s.RunLines = ParametersNow(session);
}

void TakeRunParameters(MainFormState& s) {
  s.DrawnTitle = s.RunTitle;
  s.DrawnLabel = s.RunLabel;
  s.DrawnLines = s.RunLines;
}

void cmdInfo_Click(Session& session) {
  auto& frame = session.form1.Frame6;
  frame.Visible = !frame.Visible;
  session.form1.mnuInfo.Checked = frame.Visible;
  if (!frame.Visible) return;
  frame.Body.clear();
  for (const auto& line : RunParameters(session)) frame.Body += (frame.Body.empty() ? "" : "\n") + line;
}

std::string StatusText(const Session& session) {
  const auto& s = session.state;
  if (session.form1.txtProgress.Visible) {
    const std::string left = TimeLeftWords(s.SecondsLeft);
    return session.form1.txtProgress.Text + (left.empty() ? "" : "   " + left);
  }
  if (s.PrevGraphType == 0) return "Ready";
  const std::string words = s.ResultWavelengths > 1
                                ? std::to_string(s.WavelengthsDone) + " wavelengths, " + TimeWords(s.LastRunSeconds)
                                : RunWords(s);
  return MethodName(s) + ", " + words + (s.StopAnswer != 0 ? ", stopped: Replot draws what was done" : "");
}

}  // namespace lumivex
