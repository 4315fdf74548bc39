#include "session/inputs/layers/layer_labels.h"

#include <numbers>

#include "record/number_text.h"
#include "session/inputs/layers/read_layers.h"
#include "session/inputs/materials/read_material.h"
#include "session/inputs/materials/refractive_index.h"

namespace lumivex {

namespace {

constexpr const char* micrometres = " \u00B5m";

void Cover(Label& label, std::string& shown, std::string& kept, const std::string& text) {
  // What is not ours is the name of a material, chosen since.
  if (label.Caption != shown) kept = label.Caption;
  label.Caption = shown = text;
  label.ForeColour = colours::Black;
}

void Uncover(Label& label, std::string& shown, const std::string& kept) {
  if (!shown.empty() && label.Caption == shown) label.Caption = kept;
  shown.clear();
}

/// The number in txtRadius of a radius of 1 um.
double SizePerRadius(const Session& session) {
  const auto& form = session.form1;
  if (form.mnuDiameter.Checked) return 2;
  const double lambda = Val(form.txtLambda.Text), medium = Val(session.forms.dlogCoatedSphere.txtRImedium.Text);
  if (!form.mnuRadiusX.Checked || !(lambda > 0)) return 1;
  return 2 * std::numbers::pi * (medium == 0 ? 1 : medium) / lambda;
}

constexpr int radiusDigits = 10;

void ShowOuterRadius(Session& session) {
  const std::string& radius = session.forms.dlogCoatedSphere.txtMantleRadius.Text;
  const double size = SizePerRadius(session);
  session.form1.txtRadius.Text = size == 1 ? radius : Significant(size * Val(radius), radiusDigits);
}

void CoverNames(Session& session, const char* coating) {
  auto& form = session.form1;
  auto& labels = session.state.Layers;
  Cover(form.lblSphere, labels.sphereShown, labels.sphereKept, CoreLine(session));
  Cover(form.lblRI_Medium, labels.mediumShown, labels.mediumKept, CoatingLine(session, coating));
}

void ShowCoated(Session& session, const char* coating) {
  EvaluateLayers(session);
  ShowOuterRadius(session);
  CoverNames(session, coating);
}

void ShowProfile(Session& session) {
  auto& form = session.form1;
  auto& labels = session.state.Layers;
  Uncover(form.lblRI_Medium, labels.mediumShown, labels.mediumKept);
  Cover(form.lblSphere, labels.sphereShown, labels.sphereKept,
        "Sphere: " + ProfileEquation(ReadProfile(session).profile));
  const double lambda = Val(form.txtLambda.Text);
  if (form.mnuRI_Fixed2.Checked || session.state.MediumIndexTyped != 0 || !(lambda > 0)) return;
  if (const auto medium = MediumIndexAt(MediumMaterial(session), lambda).value)
    form.txtRefractMedium.Text = IndexText(medium->n);
}

void Show(Session& session, const char* coating) {
  auto& form = session.form1;
  auto& labels = session.state.Layers;
  const Method method = session.state.CalcMethod;
  if (method == Method::CoatedSphere) return ShowCoated(session, coating);
  if (method == Method::InhomogeneousSphere) return ShowProfile(session);
  Uncover(form.lblSphere, labels.sphereShown, labels.sphereKept);
  Uncover(form.lblRI_Medium, labels.mediumShown, labels.mediumKept);
}

}  // namespace

void EvaluateLayers(Session& session) {
  auto& dialog = session.forms.dlogCoatedSphere;
  const double lambda = Val(session.form1.txtLambda.Text);
  for (const int layer : {coreLayer, shellLayer, mediumLayer}) {
    const LayerInputs inputs = InputsOfLayer(dialog, layer);
    inputs.index.Enabled = inputs.material.Text == "Fixed";
    if (inputs.index.Enabled || !(lambda > 0)) continue;
    if (const auto n = RIcoat(session, layer, lambda, inputs.material.Text)) inputs.index.Text = IndexText(*n);
  }
}

void ShowLayers(Session& session) {
  Show(session, "Coating");
}

void TakeOuterRadius(Session& session) {
  const std::string& typed = session.form1.txtRadius.Text;
  const double size = SizePerRadius(session);
  session.forms.dlogCoatedSphere.txtMantleRadius.Text = size == 1 ? typed : Shortest(Val(typed) / size);
  CoverNames(session, "Coating");
}

void ShowLayersOfRun(Session& session) {
  if (TraitsOf(session.state.CalcMethod).layered) Show(session, "Shell");
}

std::string CoreLine(const Session& session) {
  const auto& d = session.forms.dlogCoatedSphere;
  return "Core: r1 = " + d.txtCoreRadius.Text + micrometres + ", n1 = " + d.txtRIcore.Text;
}

std::string CoatingLine(const Session& session, const char* name) {
  const auto& d = session.forms.dlogCoatedSphere;
  return std::string(name) + ": r2 = " + d.txtMantleRadius.Text + micrometres + ", n2 = " + d.txtRIshell.Text;
}

std::string CoatedMediumName(const Session& session) {
  const std::string& material = session.forms.dlogCoatedSphere.cboRImedium.Text;
  if (material == "Vacuum") return "a vacuum";
  if (material == "Water") return "water";
  return material == "Glass" ? "glass" : "medium of fixed RI";
}

std::string CoatedMediumCaption(const Session& session) {
  const std::string& material = session.forms.dlogCoatedSphere.cboRImedium.Text;
  return "Medium: " + (material == "Fixed" ? "Fixed refractive index" : material);
}

}  // namespace lumivex
