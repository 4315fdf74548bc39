/// Rules that hold the calculation method against the graph, the beam and the sphere.

#include <algorithm>
#include <string>
#include <string_view>

#include "record/layout/input_name.h"
#include "record/number_text.h"
#include "session/checks/check.h"
#include "session/checks/number_input.h"
#include "session/checks/sphere_of_run.h"
#include "session/inputs/beams/beam_menus.h"
#include "session/inputs/beams/read_beam.h"
#include "session/inputs/drops/dew_inputs.h"
#include "session/inputs/drops/drop_inputs.h"
#include "session/inputs/layers/coated_inputs.h"
#include "session/inputs/layers/inhom_inputs.h"
#include "session/inputs/methods.h"
#include "session/inputs/methods/rays_check.h"

namespace lumivex {

namespace {

constexpr std::string_view onlyMieAndDebye = "Selected graph type is available only for Mie and Debye calculations";
constexpr std::string_view onlyDrops = "Selected graph type is available only for flattened drops";
constexpr std::string_view onlyMie = "Selected graph type is available only for Mie calculations";

/// The chart of two angles has sizes of its own; the terms of a point and the partial sums of a series are those of one
/// sphere, and only its field arrives at a time.
bool NeedsOneSphere(const Graph& graph) {
  return graph.quantity == Quantity::BowAngle || graph.family == Family::TwoAngle ||
         graph.family == Family::DebyeAnalysis || graph.family == Family::Convergence ||
         graph.family == Family::Impulse;
}

/// Rays whose intensities are added have moduli alone.
bool HasPhase(Method method) {
  return method != Method::Descartes && method != Method::Burgeroid && method != Method::Heiligenschein;
}

/// Where the index of the sphere is told: its field, or its name where the run has one index a wavelength.
Control* IndexMark(Form1& form, TextInput& field) {
  return field.Visible ? static_cast<Control*>(&field) : &form.lblSphere;
}

/// Whether the graph takes the method.
bool Takes(const Graph& graph, const MethodTraits& method) {
  switch (graph.methods) {
    case MethodsTaken::MieAlone:
    case MethodsTaken::MieInstead:
      return method.method == Method::Mie;
    case MethodsTaken::DebyeAlone:
      return method.method == Method::Debye;
    case MethodsTaken::Series:
      return method.series;
    case MethodsTaken::SeriesAndClosedForms:
      return method.efficiencies;
    case MethodsTaken::DropsAlone:
      return method.method == Method::Burgeroid;
    case MethodsTaken::Any:
      break;
  }
  return !method.angleOnly || !(graph.AgainstAxis() || graph.InColour());
}

/// What is told of a method that the graph does not take.
std::string_view RefusalOf(const Graph& graph, const MethodTraits& method) {
  if (graph.methods == MethodsTaken::DropsAlone) return onlyDrops;
  const bool ofTerms = graph.family == Family::Convergence && !method.angleOnly;
  return graph.methods == MethodsTaken::MieAlone || ofTerms ? onlyMie : onlyMieAndDebye;
}

}  // namespace

Verdict CoatedSphereGraphs(Check& check) {
  const auto& s = check.state;
  if (s.CalcMethod != Method::CoatedSphere) return Verdict::GoOn;
  const Graph& graph = ChosenGraph(s);
  if (graph.OfAngles() || graph.family == Family::Convergence || graph.family == Family::Impulse) {
    auto& dialog = check.session.forms.dlogCoatedSphere;
    if (Val(dialog.txtCoreRadius.Text) < Val(dialog.txtMantleRadius.Text))
      return CoatedSphereHolds(check.session) ? Verdict::GoOn : Verdict::End;
    Refuse(check, {&dialog.txtMantleRadius},
           "The radius of the core must be less than the radius of the overall particle");
    dialog.txtMantleRadius.BackColour = colours::White;
    return Verdict::End;
  }
  return Refuse(check, {}, "Coated sphere calculations are not available for graph type " + check.form.cboGraph.Text,
                "Error");
}

Verdict ProfileOfIndex(Check& check) {
  // The field and its tip tell what is wrong; a message would tell no more.
  if (check.state.CalcMethod != Method::InhomogeneousSphere || ProfileHolds(check.session)) return Verdict::GoOn;
  return Verdict::End;
}

Verdict DropInputs(Check& check) {
  const Method method = check.state.CalcMethod;
  if (method == Method::Burgeroid) return DropHolds(check.session) ? Verdict::GoOn : Verdict::End;
  if (method == Method::Heiligenschein) return DewHolds(check.session) ? Verdict::GoOn : Verdict::End;
  return Verdict::GoOn;
}

Verdict BeamMethods(Check& check) {
  const Method method = check.state.CalcMethod;
  const bool gaussian = method == Method::Mie || method == Method::Debye || method == Method::YoungMod;
  if (check.form.mnuGaussian.Checked && method != Method::None && !gaussian) {
    Refuse(check, {},
           "Gaussian beam calculations are available only for Mie, Debye, Descartes, Young and Young mod calculation "
           "methods",
           "Error: Gaussian beam");
    check.session.events.Raise("mnuPlaneWave_Click");
    return Verdict::End;
  }
  if (check.form.mnuTopHat.Checked && method != Method::YoungMod) {
    Refuse(check, {},
           "Top hat beam calculations are available only for Descartes, Young and Young mod calculation methods",
           "Error: Top hat beam");
    check.session.events.Raise("mnuPlaneWave_Click");
    return Verdict::End;
  }
  return Verdict::GoOn;
}

Verdict BeamInputs(Check& check) {
  if (!InBeam(check.form) || !TraitsOf(check.state.CalcMethod).beams) return Verdict::GoOn;
  return BeamHolds(check.session) ? Verdict::GoOn : Verdict::End;
}

Verdict BeamGraphs(Check& check) {
  if (!InBeam(check.form) || !TraitsOf(check.state.CalcMethod).beams) return Verdict::GoOn;
  const Graph& graph = ChosenGraph(check.state);
  // What is summed over all directions, or told of two polarisations of one beam, would need the whole sphere of them.
  const bool angles = graph.AgainstAngle() &&
                      (graph.quantity == Quantity::Intensity || graph.quantity == Quantity::DifferentialCrossSection);
  const bool points = graph.family == Family::Axis && graph.quantity == Quantity::Intensity;
  if (angles || points || graph.family == Family::Impulse || graph.family == Family::Convergence ||
      graph.family == Family::DebyeAnalysis)
    return Verdict::GoOn;
  const std::string beam = check.form.mnuTopHat.Checked ? "Top hat beam" : "Gaussian beam";
  return Refuse(check, {&check.form.cboGraph},
                beam + " calculations are not available for graph type " + check.form.cboGraph.Text, "Error: " + beam);
}

Verdict NegativeAbsorption(Check& check) {
  auto& field = check.form.txtRefractImag;
  if (!field.Visible || Val(field.Text) >= 0) return Verdict::GoOn;
  Refuse(check, {&field}, "Imaginary value of RI must NOT be negative");
  field.Text = "0";
  field.BackColour = colours::White;
  return Verdict::GoOn;
}

Verdict MethodKnown(Check& check) {
  if (check.state.CalcMethod != Method::None) return Verdict::GoOn;
  return Refuse(check, {&check.form.cboType}, "Unknown calculation method");
}

Verdict MethodAgainstGraph(Check& check) {
  auto& form = check.form;
  auto& s = check.state;
  const Graph& graph = ChosenGraph(s);
  if (s.NumberWavelengths > 1 && (graph.OneWavelengthOnly() || !IsAvailable(Feature::SeveralWavelengths)))
    return Refuse(check, {&form.cboGraph}, "This graph type is available only for single wavelength calculations");
  if (s.NumberWavelengths > 1 && form.mnuAmpPhase.Checked) {
    // Phases of different wavelengths have no sum.
    form.mnuAmpPhase.Checked = false;
    return Refuse(check, {&form.cboGraph}, "This graph type is available only for single wavelength calculations");
  }
  if (form.optDisp.Checked && NeedsOneSphere(graph))
    return Refuse(check, {&form.cboGraph}, "This graph type is available only for monodisperse calculations");
  if (graph.OfPulse() && !HasPhase(s.CalcMethod))
    return Refuse(check, {&form.cboGraph},
                  "Intensities of " + std::string(TextOfMethod(s.CalcMethod, 0)) + " have no phase, and so no times");
  if (graph.methods == MethodsTaken::MieInstead && s.CalcMethod != Method::Mie) {
    Warn(check, "This graph type is available only for Mie calculations");
    ChooseMethod(check.session, "Mie");
  }
  const MethodTraits& method = TraitsOf(s.CalcMethod);
  return Takes(graph, method) ? Verdict::GoOn : Refuse(check, {&form.cboGraph}, RefusalOf(graph, method));
}

Verdict ComplexIndex(Check& check) {
  auto& form = check.form;
  if (!TraitsOf(check.state.CalcMethod).realIndexOnly || BoundsOfRun(check.session).highestK == 0) return Verdict::GoOn;
  Control* mark = IndexMark(form, form.txtRefractImag);
  Refuse(check, {mark}, "Complex values of refractive index are not valid for this calculation method");
  // Water goes on without its absorption; a metal without it would be another material.
  if (!DropAbsorption(check.session)) return Verdict::End;
  mark->BackColour = colours::White;
  return Verdict::GoOn;
}

Verdict DebyeInputs(Check& check) {
  auto& form = check.form;
  auto& s = check.state;
  if (s.CalcMethod != Method::Debye) return Verdict::GoOn;
  const SphereOfRun bounds = BoundsOfRun(check.session);
  Control* mark = IndexMark(form, form.txtRefractImag);
  if (bounds.lowestK < 0) return Refuse(check, {mark}, "The imaginary part of the refractive index must be positive");
  if (Trim(form.cboRays.Text).empty()) return Refuse(check, {&form.cboRays}, "Specify a value for p");
  // The medium is left out here: the limit is a round number anyway.
  constexpr double largestAbsorption = 100;
  if (form.cboRays.Text == "0" || !(bounds.leastAbsorption > largestAbsorption)) return Verdict::GoOn;
  return Refuse(check, {mark},
                "Debye rays for p > 0 are suppressed by high absorption in the sphere due to the large imaginary value "
                "of the refractive index",
                "Debye series");
}

Verdict AiryInputs(Check& check) {
  auto& form = check.form;
  if (check.state.CalcMethod != Method::Airy) return Verdict::GoOn;
  bool below2 = Val(form.cboRays.Text) < 2;
  if (form.cboRays.Text == "Multiple") {
    RaysCheck(check.session);
    const auto& enabled = check.state.RayEnabled;
    below2 = (!enabled.empty() && enabled[0] != 0) || (enabled.size() > 1 && enabled[1] != 0);
  }
  if (below2) return Refuse(check, {&form.cboRays}, "Airy theory is valid only for p > 1");
  if (BoundsOfRun(check.session).highestK == 0) return Verdict::GoOn;
  Refuse(check, {IndexMark(form, form.txtRefractImag)},
         "Airy theory is not valid for complex values of refractive index");
  DropAbsorption(check.session);
  return Verdict::End;
}

Verdict DiffractionIndex(Check& check) {
  auto& form = check.form;
  if (check.state.CalcMethod != Method::Diffraction || BoundsOfRun(check.session).lowestN > 1) return Verdict::GoOn;
  return Refuse(check, {IndexMark(form, form.txtRefractReal)},
                "Refractive index must be greater than 1 for this calculation method");
}

Verdict SurfaceWaveInputs(Check& check) {
  auto& form = check.form;
  if (check.state.CalcMethod != Method::SurfaceWave) return Verdict::GoOn;
  constexpr double lowest = 1, highest = 25;
  const double low = Val(form.cboQmin.Text), high = Val(form.cboQmax.Text);
  if (low < lowest) return Refuse(check, {&form.cboQmin}, "Jmin must be >=1");
  if (high < lowest) return Refuse(check, {&form.cboQmax}, "Jmax must be >=1");
  if (low > high) return Refuse(check, {&form.cboQmin, &form.cboQmax}, "Jmin > Jmax");
  if (low > highest) return Refuse(check, {&form.cboQmin}, "Jmin must be <=25");
  if (high > highest) return Refuse(check, {&form.cboQmax}, "Jmax must be <=25");
  // Of several p those above 0 are added.
  const auto rays = SelectedRays(RayInputsOf(check.session));
  const bool any = !rays.empty() && std::any_of(rays.begin() + 1, rays.end(), [](int p) { return p != 0; });
  if (!any) return Refuse(check, {&form.cboRays}, "Surface wave calculations are valid only for p > 0");
  constexpr double largestFactor = 1e9;
  return getval(check.session, form.txtSWAmp, largestFactor, NumberSign::Any) ? Verdict::GoOn : Verdict::End;
}

Verdict RayleighSize(Check& check) {
  if (check.state.CalcMethod != Method::Rayleigh) return Verdict::GoOn;
  constexpr double wavelengthsPerRadius = 13;
  if (BoundsOfRun(check.session).wavelengthsPerRadius >= wavelengthsPerRadius) return Verdict::GoOn;
  return Warn(check, "Rayleigh approximation is valid only when r << wavelength");
}

namespace {

/// The input that says how small the spheres of the run are; null where a dialog does.
Control* SizeMark(Check& check) {
  auto& form = check.form;
  const Graph& graph = ChosenGraph(check.state);
  if (form.txtRadius.Visible) return &form.txtRadius;
  if (graph.AgainstAxis() && graph.SizeAxis()) return &form.txtXmin;
  return form.optDisp.Checked ? &form.cboDistrib : nullptr;
}

}  // namespace

Verdict SphereNotTooSmall(Check& check) {
  // What such a sphere scatters goes with the sixth power of x: further down it leaves the range of numbers, in some
  // methods as an overflow, in others as nothing.
  constexpr double leastParameter = 1e-40;
  Control* mark = SizeMark(check);
  const double parameter = mark == nullptr ? 0 : BoundsOfRun(check.session).leastParameter;
  if (!(parameter > 0) || parameter >= leastParameter) return Verdict::GoOn;
  return Refuse(check, {mark}, NameOfInput(*mark) + ": the size parameter x must be at least 1E-40");
}

}  // namespace lumivex
