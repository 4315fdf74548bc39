#include <algorithm>
#include <array>
#include <limits>

#include "files/results/input_sheet.h"
#include "files/results/layout.h"
#include "files/results/layout_items.h"
#include "materials/files/readable_text.h"
#include "record/catalogue/graph_texts.h"
#include "record/catalogue/method_texts.h"
#include "record/number_text.h"
#include "session/inputs/beams/read_beam.h"
#include "session/inputs/drops/dew_inputs.h"
#include "session/inputs/light/wavelength_list.h"
#include "session/inputs/methods/sphere_size.h"

namespace lumivex {

namespace {

/// The versions that have an item: from one code to before another.
struct VersionGate {
  FileItem item;
  int from = 0, before = std::numeric_limits<int>::max();
};

constexpr VersionGate versionGates[] = {
    {FileItem::Method, 200},         {FileItem::WaterOnOneLine, 0, 201},    {FileItem::MediumSource, 201},
    {FileItem::ImaginaryIndex, 203}, {FileItem::MaterialName, 204},         {FileItem::ComplexLine, 205},
    {FileItem::Rays, 3103},          {FileItem::MediumIndex, 4000},         {FileItem::Heiligenschein, 4302},
    {FileItem::CoatedSphere, 4303},  {FileItem::InhomogeneousSphere, 4303},
};

/// Names that graphs and methods had in files of before.
constexpr std::array<std::pair<std::string_view, std::string_view>, 4> formerNames = {{
    {"Lee diagram", "Lee diagram: radius"},
    {"Map: angle v. refractive index", "Map: angle v. RI of sphere"},
    {"Mie scattering", "Mie"},
    {"Debye series", "Debye"},
}};

std::string PresentName(const std::string& name) {
  for (const auto& [before, now] : formerNames)
    if (name == before) return std::string(now);
  return name;
}

[[noreturn]] void RefuseCapability(const std::string& name) {
  throw BadFile{"The file holds a run of \"" + Readable(name) + "\", which this version of Lumivex does not calculate"};
}

void WalkGraph(LayoutWalk& walk) {
  auto& list = walk.Form().cboGraph;
  const bool curves = walk.Chosen().AgainstAngle();
  std::string name = !walk.lines.Reading() && curves ? "Intensity v. scattering angle" : list.Text;
  walk.lines.Text(name);
  if (!walk.lines.Reading()) return;
  name = PresentName(name);
  if (const GraphRow* row = FindGraph(name)) {
    list.Text = name;
    BeginWithGraph(walk.sheet, row->code);
    return;
  }
  const auto known = [&](const GraphRow& row) { return row.text == name; };
  if (std::ranges::any_of(GraphTable(), known)) RefuseCapability(name);
  throw BadFile{"Error in Graph Type"};
}

void WalkNames(LayoutWalk& walk) {
  walk.lines.Text(walk.sheet.state.SphereName);
  walk.lines.Text(walk.sheet.state.MediumName);
}

void WalkMethod(LayoutWalk& walk) {
  Form1& form = walk.Form();
  std::string name = form.cboType.Text;
  if (Stands(FileItem::Method, walk.version)) {
    walk.lines.Text(name);
    walk.lines.Text(form.cboRays.Text);
  } else {
    name = "Mie";
  }
  if (!walk.lines.Reading()) return;
  name = PresentName(name);
  const MethodRow* row = FindMethod(name);
  if (row == nullptr) {
    const auto known = [&](const MethodRow& each) { return each.text == name; };
    if (std::ranges::any_of(MethodTable(), known)) RefuseCapability(name);
    throw BadFile{"Unknown calculation method: \"" + Readable(name) + "\""};
  }
  form.cboType.Text = name;
  walk.sheet.state.CalcMethod = row->method;
  walk.sheet.state.DiffractionVariant = row->diffractionVariant;
}

void WalkLight(LayoutWalk& walk) {
  Form1& form = walk.Form();
  if (Stands(FileItem::MediumIndex, walk.version)) walk.lines.Text(form.txtRefractMedium.Text);
  std::string count = form.cboWave.Text;
  // How many wavelengths "High" means depends on the table of sizes, which is not among these lines.
  if (!walk.lines.Reading() && form.optDisp.Checked && form.cboDistrib.Text == "Special" && count != "RGB")
    count = std::to_string(WavelengthsOf(walk.sheet));
  walk.lines.Text(count);
  form.cboWave.Text = count;
  walk.lines.Text(form.txtLambda.Text);
}

void WalkSize(LayoutWalk& walk) {
  Form1& form = walk.Form();
  FileLines& lines = walk.lines;
  if (walk.Chosen().code.type > 20) {
    if (!lines.Word("Radius", true)) lines.Refuse("\"Radius\" should follow it");
    lines.Text(form.txtAngle.Text);
    return;
  }
  const std::vector<MenuEntry*> measures = SizeMeasures(form);
  if (lines.Word("Diameter", form.mnuDiameter.Checked))
    TickAlone(measures, form.mnuDiameter);
  else if (!lines.Word("Radius", true))
    lines.Refuse("\"Radius\" or \"Diameter\" should follow it");
  else if (lines.Reading())
    TickAlone(measures, form.mnuRadius);
  if (lines.Word("x", form.mnuRadiusX.Checked)) TickAlone(measures, form.mnuRadiusX);
  lines.Text(form.txtRadius.Text);
}

/// The imaginary part as the input shows it.
std::string ShownImaginary(const std::string& text) {
  const double value = Val(text);
  if (value == 0) return "0";
  return value < 0.2 ? Format(value, "Scientific") : text;
}

void WalkAxis(LayoutWalk& walk) {
  Form1& form = walk.Form();
  FileLines& lines = walk.lines;
  lines.Text(form.txtRefractReal.Text);
  if (Stands(FileItem::ImaginaryIndex, walk.version)) {
    lines.Text(form.txtRefractImag.Text);
    if (lines.Reading()) form.txtRefractImag.Text = ShownImaginary(form.txtRefractImag.Text);
  }
  CurveRows& rows = walk.rows;
  lines.Number(rows.Xmin);
  lines.Number(rows.Xmax);
  lines.Text(form.cboStep.Text);
  if (!lines.Reading()) return;
  form.txtXmin.Text = Shortest(rows.Xmin);
  form.txtXmax.Text = Shortest(rows.Xmax);
}

struct LightRow {
  std::string_view word;
  MenuEntry Form1Menus::*entry;
  TextInput* value = nullptr;
};

void WalkSpectrum(LayoutWalk& walk) {
  if (WavelengthsOf(walk.sheet) < 2) return;
  Forms& forms = walk.sheet.forms;
  Form1& form = forms.form1;
  const LightRow sources[] = {
      {"Sun (Lee)", &Form1Menus::mnuSpectrumLee},
      {"Sun (Wernand)", &Form1Menus::mnuSpectrumWernand},
      {"Sun elevation = ", &Form1Menus::mnuSpectrumWernand2, &forms.dlogWernand.txtElevation},
      {"Flat", &Form1Menus::mnuSpectrumFlat},
      {"Black body", &Form1Menus::mnuBlackBody, &forms.dlogBlackBody.txtBlackBody},
      {"Data file", &Form1Menus::mnuSpectrumFile},
  };
  const auto source = std::ranges::find_if(
      sources, [&](const LightRow& row) { return walk.lines.Word(row.word, (form.*row.entry).Checked); });
  if (source == std::end(sources)) {
    if (walk.lines.Reading()) walk.lines.Refuse("a light source should follow it");
    return;
  }
  TickAlone(LightSources(form), form.*source->entry);
  if (source->value != nullptr) walk.lines.Text(source->value->Text);
  walk.lines.Text(forms.dlogSpectrumBand.txtSpectrumMin.Text);
  walk.lines.Text(forms.dlogSpectrumBand.txtSpectrumMax.Text);
}

void WalkScales(LayoutWalk& walk) {
  Form1& form = walk.Form();
  FileLines& lines = walk.lines;
  lines.Text(form.cboYmin.Text);
  lines.Number(walk.rows.Ymin);
  lines.Text(form.cboYmax.Text);
  lines.Number(walk.rows.Ymax);
  lines.Number(walk.rows.YAutoMin);
  lines.Number(walk.rows.YAutoMax);
  if (lines.Word("Linear", form.optLinear.Checked))
    form.optLinear.Select();
  else if (lines.Word("Log", true))
    form.OptLog.Select();
  else
    lines.Refuse("\"Linear\" or \"Log\" should follow it");
}

void WalkPoints(LayoutWalk& walk) {
  const int type = walk.Chosen().code.type;
  if (type < 10 || type > 19) return;
  FileLines& lines = walk.lines;
  Form1& form = walk.Form();
  if (lines.Word("xLog", form.mnuXStepLog.Checked))
    form.mnuXStepLog.Checked = true;
  else if (lines.Word("xLin", true))
    form.mnuXStepLog.Checked = false;
  else
    lines.Refuse("\"xLin\" or \"xLog\" should follow it");
  constexpr double most = 1e6;
  std::array<double, 4> range = {1, 1, double(walk.rows.firstPoint), double(walk.rows.lastPoint)};
  lines.Numbers(range);
  if (!(range[2] >= 1 && range[3] >= range[2] - 1 && range[3] <= most)) lines.Refuse("there are no such points");
  walk.rows.firstPoint = ToWhole(range[2]);
  walk.rows.lastPoint = ToWhole(range[3]);
}

void WalkMediumSourceIfThere(LayoutWalk& walk) {
  if (Stands(FileItem::MediumSource, walk.version)) WalkMediumSource(walk);
}

void WalkRaysIfThere(LayoutWalk& walk) {
  if (Stands(FileItem::Rays, walk.version)) WalkRays(walk);
}

constexpr void (*inputItems[])(LayoutWalk&) = {
    WalkGraph,       WalkNames, WalkSphereTable, WalkMediumTable, WalkMethod,       WalkCoatedSphere,
    WalkRaysIfThere, WalkDew,   WalkProfile,     WalkSizes,       WalkSphereSource, WalkMediumSourceIfThere,
    WalkLight,       WalkSize,  WalkAxis,        WalkTimes,       WalkSpectrum,     WalkScales,
    WalkPoints,
};

}  // namespace

bool Stands(FileItem item, int version) {
  for (const auto& gate : versionGates)
    if (gate.item == item) return version >= gate.from && version < gate.before;
  return true;
}

void WalkInputs(LayoutWalk& walk) {
  for (const auto item : inputItems) item(walk);
}

int WavelengthsOf(const Session& sheet) {
  const Graph& graph = ChosenGraph(sheet.state);
  const bool several = graph.AgainstAngle() ? !graph.OneWavelengthOnly() : graph.ColumnsOfAngles();
  if (!several || (graph.ColumnsOfAngles() && graph.OneWavelengthOnly())) return 1;
  return std::min(WavelengthCount(sheet.form1.cboWave.Text, RadiusInUse(sheet)), mostWavelengths);
}

RowWindow FileWindow(const Session& sheet) {
  const Form1& form = sheet.form1;
  const double xmin = Val(form.txtXmin.Text), xmax = Val(form.txtXmax.Text), step = Val(form.cboStep.Text);
  constexpr double finest = 1e-4;
  const bool beam = InBeam(form) && ChosenGraph(sheet.state).AgainstAngle();
  const bool round = GoesRound(sheet, ChosenGraph(sheet.state));
  const double lowest = beam ? -360 : 0, highest = beam || round ? 360 : 180;
  const bool within = xmin >= lowest && xmax <= highest && xmin <= xmax && xmax - xmin <= 360;
  if (!(step >= finest) || !within)
    throw BadFile{"The angles of the file cannot be read: from " + Readable(form.txtXmin.Text) + " to " +
                  Readable(form.txtXmax.Text) + " by " + Readable(form.cboStep.Text)};
  if (beam) return RowsOfBeam(xmin, xmax, step).window;
  const int last = 2 * ToWhole((round ? 180 : 90) / step) + 1;
  const double margin = Int(0.25 / step);
  return {std::max(1, ToWhole(xmin / step + 1 - margin)), std::min(last, ToWhole(xmax / step + 1 + margin))};
}

}  // namespace lumivex
