#include "session/inputs/input_tips.h"

#include <string>

#include "record/catalogue/map_inputs.h"

namespace lumivex {

namespace {

/// What runs along an axis, with its unit, in the middle of a sentence.
std::string AxisWords(AxisVariable axis) {
  switch (axis) {
    case AxisVariable::Wavelength:
      return "wavelength in vacuum, in nanometres";
    case AxisVariable::Radius:
      return "radius of the sphere in micrometres";
    case AxisVariable::Diameter:
      return "diameter of the sphere in micrometres";
    case AxisVariable::SizeParameter:
      return "size parameter x of the sphere";
    case AxisVariable::RefractiveIndex:
      return "refractive index of the sphere";
    case AxisVariable::Place:
      return "position x of the sphere that moves, in micrometres from a face of the cube";
    case AxisVariable::Number:
      return "number of spheres, 1 to 1000000";
    case AxisVariable::Time:
      return "time since the spheres began to move, in seconds";
    case AxisVariable::Terms:
      return "number of terms of the series";
    case AxisVariable::Angle:
      return "scattering angle in degrees";
    default:
      return "";
  }
}

std::string UnitOfStep(AxisVariable axis) {
  switch (axis) {
    case AxisVariable::Wavelength:
      return " in nanometres";
    case AxisVariable::Radius:
    case AxisVariable::Diameter:
    case AxisVariable::Place:
      return " in micrometres";
    case AxisVariable::Number:
      return ", a whole number of spheres";
    case AxisVariable::Time:
      return " in seconds";
    case AxisVariable::Angle:
      return " in degrees";
    default:
      return "";
  }
}

void WriteSizeTip(Form1& form) {
  if (form.mnuDiameter.Checked) {
    form.txtRadius.Tip = "Diameter of the sphere in micrometres";
  } else if (form.mnuRadiusX.Checked) {
    form.txtRadius.Tip = "Size parameter x of the sphere: its circumference in wavelengths of the medium";
  } else {
    form.txtRadius.Tip = "Radius of the sphere in micrometres";
  }
}

void WriteAxisTips(Form1& form, const Graph& graph) {
  const std::string words = AxisWords(graph.axis);
  form.txtXmin.Tip = "Lowest value of the horizontal axis";
  form.txtXmax.Tip = "Highest value of the horizontal axis";
  for (TextInput* end : {&form.txtXmin, &form.txtXmax})
    if (!words.empty()) end->Tip += " (" + words + ")";
  form.cboStep.Tip = form.mnuXStepLog.Checked ? "Number of steps of the calculation, even on a logarithmic scale"
                                              : "Step of the calculation" + UnitOfStep(graph.axis);
}

std::string TipOf(Swept quantity) {
  switch (quantity) {
    case Swept::Radius:
      return "radius of the sphere in micrometres";
    case Swept::SphereIndex:
      return "refractive index n of the sphere (real part)";
    case Swept::SphereAbsorption:
      return "absorption index k of the sphere (imaginary part)";
    case Swept::MediumIndex:
      return "refractive index of the medium around the sphere";
    case Swept::Wavelength:
      return "wavelength in vacuum, in nanometres";
    case Swept::SizeParameter:
      return "size parameter x of the sphere";
    case Swept::Time:
      return "time in femtoseconds, a part of the window of the pulse";
  }
  return "";
}

/// The inputs of a Lee diagram or a map, after what it sweeps and what it holds still.
void WriteMapTips(Form1& form, const Graph& graph) {
  const SweptQuantities& swept = *FindSwept(graph);
  const MapInputs& inputs = *FindMapInputs(graph);
  const std::string columns = TipOf(swept.columns);
  auto& low = inputs.further ? form.txtF9_min : form.txtRadius;
  auto& high = inputs.further ? form.txtF9_max : form.txtRmax;
  low.Tip = "Leftmost column: " + columns;
  high.Tip = "Rightmost column: " + columns;
  (inputs.further ? form.txtF9_step : form.txtRstep).Tip =
      std::string("Number of steps from column to column") + (swept.geometric ? ", of equal ratios" : "");
  if (graph.family == Family::Impulse)
    form.txtF9_step.Tip = "Femtoseconds from column to column: that of the samples shows all of them";
  if (inputs.held) form.txtF9_fixed.Tip = "Held still: " + TipOf(*inputs.held);
  if (inputs.size == SizeField::Angle) form.txtAngle.Tip = "Radius of the sphere in micrometres";
  const std::string rows = swept.rows ? TipOf(*swept.rows) : "scattering angle in degrees";
  form.txtXmin.Tip = "Lowest row: " + rows;
  form.txtXmax.Tip = "Highest row: " + rows;
  form.cboStep.Tip = swept.rows ? "Number of steps from row to row" : "Step from row to row in degrees";
}

}  // namespace

void WriteTips(Session& session) {
  auto& form = session.form1;
  const Graph& graph = ChosenGraph(session.state);
  WriteSizeTip(form);
  WriteAxisTips(form, graph);
  const std::string& counted = form.Label19.Caption;
  form.txtAngle.Tip = counted == "Number of rays"     ? "Number of rays of the wavefront"
                      : counted == "Number of strips" ? "Number of strips of the aperture"
                                                      : "Scattering angle in degrees";
  const bool power = graph.quantity == Quantity::Power;
  form.txtF9_min.Tip = power ? "Lowest scattering angle of the power, in degrees" : "Lowest value of the further axis";
  form.txtF9_max.Tip =
      power ? "Highest scattering angle of the power, in degrees" : "Highest value of the further axis";
  form.txtF9_step.Tip = power ? "Step of the scattering angle in degrees" : "Number of steps of the further axis";
  if (FindMapInputs(graph) != nullptr) WriteMapTips(form, graph);
}

}  // namespace lumivex
