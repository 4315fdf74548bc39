#include <array>

#include "files/results/layout_items.h"
#include "particles/size_distribution.h"
#include "record/number_text.h"
#include "session/inputs/methods/rays_check.h"
#include "session/inputs/methods/sphere_size.h"
#include "session/inputs/sizes/read_sizes.h"

namespace lumivex {

namespace {

struct ModeInputs {
  std::string_view present, absent;
  CheckBox& use;
  TextInput &median, &spread, &fraction;
};

void WalkMode(FileLines& lines, const ModeInputs& mode) {
  mode.use.Checked = lines.Word(mode.present, mode.use.Checked);
  if (!mode.use.Checked) {
    if (!lines.Word(mode.absent, true)) lines.Refuse("\"" + std::string(mode.absent) + "\" should follow it");
    return;
  }
  for (TextInput* value : {&mode.median, &mode.spread, &mode.fraction}) lines.Text(value->Text);
}

/// Lowest and highest radius of the samples and the ratio of neighbours: they follow from the modes, and are told for
/// other readers.
std::array<double, 3> LimitsOf(const Session& sheet) {
  const CloudSamples samples = SamplesOf(ChosenSizes(sheet), RadiusInUse(sheet));
  return {double{samples.lowest}, double{samples.highest}, samples.ratio};
}

void WalkModes(LayoutWalk& walk) {
  FileLines& lines = walk.lines;
  auto& d = walk.sheet.forms.dlogMultiModal;
  std::string shape = "Log-normal";
  lines.Text(shape);
  if (shape != "Log-normal" && shape != "Normal" && shape != "Gamma") lines.Refuse("no such shape of a mode is known");
  if (shape != "Log-normal") lines.Refuse("modes are log-normal ones here, others are not calculated");
  lines.Text(d.txtMedian1.Text);
  lines.Text(d.txtSpread1.Text);
  lines.Text(walk.Form().cboN.Text);
  auto& display = walk.sheet.forms.dlogDistDisplay;
  if (lines.Word("Binlinear", display.optLinearX.Checked))
    display.optLinearX.Select();
  else if (lines.Word("BinLog", true))
    display.optLogX.Select();
  else
    lines.Refuse("\"Binlinear\" or \"BinLog\" should follow it");
  std::array<double, 3> limits{};
  if (!lines.Reading()) limits = LimitsOf(walk.sheet);
  lines.Numbers(limits);
  WalkMode(lines, {"Mode 2", "No Mode 2", d.chkMode2, d.txtMedian2, d.txtSpread2, d.txtFraction2});
  WalkMode(lines, {"Mode 3", "No Mode 3", d.chkMode3, d.txtMedian3, d.txtSpread3, d.txtFraction3});
}

}  // namespace

void WalkSizes(LayoutWalk& walk) {
  Form1& form = walk.Form();
  if (!walk.lines.Word("Disperse", form.optDisp.Checked)) {
    form.optMono.Select();
    return;
  }
  form.optDisp.Select();
  walk.lines.Text(form.cboDistrib.Text);
  const std::string& name = form.cboDistrib.Text;
  if (!form.cboDistrib.Holds(name)) walk.lines.Refuse("no distribution of that name is known");
  if (name == "Gamma" || name == "Log-normal" || name == "Normal") {
    walk.lines.Text(form.cboSD.Text);
    walk.lines.Text(form.cboN.Text);
  } else if (name == "Multimodal") {
    WalkModes(walk);
  }
}

void WalkRays(LayoutWalk& walk) {
  if (!SelectsRays(walk.sheet.state.CalcMethod) || walk.Form().cboRays.Text != "Multiple") return;
  FileLines& lines = walk.lines;
  auto& d = walk.sheet.forms.dlogP;
  if (lines.Word("Step", d.chkMultStep.Checked)) {
    d.chkMultStep.Checked = true;
    for (TextInput* value : {&d.txtPmin, &d.txtPstep, &d.txtPmax}) lines.Text(value->Text);
    return;
  }
  d.chkMultStep.Checked = false;
  std::vector<int> selected;
  for (int p = 0; p <= LastRayBox; ++p)
    if (d.chkRays[static_cast<std::size_t>(p)].Checked) selected.push_back(p);
  int count = static_cast<int>(selected.size());
  lines.Whole(count, 0, LastRayBox + 1);
  selected.resize(static_cast<std::size_t>(count));
  for (int& p : selected) lines.Whole(p, 0, LastRayBox);
  for (CheckBox& box : d.chkRays) box.Checked = false;
  for (const int p : selected) d.chkRays[static_cast<std::size_t>(p)].Checked = true;
}

}  // namespace lumivex
