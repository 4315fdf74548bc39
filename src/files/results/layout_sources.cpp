#include <array>
#include <vector>

#include "files/results/input_sheet.h"
#include "files/results/layout_items.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

/// A source of an index: the word that stands for it and the inputs whose values follow.
struct SourceRow {
  std::string_view word;
  MenuEntry Form1Menus::*entry;
  std::vector<TextInput*> values = {};
  CheckBox* complex = nullptr;
};

std::vector<SourceRow> SphereRows(Forms& f) {
  return {
      {"Segelstein", &Form1Menus::mnuRI_Segelstein, {}, &f.dlogSegelstein.chkRI_Complex},
      {"KayeLaby", &Form1Menus::mnuRI_KayeLaby},
      {"Air1", &Form1Menus::mnuRI_Air1, {&f.dlogAir.txtAirTemp}},
      {"Vacuum1", &Form1Menus::mnuRI_Vacuum1},
      {"Fixed1", &Form1Menus::mnuRI_Fixed1},
      {"Gold", &Form1Menus::mnuRI_Au},
      {"Silver", &Form1Menus::mnuRI_Ag},
      {"Copper", &Form1Menus::mnuRI_Cu},
      {"IAPWS", &Form1Menus::mnuRI_IAPWS, {&f.dlogTemp.txtTemp, &f.dlogTemp.txtDensity}, &f.dlogTemp.chkRI_Complex},
      // Sources with values that have no lines of their own here.
      {"User1", &Form1Menus::mnuRI_User1},
      {"Ray", &Form1Menus::mnuRI_Ray, {}, &f.dlogRay.chkRI_Complex},
      {"Formula", &Form1Menus::mnuRI_Formula},
      {"Perm1", &Form1Menus::mnuRI_Perm1},
  };
}

std::vector<SourceRow> MediumRows(Forms& f) {
  return {
      {"Air2", &Form1Menus::mnuRI_Air2, {&f.dlogAir.txtAirTemp}},
      {"Vacuum2", &Form1Menus::mnuRI_Vacuum2},
      {"Water2 IAPWS", &Form1Menus::mnuRI_IAPWS2, {&f.dlogTemp2.txtTemp, &f.dlogTemp2.txtDensity}},
      {"Water2 Segelstein", &Form1Menus::mnuRI_Segelstein2},
      {"User2", &Form1Menus::mnuRI_User2},
      {"Fixed2", &Form1Menus::mnuRI_Fixed2},
      {"File2", &Form1Menus::mnuRI_File2},
      {"Perm2", &Form1Menus::mnuRI_Perm2},
  };
}

void WalkValues(LayoutWalk& walk, const SourceRow& row) {
  if (row.values.size() == 2 && Stands(FileItem::WaterOnOneLine, walk.version)) {
    std::array<double, 2> both = {Val(row.values[0]->Text), Val(row.values[1]->Text)};
    walk.lines.Numbers(both);
    for (std::size_t i = 0; i < both.size(); ++i) row.values[i]->Text = Shortest(both[i]);
  } else {
    for (TextInput* value : row.values) walk.lines.Text(value->Text);
  }
  if (row.complex != nullptr && Stands(FileItem::ComplexLine, walk.version)) WalkTick(walk.lines, row.complex->Checked);
}

/// @return the row whose entry is ticked; null where none is.
const SourceRow* TickedRow(const std::vector<SourceRow>& rows, Form1& form) {
  for (const SourceRow& row : rows)
    if ((form.*row.entry).Checked) return &row;
  return nullptr;
}

void WalkTable(LayoutWalk& walk, UserMaterialDialog& dialog, MenuEntry& entry, std::string_view user,
               std::string_view defined) {
  FileLines& lines = walk.lines;
  const bool there = lines.Word(user, entry.Checked);
  if (!there) {
    if (!lines.Word(defined, true))
      lines.Refuse("\"" + std::string(user) + "\" or \"" + std::string(defined) + "\" should follow it");
    return;
  }
  if (Stands(FileItem::MaterialName, walk.version)) lines.Text(dialog.txtMaterial.Text);
  TextInput* const pairs[][2] = {{&dialog.txtRI_lambda1_1, &dialog.txtRI_1_1},
                                 {&dialog.txtRI_lambda1_2, &dialog.txtRI_1_2},
                                 {&dialog.txtRI_lambda1_3, &dialog.txtRI_1_3},
                                 {&dialog.txtRI_lambda1_4, &dialog.txtRI_1_4}};
  for (const auto& pair : pairs) {
    std::array<float, 2> values = {static_cast<float>(Val(pair[0]->Text)), static_cast<float>(Val(pair[1]->Text))};
    lines.Singles(values);
    if (!lines.Reading()) continue;
    for (std::size_t i = 0; i < values.size(); ++i) pair[i]->Text = Significant(double{values[i]}, 7);
  }
}

