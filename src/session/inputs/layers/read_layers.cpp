#include "session/inputs/layers/read_layers.h"

#include <algorithm>
#include <cmath>

#include "record/number_text.h"
#include "session/inputs/materials/read_material.h"

namespace lumivex {

namespace {

const DlogCoatedSphere& DialogOf(const Session& session) {
  return session.forms.dlogCoatedSphere;
}

int Chosen(const SelectionList& list) {
  return ToWhole(Val(list.Text));
}

PathLabel LabelOf(const DlogCoatedSphere& d) {
  return {Chosen(d.cboR), Chosen(d.cboA), Chosen(d.cboB)};
}

/// The counts and the number of ways of a single selection; nothing where it names none.
std::optional<PathWord> OnePath(const DlogCoatedSphere& d) {
  if (d.optPQ.Checked) return PathWord{PathOfOrders(Chosen(d.cboP), Chosen(d.cboQ)), 1};
  if (d.optPQR.Checked) return WordOf(d.cboRays.Text);
  const auto counts = CountsOf(LabelOf(d));
  if (!counts) return std::nullopt;
  return PathWord{*counts, static_cast<int>(Degeneracy(*counts))};
}

bool Several(const DlogCoatedSphere& d) {
  return d.optRAB.Checked && d.chkMult.Checked;
}

std::string Text(const PathLabel& label) {
  return std::to_string(label.N) + "-" + std::to_string(label.A) + "-" + std::to_string(label.B);
}

}  // namespace

LayerInputs InputsOfLayer(DlogCoatedSphere& d, int layer) {
  if (layer == coreLayer) return {d.cboRIcore, d.txtRIcore};
  return layer == shellLayer ? LayerInputs{d.cboRIshell, d.txtRIshell} : LayerInputs{d.cboRImedium, d.txtRImedium};
}

Material LayerMaterial(const Session& session, int layer) {
  const auto& d = DialogOf(session);
  const bool core = layer == coreLayer, shell = layer == shellLayer;
  const std::string& name = (core ? d.cboRIcore : shell ? d.cboRIshell : d.cboRImedium).Text;
  const TableRule rule = RuleTicked(session.form1);
  // Water of a layer is always at 5 C.
  if (name == "Water") return WaterFormula{double{0.9999638F}, 278.15 / 273.15, false};
  if (name == "Vacuum") return Vacuum{};
  if (name == "Glass") return SellmeierGlass{CrownGlass};
  if (name == "Gold") return MetalFilm{MetalName::Gold, rule, true};
  if (name == "Silver") return MetalFilm{MetalName::Silver, rule, true};
  if (name == "Copper") return MetalFilm{MetalName::Copper, rule, true};
  return FixedIndex{Val((core ? d.txtRIcore : shell ? d.txtRIshell : d.txtRImedium).Text), 0};
}

SphereCore ReadCore(const Session& session) {
  const auto& d = DialogOf(session);
  SphereCore core{Val(d.txtCoreRadius.Text), LayerMaterial(session, coreLayer), CoatedSizes::FixedCore};
  if (d.optFixedRatio.Checked) core.sizes = CoatedSizes::FixedRatio;
  if (d.optFixedShell.Checked) core.sizes = CoatedSizes::FixedCoating;
  return core;
}

double MantleRadius(const Session& session) {
  return Val(DialogOf(session).txtMantleRadius.Text);
}

std::optional<NoPath> PathsRefused(Session& session) {
  auto& d = session.forms.dlogCoatedSphere;
  if (!d.chkDebye.Checked || Several(d) || OnePath(d)) return std::nullopt;
  if (d.optPQR.Checked) return NoPath{{&d.cboRays}, "No ray path has these reflections: " + d.cboRays.Text};
  return NoPath{{&d.cboR, &d.cboA, &d.cboB},
                "No ray path has N = " + d.cboR.Text + ", A = " + d.cboA.Text + ", B = " + d.cboB.Text +
                    ": A is even and at most 2(N + 1), B is odd where N is even and even where N is odd"};
}

std::optional<std::vector<WeightedPath>> ReadPaths(const Session& session) {
  const auto& d = DialogOf(session);
  if (!d.chkDebye.Checked) return std::nullopt;
  std::vector<WeightedPath> paths;
  const bool counted = d.chkDegeneracy.Checked;
  if (Several(d)) {
    for (const PathLabel& label : PathLabels(Chosen(d.cboMin), Chosen(d.cboMax))) {
      const PathCounts counts = *CountsOf(label);
      paths.push_back({counts, counted ? Degeneracy(counts) : 1});
    }
  } else if (const auto path = OnePath(d)) {
    paths.push_back({path->counts, counted ? path->factor : 1.0});
  }
  return paths;
}

std::string PathWords(const Session& session) {
  const auto& d = DialogOf(session);
  if (!d.chkDebye.Checked) return "";
  const bool counted = d.chkDegeneracy.Checked;
  if (Several(d))
    return "N = " + d.cboMin.Text + " to " + d.cboMax.Text + (counted ? ", all ways" : ", one way of each N-A-B");
  const auto path = OnePath(d);
  if (!path) return "";
  std::string words;
  if (d.optPQ.Checked) words = "P = " + d.cboP.Text + ", Q = " + d.cboQ.Text + ": ";
  if (d.optPQR.Checked) words = d.cboRays.Text + ": ";
  words += "N-A-B " + Text(path->counts.Label());
  return words + (counted && path->factor > 1 ? ", " + std::to_string(path->factor) + " ways" : "");
}

std::optional<PathNumbers> NumbersOfPath(const Session& session) {
  const auto& d = DialogOf(session);
  if (!d.chkDebye.Checked) return std::nullopt;
  if (Several(d))
    return PathNumbers{d.cboMin.Text == d.cboMax.Text ? d.cboMin.Text : d.cboMin.Text + " to " + d.cboMax.Text, "", ""};
  const auto path = OnePath(d);
  if (!path) return PathNumbers{d.cboR.Text, d.cboA.Text, d.cboB.Text};
  const PathLabel label = path->counts.Label();
  return PathNumbers{std::to_string(label.N), std::to_string(label.A), std::to_string(label.B)};
}

WaveRecursion ReadRecursion(const DlogCoatedSphere& dialog) {
  if (dialog.optCoatMie.Checked) return WaveRecursion::Upwards;
  return dialog.optCoatMie2.Checked ? WaveRecursion::Downwards : WaveRecursion::Automatic;
}

namespace {

using D = DlogInhomSphere;
using enum ProfileShape;

constexpr ProfileRow profileRows[] = {
    {&D::optLinear,
     Linear,
     &D::frmCoated,
     {&D::txtR1, &D::txtN1, &D::txtR2, &D::txtN2},
     {&D::lblR1, &D::lblN1, &D::lblR2, &D::lblN2}},
    {&D::optCosine,
     Cosine,
     &D::frmCoated,
     {&D::txtR1, &D::txtN1, &D::txtR2, &D::txtN2},
     {&D::lblR1, &D::lblN1, &D::lblR2, &D::lblN2}},
    {&D::opt3Layer,
     ThreeLayer,
     &D::frm3Layer,
     {&D::txt3R1, &D::txt3N1, &D::txt3R2, &D::txt3N2, &D::txt3R3, &D::txt3N3, &D::txt3R4, &D::txt3N4},
     {&D::lbl3R1, &D::lbl3R2, &D::lbl3R3, &D::lbl3R4}},
    {&D::OptModLuneburg, ModifiedLuneburg, &D::frmModLuneburg, {&D::txtF}, {&D::lblF}},
    {&D::optLuneburg, Luneburg, &D::frmLuneburg, {&D::txtLB, &D::txtLC}, {&D::lblLB, &D::lblLC}},
    {&D::optExponential,
     Exponential,
     &D::frmExponential,
     {&D::txtJ, &D::txtK, &D::txtL, &D::txtnMax},
     {&D::lblJ, &D::lblK, &D::lblL, &D::lblnMax}},
    {&D::optPolynomial,
     Polynomial,
     &D::frmPolynomial,
     {&D::txtJ1, &D::txtK1, &D::txtL1, &D::txtM1},
     {&D::lblJ1, &D::lblK1, &D::lblL1, &D::lblM1}},
    {&D::optSinusoidal,
     Sinusoidal,
     &D::frmSinusoidal,
     {&D::txtJ2, &D::txtK2, &D::txtL2, &D::txtM2},
     {&D::lblJ2, &D::lblK2, &D::lblL2, &D::lblM2}},
};

}  // namespace

std::span<const ProfileRow> ProfileRows() {
  return profileRows;
}

const ProfileRow& ChosenProfile(const DlogInhomSphere& dialog) {
  for (const ProfileRow& row : profileRows)
    if ((dialog.*row.option).Checked) return row;
  return profileRows[0];
}

ProfileLayers ReadProfile(const Session& session) {
  constexpr double fewest = 2, most = 8192;
  const auto& dialog = session.forms.dlogInhomSphere;
  const ProfileRow& row = ChosenProfile(dialog);
  ProfileLayers layers;
  layers.profile.shape = row.shape;
  for (std::size_t i = 0; i < row.fields.size() && row.fields[i] != nullptr; ++i)
    layers.profile.parameters[i] = Val((dialog.*row.fields[i]).Text);
  layers.layers = ToWhole(std::clamp(Val(dialog.cboLayers.Text), fewest, most));
  layers.byTangents = dialog.optOldCode.Checked;
  return layers;
}

void RefractiveIndex(const Session& session, double x, double& n) {
  n = IndexAt(ReadProfile(session).profile, x);
}

namespace {

/// "1.5 - 0.1667 r^2": terms of 0 are left out.
std::string PolynomialText(const IndexProfile& profile) {
  constexpr const char* powers[] = {"", " r", " r^2", " r^3"};
  std::string text;
  for (std::size_t i = 0; i < 4; ++i) {
    const double v = profile.parameters[i];
    if (v == 0) continue;
    const std::string sign = text.empty() ? (v < 0 ? "-" : "") : v < 0 ? " - " : " + ";
    text += sign + Shortest(std::abs(v)) + powers[i];
  }
  return text.empty() ? "0" : text;
}

}  // namespace

std::string ProfileEquation(const IndexProfile& profile) {
  const auto& v = profile.parameters;
  const auto number = [&](std::size_t i) { return Shortest(v[i]); };
  const auto parts = [&](std::size_t last) {
    std::string text = "n = " + number(1) + " to r = " + number(0);
    for (std::size_t i = 2; i < last; i += 2) text += ", " + number(i + 1) + " at " + number(i);
    return text + ", " + number(last + 1) + " from r = " + number(last);
  };
  switch (profile.shape) {
    case ProfileShape::Linear:
    case ProfileShape::Cosine:
      return parts(2);
    case ProfileShape::ThreeLayer:
      return parts(6);
    case ProfileShape::ModifiedLuneburg:
      return "n(r) = Sqrt [1 + " + number(0) + " - " + number(0) + " r^2]";
    case ProfileShape::Luneburg:
      return "n(r) = Sqrt [" + Shortest(2 * v[0]) + " - " + number(1) + " r^2]";
    case ProfileShape::Exponential:
      return "n(r) = " + number(0) + " + " + number(1) + " r^" + number(2);
    case ProfileShape::Polynomial:
      return "n(r) = " + PolynomialText(profile);
    case ProfileShape::Sinusoidal:
      return "n(r) = " + number(0) + " + " + number(1) + " sin [2 pi " + number(2) + " r + " + number(3) + "\u00B0]";
  }
  return "";
}

}  // namespace lumivex
