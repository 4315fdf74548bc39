#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "files/results/own_block.h"
#include "record/catalogue/graph_texts.h"
#include "session/undo.h"

namespace lumivex {

namespace {

template <class Visitor>
void ForEachSetting(DialogSettings& s, Visitor&& visit) {
  visit("SpectrumMin", s.spectrumMin);
  visit("SpectrumMax", s.spectrumMax);
  visit("BlackBodyTemp", s.blackBodyTemp);
  visit("IncidentDensity", s.incidentDensity);
  visit("Distance", s.distance);
  visit("RIUserEdited", s.indexUserEdited);
  visit("SphereIndexTyped", s.sphereIndexTyped);
  visit("SphereIndexVaries", s.sphereIndexVaries);
  visit("MediumIndexTyped", s.mediumIndexTyped);
  visit("CatalogueIndex", s.catalogueIndex);
  visit("BarReference", s.barReference);
  visit("BarReferencePerWaveNumber", s.barReferencePerWaveNumber);
  visit("BarReferenceWeighted", s.barReferenceWeighted);
  visit("MapReference", s.mapReference);
  visit("MapReferenceThird", s.mapReferenceThird);
  visit("MapReferenceKind", s.mapReferenceKind);
  visit("SellmeierName", s.sellmeier.name);
  visit("SellmeierB1", s.sellmeier.terms.B1);
  visit("SellmeierB2", s.sellmeier.terms.B2);
  visit("SellmeierB3", s.sellmeier.terms.B3);
  visit("SellmeierC1", s.sellmeier.terms.C1);
  visit("SellmeierC2", s.sellmeier.terms.C2);
  visit("SellmeierC3", s.sellmeier.terms.C3);
  visit("SellmeierMin", s.sellmeier.lowest);
  visit("SellmeierMax", s.sellmeier.highest);
  visit("SellmeierQuiet", s.sellmeier.quiet);
  visit("LayerSphereShown", s.layers.sphereShown);
  visit("LayerSphereKept", s.layers.sphereKept);
  visit("LayerMediumShown", s.layers.mediumShown);
  visit("LayerMediumKept", s.layers.mediumKept);
  visit("TimePlotRays", s.timePlotRays);
  visit("TimePlotWaves", s.timePlotWaves);
}

bool HasText(ControlKind kind) {
  return kind == ControlKind::TextInput || kind == ControlKind::SelectionList;
}

bool IsTicked(ControlKind kind) {
  return kind == ControlKind::OptionButton || kind == ControlKind::CheckBox || kind == ControlKind::MenuEntry;
}

/// Every value of the inputs with its name: "Form1.txtRadius", its text or its tick.
struct NamedValue {
  std::string name;
  std::string* text = nullptr;
  bool* ticked = nullptr;
};

std::vector<NamedValue> NamedValues(Session& sheet, InputState& state) {
  std::vector<NamedValue> values;
  const auto forms = sheet.forms.All();
  for (std::size_t i = 0; i < forms.size(); ++i) {
    const std::string prefix = std::string(forms[i]->Name()) + ".";
    for (auto& [name, value] : state.forms[i]) {
      const Control* control = forms[i]->Find(name);
      // The panel of parameters, habits of the user's and the windows of their own, which are no matter of a run.
      if (control == nullptr || control == &sheet.form1.mnuInfo || control == &sheet.form1.mnuLiveGraph ||
          control == &sheet.form1.mnuMarkPoints || forms[i] == &sheet.forms.form2 ||
          forms[i] == &sheet.forms.impulsePlot || forms[i] == &sheet.forms.dlogMeasured)
        continue;
      if (HasText(control->Kind())) values.push_back({prefix + name, &value.text, nullptr});
      if (IsTicked(control->Kind())) values.push_back({prefix + name, nullptr, &value.checked});
    }
  }
  std::size_t i = 0;
  ForEachCaption(sheet.form1, [&](const Control& control, const std::string&) {
    values.push_back({"Form1." + std::string(control.Name()), &state.captions[i++], nullptr});
  });
  return values;
}

void WriteValues(FileLines& lines, const std::vector<NamedValue>& values) {
  int count = static_cast<int>(values.size());
  lines.Field("Inputs", count);
  for (const NamedValue& value : values) {
    std::string line = value.name + " " + (value.text != nullptr ? *value.text : *value.ticked ? "1" : "0");
    lines.Text(line);
  }
}

void ReadValues(FileLines& lines, std::vector<NamedValue> values) {
  constexpr int most = 100000;
  int count = 0;
  lines.Field("Inputs", count);
  if (count < 0 || count > most) lines.Refuse("there are not so many inputs");
  std::ranges::sort(values, {}, &NamedValue::name);
  std::string line;
  for (int i = 0; i < count; ++i) {
    lines.Text(line);
    const auto blank = line.find(' ');
    if (blank == std::string::npos) lines.Refuse("the name of an input and its value should stand there");
    const std::string_view name = std::string_view(line).substr(0, blank);
    const auto at = std::ranges::lower_bound(values, name, {}, &NamedValue::name);
    if (at == values.end() || at->name != name) continue;
    if (at->text != nullptr) *at->text = line.substr(blank + 1);
    if (at->ticked != nullptr) *at->ticked = line.substr(blank + 1) == "1";
  }
}

void TakeSetting(FileLines&, const std::string& text, std::string& value) {
  value = text;
}

template <class Number>
void TakeSetting(FileLines& lines, const std::string& text, Number& value) {
  double number = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  constexpr double most = std::numeric_limits<Number>::max();
  if (error != std::errc() || stop != text.data() + text.size() || !(std::abs(number) <= most))
    lines.Refuse("a number should stand there");
  value = static_cast<Number>(number);
}

/// Settings by name, as inputs are: one that a file does not have keeps its value, and one that nobody knows is passed
/// over.
void WalkSettings(FileLines& lines, DialogSettings& settings) {
  constexpr int most = 1000;
  int count = 0;
  ForEachSetting(settings, [&](std::string_view, auto&) { ++count; });
  lines.Field("Settings", count);
  if (!lines.Reading()) {
    ForEachSetting(settings, [&](std::string_view name, auto& field) { lines.Field(name, field); });
    return;
  }
  if (count < 0 || count > most) lines.Refuse("there are not so many settings");
  std::map<std::string, std::string, std::less<>> texts;
  std::string line;
  for (int i = 0; i < count; ++i) {
    lines.Text(line);
    const auto blank = line.find(' ');
    if (blank == std::string::npos) lines.Refuse("the name of a setting and its value should stand there");
    texts[line.substr(0, blank)] = line.substr(blank + 1);
  }
  ForEachSetting(settings, [&](std::string_view name, auto& field) {
    if (const auto at = texts.find(name); at != texts.end()) TakeSetting(lines, at->second, field);
  });
}

void WalkIndexTable(FileLines& lines, const std::string& name, std::shared_ptr<const IndexTable>& shared) {
  bool there = shared != nullptr;
  lines.Field(name, there);
  if (!there) return;
  IndexTable table = lines.Reading() ? IndexTable{} : *shared;
  lines.Field("Material", table.name);
  lines.Field("LastRow", table.count);
  lines.Field("EndRow", table.endRow);
  lines.Field("Wavelengths", table.lambda);
  if (lines.Reading()) table.rows.resize(table.lambda.size());
  for (auto& row : table.rows) lines.Singles(row);
  if (!lines.Reading()) return;
  const auto last = static_cast<int>(table.lambda.size()) - 1;
  if (last < 1 || table.count != last || table.endRow < 0 || table.endRow > last + 1)
    lines.Refuse("this is no table of refractive indices");
  if (!std::is_sorted(table.lambda.begin() + 1, table.lambda.end()) || !(table.lambda[1] > 0))
    lines.Refuse("the wavelengths of a table should ascend");
  shared = std::make_shared<const IndexTable>(std::move(table));
}

void WalkSpectrumTable(FileLines& lines, MainFormState& s) {
  lines.Field("SpectrumFileName", s.SpectrumFileName);
  lines.Field("SpectrumFileMin", s.SpectrumFileMin);
  lines.Field("SpectrumFileMax", s.SpectrumFileMax);
  lines.Field("SpectrumFilePoints", s.SpectrumFilePoints);
  lines.Field("SpectrumFileNonUniform", s.SpectrumFileNonUniform);
  lines.Field("SpectrumFileWavelength", s.SpectrumFileWavelength);
  lines.Field("SpectrumFileValue", s.SpectrumFileValue);
  if (!lines.Reading()) return;
  const auto rows = static_cast<std::size_t>(std::max(s.SpectrumFilePoints, 0)) + 1;
  if (rows < 2 || s.SpectrumFileWavelength.size() != rows || s.SpectrumFileValue.size() != rows)
    lines.Refuse("this is no spectrum");
  s.SpectrumFileLoaded = 1;
}

void WalkSizeTable(FileLines& lines, MainFormState& s) {
  lines.Field("SizeFileName", s.SizeFileName);
  lines.Field("SizeTableMode", s.SizeTableMode);
  lines.Field("SizeFileCount", s.SizeFileCount);
  lines.Field("SizeFileMin", s.SizeFileMin);
  lines.Field("SizeFileMax", s.SizeFileMax);
  lines.Field("SizeFileTotal", s.SizeFileTotal);
  lines.Field("SizeFilePeak", s.SizeFilePeak);
  const std::array tables = {&s.SizeTableUniform, &s.SizeTableUpper, &s.SizeTableNonUniform, &s.SizeTableNumber};
  lines.Field("SizeTableUniform", *tables[0]);
  lines.Field("SizeTableUpper", *tables[1]);
  lines.Field("SizeTableNonUniform", *tables[2]);
  lines.Field("SizeTableNumber", *tables[3]);
  if (!lines.Reading()) return;
  const auto rows = static_cast<std::size_t>(std::max(s.SizeFileCount, 0)) + 1;
  const auto fits = [&](const std::vector<float>* table) { return table->size() == rows; };
  if (rows < 2 || !std::ranges::all_of(tables, fits) || !(s.SizeFileTotal > 0))
    lines.Refuse("this is no table of sizes");
  s.SizeFileLoaded = 1;
}

/// The tables of input files that the inputs use: indices, spectrum, sizes.
void WalkTables(FileLines& lines, Session& sheet) {
  MainFormState& s = sheet.state;
  WalkIndexTable(lines, "IndexTableOfSphere", s.FileTable1);
  WalkIndexTable(lines, "IndexTableOfMedium", s.FileTable2);
  if (lines.Reading()) {
    const auto take = [](const IndexTable& table, int& rows, float& first, float& last, std::string& name, auto& lambda,
                         auto& data) {
      rows = table.count;
      first = table.lambda[1];
      last = table.lambda.back();
      name = table.name;
      lambda = table.lambda;
      data = table.rows;
    };
    if (s.FileTable1)
      take(*s.FileTable1, s.FileRows1, s.FileFirst1, s.FileLast1, s.FileName1, s.FileLambda1, s.FileData1);
    if (s.FileTable2)
      take(*s.FileTable2, s.FileRows2, s.FileFirst2, s.FileLast2, s.FileName2, s.FileLambda2, s.FileData2);
  }
  bool spectrum = sheet.form1.mnuSpectrumFile.Checked && s.SpectrumFileLoaded != 0;
  lines.Field("Spectrum", spectrum);
  if (spectrum) WalkSpectrumTable(lines, s);
  bool sizes = sheet.form1.cboDistrib.Text == "Special" && s.SizeFileLoaded != 0;
  lines.Field("Sizes", sizes);
  if (sizes) WalkSizeTable(lines, s);
}

}  // namespace

void WalkInputState(FileLines& lines, Session& sheet, InputState& state) {
  const auto values = NamedValues(sheet, state);
  if (lines.Reading())
    ReadValues(lines, values);
  else
    WriteValues(lines, values);
  WalkSettings(lines, state.settings);
  int colour = static_cast<int>(state.settings.pickedLineColour.value & 0xFFFFFF);
  lines.Field("PickedLineColour", colour);
  state.settings.pickedLineColour.value = static_cast<std::uint32_t>(colour) & 0xFFFFFF;
  lines.Field("SphereName", state.sphereName);
  lines.Field("MediumName", state.mediumName);
}

void WalkInputsAndTables(FileLines& lines, Session& sheet, InputState& state) {
  WalkInputState(lines, sheet, state);
  if (lines.Reading()) RestoreInputs(sheet, state);
  WalkTables(lines, sheet);
}

void SettleInputs(InputSheet& sheet, std::initializer_list<InputState*> states) {
  Session& inputs = sheet.Inputs();
  sheet.Settle();
  if (inputs.state.CalcMethod == Method::None || FindGraph(inputs.form1.cboGraph.Text) == nullptr)
    throw BadFile{"there is no such method or graph"};
  // Lists and menus say which graph and which method.
  for (InputState* state : states) {
    state->graph = {inputs.state.GraphType, inputs.state.GraphSubType};
    state->method = inputs.state.CalcMethod;
  }
  RestoreInputs(inputs, **states.begin());
}

void WalkScaleFields(FileLines& lines, ScaleFields& fields) {
  lines.Field("StoredTop", fields.scale.StoredTop);
  lines.Field("StoredBottom", fields.scale.StoredBottom);
  lines.Field("GridUnit", fields.scale.GridUnit);
  lines.Field("GridOddTest", fields.scale.GridOddTest);
  lines.Field("LeeOverallMaximum", fields.leeOverallMaximum);
}

}  // namespace lumivex