std::string WithDegrees(std::string_view material, const TextInput& temperature) {
  return std::string(material) + std::string(Trim(temperature.Text)) + "C";
}

bool IsNamed(const std::string& name) {
  return !Trim(name).empty();
}

}  // namespace

void WalkTick(FileLines& lines, bool& ticked) {
  int number = ticked ? 1 : 0;
  lines.Whole(number, -1, 1);
  ticked = number != 0;
}

void NameMaterials(Session& sheet, const std::string& sphereName, const std::string& mediumName) {
  auto& s = sheet.state;
  Form1& form = sheet.form1;
  const Forms& f = sheet.forms;
  // The sphere in layers is named by the captions of its dialog.
  if (TraitsOf(s.CalcMethod).layered) return;
  std::string sphere, medium;
  if (form.mnuRI_IAPWS.Checked)
    sphere = WithDegrees("IAPWS ", f.dlogTemp.txtTemp) + (f.dlogTemp.chkRI_Complex.Checked ? " Complex" : "");
  if (form.mnuRI_Air1.Checked) sphere = WithDegrees("Air ", f.dlogAir.txtAirTemp);
  if (form.mnuRI_Air2.Checked) medium = WithDegrees("Air ", f.dlogAir.txtAirTemp);
  if (form.mnuRI_IAPWS2.Checked) medium = WithDegrees("Water ", f.dlogTemp2.txtTemp);
  const bool byFile = form.mnuRI_File1.Checked || form.mnuRI_Formula.Checked;
  if (!sphere.empty() || (byFile && IsNamed(sphereName)))
    form.lblSphere.Caption = "Sphere: " + (sphere.empty() ? sphereName : sphere);
  if (!medium.empty()) form.lblRI_Medium.Caption = "Medium: " + medium;
  if (!sphere.empty() || IsNamed(sphereName)) s.SphereName = sphere.empty() ? sphereName : sphere;
  if (!medium.empty() || IsNamed(mediumName)) s.MediumName = medium.empty() ? mediumName : medium;
  KeepNames(sheet);
  const Graph& graph = ChosenGraph(s);
  if (graph.VariesIndex()) {
    form.lblSphere.Caption = "Sphere: Variable refractive index";
    s.SphereIndexVaries = 1;
  }
  if (graph.VariesMedium()) form.lblRI_Medium.Caption = "Medium: Variable refractive index";
}

void WalkSphereTable(LayoutWalk& walk) {
  WalkTable(walk, walk.sheet.forms.dlogRI_User1, walk.Form().mnuRI_User1, "User1", "Defined1");
}

void WalkMediumTable(LayoutWalk& walk) {
  WalkTable(walk, walk.sheet.forms.dlogRI_User2, walk.Form().mnuRI_User2, "User2", "Defined2");
}

void WalkSphereSource(LayoutWalk& walk) {
  Form1& form = walk.Form();
  const auto rows = SphereRows(walk.sheet.forms);
  const SourceRow* row = TickedRow(rows, form);
  std::string word(row != nullptr ? row->word : std::string_view(walk.sheet.state.FileName1));
  walk.lines.Text(word);
  if (walk.lines.Reading()) {
    row = nullptr;
    for (const SourceRow& each : rows)
      if (each.word == word) row = &each;
    // Anything else names a file; whether its table is there is seen when the inputs are complete.
    walk.sheet.state.SphereIndexTyped = 0;
    TickAlone(SphereSources(form), row != nullptr ? form.*row->entry : form.mnuRI_File1);
    if (row == nullptr) walk.rows.sphereFile = word;
  }
  if (row != nullptr) WalkValues(walk, *row);
}

void WalkMediumSource(LayoutWalk& walk) {
  Form1& form = walk.Form();
  const auto rows = MediumRows(walk.sheet.forms);
  const SourceRow* row = TickedRow(rows, form);
  std::string word(row != nullptr ? row->word : "Fixed2");
  walk.lines.Text(word);
  if (walk.lines.Reading()) {
    row = nullptr;
    for (const SourceRow& each : rows)
      if (each.word == word) row = &each;
    if (row == nullptr) walk.lines.Refuse("no medium of that name is known");
    walk.sheet.state.MediumIndexTyped = 0;
    TickAlone(MediumSources(form), form.*row->entry);
  }
  if (row != nullptr) WalkValues(walk, *row);
}

}  // namespace lumivex
