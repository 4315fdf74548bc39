#include <algorithm>
#include <array>

#include "files/results/layout_items.h"
#include "session/inputs/layers/read_layers.h"

namespace lumivex {

namespace {

using Profile = DlogInhomSphere;

struct ProfileWord {
  std::string_view word;
  OptionButton Profile::*option;
};

constexpr std::array profileWords = {
    ProfileWord{"Cosine", &Profile::optCosine},         ProfileWord{"Linear", &Profile::optLinear},
    ProfileWord{"3Layer", &Profile::opt3Layer},         ProfileWord{"Exponential", &Profile::optExponential},
    ProfileWord{"Luneburg", &Profile::optLuneburg},     ProfileWord{"ModLuneburg", &Profile::OptModLuneburg},
    ProfileWord{"Polynomial", &Profile::optPolynomial}, ProfileWord{"Sinusoidal", &Profile::optSinusoidal},
};

/// Which selection of ways the Debye terms are of, by number.
void WalkPaths(FileLines& lines, DlogCoatedSphere& d) {
  d.chkDebye.Checked = lines.Word("Debye", d.chkDebye.Checked);
  if (!d.chkDebye.Checked) return;
  const std::array<OptionButton*, 3> options = {&d.optPQ, &d.optPQR, &d.optRAB};
  const auto chosen = std::ranges::find_if(options, [](const OptionButton* option) { return option->Checked; });
  int number = static_cast<int>(chosen - options.begin()) + 1;
  lines.Whole(number, 1, static_cast<int>(options.size()));
  options[static_cast<std::size_t>(number) - 1]->Select();
}

}  // namespace

void WalkCoatedSphere(LayoutWalk& walk) {
  if (walk.sheet.state.CalcMethod != Method::CoatedSphere || !Stands(FileItem::CoatedSphere, walk.version)) return;
  auto& d = walk.sheet.forms.dlogCoatedSphere;
  FileLines& lines = walk.lines;
  for (TextInput* field :
       {&d.txtCoreRadius, &d.txtMantleRadius, &d.txtRIcore, &d.txtRIshell, &d.txtRImedium, &d.txtDegen})
    lines.Text(field->Text);
  // The indices are those of the run, whatever they were of.
  if (lines.Reading())
    for (SelectionList* material : {&d.cboRIcore, &d.cboRIshell, &d.cboRImedium}) material->Text = "Fixed";
  WalkPaths(lines, d);
  lines.Text(walk.Form().lblSphere.Caption);
  lines.Text(walk.Form().lblRI_Medium.Caption);
}

void WalkDew(LayoutWalk& walk) {
  if (walk.sheet.state.CalcMethod != Method::Heiligenschein || !Stands(FileItem::Heiligenschein, walk.version)) return;
  auto& d = walk.sheet.forms.dlogHeiligenschein;
  walk.lines.Text(d.txtDistance.Text);
  walk.lines.Text(d.txtSlope.Text);
}

void WalkProfile(LayoutWalk& walk) {
  if (walk.sheet.state.CalcMethod != Method::InhomogeneousSphere ||
      !Stands(FileItem::InhomogeneousSphere, walk.version))
    return;
  auto& d = walk.sheet.forms.dlogInhomSphere;
  FileLines& lines = walk.lines;
  const auto chosen = std::ranges::find_if(
      profileWords, [&](const ProfileWord& row) { return lines.Word(row.word, (d.*row.option).Checked); });
  if (chosen == profileWords.end()) lines.Refuse("a profile should follow it");
  (d.*chosen->option).Select();
  for (const auto field : ChosenProfile(d).fields)
    // The second part of three begins and ends with one index here.
    if (field != nullptr && field != &Profile::txt3N3) lines.Text((d.*field).Text);
  if (lines.Reading() && d.opt3Layer.Checked) d.txt3N3.Text = d.txt3N2.Text;
}

}  // namespace lumivex
