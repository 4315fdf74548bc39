#include "session/inputs/layers/inhom_inputs.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "pages/items/profile_graph.h"
#include "record/number_text.h"
#include "session/checks/number_input.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/layers/read_layers.h"

namespace lumivex {

namespace {

using Dialog = DlogInhomSphere;

/// Only the fields of the chosen equation are on show.
void ShowEquation(Dialog& d) {
  const ProfileRow& chosen = ChosenProfile(d);
  const auto show = [&d](const ProfileRow& row, bool visible) {
    (d.*row.frame).Visible = visible;
    for (const auto field : row.fields)
      if (field != nullptr) (d.*field).Visible = visible;
    for (const auto label : row.labels)
      if (label != nullptr) (d.*label).Visible = visible;
  };
  // Two equations share a frame.
  for (const ProfileRow& row : ProfileRows()) show(row, false);
  show(chosen, true);
}

/// The field that gives way where an equation has no index: the part that is not above 0, or the parameter that pulls
/// it down.
TextInput& FieldAtFault(Dialog& d, const ProfileRow& row) {
  const bool ofParts = row.frame == &Dialog::frmCoated || row.frame == &Dialog::frm3Layer;
  if (ofParts)
    for (std::size_t i = 1; i < row.fields.size() && row.fields[i] != nullptr; i += 2)
      if (!(Val((d.*row.fields[i]).Text) > 0)) return d.*row.fields[i];
  const bool first = ofParts || row.fields[1] == nullptr;
  return d.*row.fields[first ? 0 : 1];
}

/// A mark has its reason in a second line of the tip.
void Mark(TextInput& field, const std::string& reason) {
  field.BackColour = colours::BadInput;
  field.Tip += "\n" + reason;
}

void TakeMarksOff(Dialog& d) {
  for (const ProfileRow& row : ProfileRows())
    for (const auto member : row.fields) {
      if (member == nullptr) continue;
      TextInput& field = d.*member;
      if (field.BackColour == colours::BadInput) field.BackColour = colours::White;
      field.Tip = field.Tip.substr(0, field.Tip.find('\n'));
    }
}

bool MarkProfile(Dialog& d, const ProfileLayers& layers) {
  TakeMarksOff(d);
  const ProfileRow& row = ChosenProfile(d);
  for (const auto member : row.fields) {
    if (member == nullptr || IsNumber((d.*member).Text)) continue;
    Mark(d.*member, "A number is wanted");
    return false;
  }
  const auto bad = FirstBadRadius(layers.profile, layers.layers);
  if (!bad) return true;
  constexpr int digits = 3;
  Mark(FieldAtFault(d, row), "There is no refractive index above 0 at r = " + Significant(*bad, digits));
  return false;
}

void WriteEquation(Session& session, const std::string& first, const std::string& second = "") {
  auto& d = session.forms.dlogInhomSphere;
  d.lblEquation.Caption = first;
  d.lblEquation2.Caption = second;
  MarkProfile(d, ReadProfile(session));
  GraphPlot(session);
}

void EquationOf(Session& session) {
  WriteEquation(session, ProfileEquation(ReadProfile(session).profile));
}

void Option_Click(Session& session) {
  ShowEquation(session.forms.dlogInhomSphere);
  Equation(session);
}

void OKButton_Click(Session& session) {
  auto& d = session.forms.dlogInhomSphere;
  for (const auto member : ChosenProfile(d).fields)
    if (member != nullptr && (d.*member).BackColour != colours::BadInput && !SettleComma(session, d.*member)) return;
  MarkProfile(d, ReadProfile(session));
}

}  // namespace

void Equation1(Session& session) {
  EquationOf(session);
}

void Equation2(Session& session) {
  EquationOf(session);
}

void Equation3(Session& session) {
  EquationOf(session);
}

void Equation4(Session& session) {
  const auto& d = session.forms.dlogInhomSphere;
  WriteEquation(session, ProfileEquation(ReadProfile(session).profile),
                "J = " + Shortest(Val(d.txtLB.Text)) + ",  K = " + Shortest(Val(d.txtLC.Text)));
}

void Equation(Session& session) {
  switch (ChosenProfile(session.forms.dlogInhomSphere).shape) {
    case ProfileShape::Exponential:
      return Equation1(session);
    case ProfileShape::Polynomial:
      return Equation2(session);
    case ProfileShape::ModifiedLuneburg:
      return Equation3(session);
    case ProfileShape::Luneburg:
      return Equation4(session);
    default:
      return EquationOf(session);
  }
}

bool AskInhomSphere(Session& session) {
  ShowEquation(session.forms.dlogInhomSphere);
  Equation(session);
  return AskIn(session, session.forms.dlogInhomSphere);
}

bool ProfileHolds(Session& session) {
  if (MarkProfile(session.forms.dlogInhomSphere, ReadProfile(session))) return true;
  session.form1.lblSphere.BackColour = colours::BadInput;
  return false;
}

void GraphPlot(Session& session) {
  auto& d = session.forms.dlogInhomSphere;
  if (!d.chkGraphUpdate.Checked) return;
  for (Window& window : session.windows) {
    if (window.form != &d) continue;
    window.page = {};
    const ProfileLayers layers = ReadProfile(session);
    window.page.profile = ProfileGraph(
        [&](double x) {
          double n = 0;
          RefractiveIndex(session, x, n);
          return n;
        },
        layers.layers);
  }
}

void RunProfile(Session& session) {
  const auto& s = session.state;
  if (s.RestoringSettings != 0 || s.Busy != 0 || ChosenGraph(s).family != Family::Angle) return;
  const bool over = !session.forms.dlogInhomSphere.chkOverwrite.Checked && session.form1.cmdOverPlot.Enabled;
  session.events.Raise(over ? "cmdOverPlot_Click" : "cmdNewPlot_Click");
}

std::span<const LayerEvent> InhomSphereEvents() {
  static const std::vector<LayerEvent> events = [] {
    std::vector<LayerEvent> all = {
        {"dlogInhomSphere.OKButton_Click", OKButton_Click},
        {"dlogInhomSphere.cboLayers_Click", Equation},
        {"dlogInhomSphere.chkGraphUpdate_Click", GraphPlot},
    };
    for (const std::string_view option : {"dlogInhomSphere.optLinear_Click", "dlogInhomSphere.optCosine_Click",
                                          "dlogInhomSphere.opt3Layer_Click", "dlogInhomSphere.OptModLuneburg_Click",
                                          "dlogInhomSphere.optLuneburg_Click", "dlogInhomSphere.optExponential_Click",
                                          "dlogInhomSphere.optPolynomial_Click", "dlogInhomSphere.optSinusoidal_Click"})
      all.push_back({option, Option_Click});
    for (const std::string_view field :
         {"dlogInhomSphere.txtR1_Change", "dlogInhomSphere.txtN1_Change", "dlogInhomSphere.txtR2_Change",
          "dlogInhomSphere.txtN2_Change", "dlogInhomSphere.txt3R1_Change", "dlogInhomSphere.txt3N1_Change",
          "dlogInhomSphere.txt3R2_Change", "dlogInhomSphere.txt3N2_Change", "dlogInhomSphere.txt3R3_Change",
          "dlogInhomSphere.txt3N3_Change", "dlogInhomSphere.txt3R4_Change", "dlogInhomSphere.txt3N4_Change",
          "dlogInhomSphere.txtJ2_Change", "dlogInhomSphere.txtK2_Change", "dlogInhomSphere.txtL2_Change",
          "dlogInhomSphere.txtM2_Change"})
      all.push_back({field, EquationOf});
    for (const std::string_view field : {"dlogInhomSphere.txtJ_Change", "dlogInhomSphere.txtK_Change",
                                         "dlogInhomSphere.txtL_Change", "dlogInhomSphere.txtnMax_Change"})
      all.push_back({field, Equation1});
    for (const std::string_view field : {"dlogInhomSphere.txtJ1_Change", "dlogInhomSphere.txtK1_Change",
                                         "dlogInhomSphere.txtL1_Change", "dlogInhomSphere.txtM1_Change"})
      all.push_back({field, Equation2});
    all.push_back({"dlogInhomSphere.txtF_Change", Equation3});
    all.push_back({"dlogInhomSphere.txtLB_Change", Equation4});
    all.push_back({"dlogInhomSphere.txtLC_Change", Equation4});
    return all;
  }();
  return events;
}

}  // namespace lumivex
