#include <algorithm>
#include <array>

#include "colour/wavelength_colour.h"
#include "files/results/input_sheet.h"
#include "files/results/layout.h"
#include "record/number_text.h"
#include "runs/run.h"
#include "session/inputs/beams/read_beam.h"

namespace lumivex {

namespace {

std::size_t At(int index) {
  return static_cast<std::size_t>(index);
}

void RefuseBelow0(FileLines& lines) {
  lines.Refuse("a value below 0 cannot stand there");
}

/// A line of values, which are appended to the lists when they are read. Those of the curves are the last ones.
template <std::size_t count>
void WalkRow(LayoutWalk& walk, const std::array<std::vector<double>*, count>& lists, std::size_t row) {
  FileLines& lines = walk.lines;
  std::array<double, count> values{};
  if (!lines.Reading())
    for (std::size_t k = 0; k < count; ++k) values[k] = row < lists[k]->size() ? (*lists[k])[row] : 0;
  lines.Numbers(values);
  if (!lines.Reading()) return;
  constexpr std::size_t places = count > 3 ? 1 : 0;  // of the axis, before the curves
  for (std::size_t k = places; k < count; ++k)
    if (values[k] < 0 && !MayLieBelow0(walk.Chosen(), walk.sheet.state.CalcMethod, k - places)) RefuseBelow0(lines);
  for (std::size_t k = 0; k < count; ++k) {
    if (lists[k]->size() <= row) lists[k]->resize(row + 1);
    (*lists[k])[row] = values[k];
  }
}

void WalkChoice(FileLines& lines, std::string_view off, std::string_view on, bool& value) {
  if (lines.Word(on, value))
    value = true;
  else if (lines.Word(off, true))
    value = false;
  else
    lines.Refuse("\"" + std::string(off) + "\" or \"" + std::string(on) + "\" should follow it");
}

/// Whether a beam stands in the place of Qsca.
bool WalkBeam(LayoutWalk& walk) {
  FileLines& lines = walk.lines;
  Form1& form = walk.Form();
  DlogGaussianBeam& beam = walk.sheet.forms.dlogGaussianBeam;
  const bool gaussian = lines.Word("Gaussian beam", form.mnuGaussian.Checked);
  if (!gaussian && !lines.Word("Top hat", form.mnuTopHat.Checked)) return false;
  TickAlone({&form.mnuPlaneWave, &form.mnuGaussian, &form.mnuTopHat}, gaussian ? form.mnuGaussian : form.mnuTopHat);
  for (TextInput* field : {&beam.txtBeamXF, &beam.txtBeamYF, &beam.txtBeamZF, &beam.txtBeamWo, &beam.txtPhi})
    lines.Text(field->Text);
  WalkChoice(lines, "Single beam", "Multiple beams", form.mnuMultBeams.Checked);
  WalkChoice(lines, "No central beam", "Central beam", form.mnuCentralBeam.Checked);
  WalkChoice(lines, "Not Lock", "Lock", beam.chkLock.Checked);
  return true;
}

void WalkAngles(LayoutWalk& walk) {
  CurveRows& rows = walk.rows;
  FileLines& lines = walk.lines;
  if (!WalkBeam(walk)) lines.Number(rows.Qsca);
  if (rows.Qsca < 0 && !SumsTerms(walk.sheet.state.CalcMethod) && lines.Reading()) RefuseBelow0(lines);
  const RowWindow window = FileWindow(walk.sheet);
  const int wavelengths = WavelengthsOf(walk.sheet);
  if (wavelengths == 1) {
    for (int row = window.low; row <= window.high; ++row)
      WalkRow(walk, std::array{&rows.perpendicular, &rows.parallel, &rows.unpolarised}, At(row));
    return;
  }
  const std::size_t count = At(window.high - window.low + 1);
  if (static_cast<double>(count) * wavelengths > mostSpectrumValues)
    throw BadFile{"The file holds more intensities than a run can have"};
  for (std::size_t row = 0; row < count; ++row)
    for (std::size_t i = 0; i < At(wavelengths); ++i)
      WalkRow(walk, std::array{&rows.perpendicular, &rows.parallel}, i * count + row);
}

/// Points of an axis: place and three curves; of a cloud's spectrum the curves alone, of the matrix the amplitudes.
void WalkAxisRows(LayoutWalk& walk) {
  CurveRows& rows = walk.rows;
  FileLines& lines = walk.lines;
  lines.Text(walk.Form().txtAngle.Text);
  const GraphCode code = walk.Chosen().code;
  const bool matrix = code == GraphCode{10, 2};
  const bool triple = code == GraphCode{10, 1} && !walk.Form().optMono.Checked;
  if (matrix && lines.Reading()) {
    rows.S1.Resize(rows.lastPoint);
    rows.S2.Resize(rows.lastPoint);
  }
  for (int point = rows.firstPoint; point <= rows.lastPoint; ++point) {
    if (matrix) {
      std::array<double, 4> values{};
      if (point <= rows.S1.Rows())
        values = {rows.S1.Re(point), rows.S1.Im(point), rows.S2.Re(point), rows.S2.Im(point)};
      lines.Numbers(values);
      if (!lines.Reading()) continue;
      rows.S1.Set(point, values[0], values[1]);
      rows.S2.Set(point, values[2], values[3]);
    } else if (triple) {
      WalkRow(walk, std::array{&rows.perpendicular, &rows.parallel, &rows.unpolarised}, At(point));
    } else {
      WalkRow(walk, std::array{&rows.x, &rows.perpendicular, &rows.parallel, &rows.unpolarised}, At(point));
    }
  }
}

void WalkLee(LayoutWalk& walk) {
  walk.lines.Whole(walk.rows.leeRowStart, 0, 400000);
  walk.lines.Whole(walk.rows.leeRowEnd, 0, 400000);
}

/// Channels of a cell, panel by panel.
std::vector<std::vector<float>*> ChannelsOf(MapFound& cells, bool spectrum) {
  std::vector<std::vector<float>*> channels;
  for (MapPanel& panel : cells.panels) {
    if (spectrum)
      channels.insert(channels.end(), {&panel.red, &panel.green, &panel.blue});
    else
      channels.push_back(&panel.value);
  }
  return channels;
}

/// Cells, a line each: column by column, in each from the lowest row up.
void WalkCellLines(LayoutWalk& walk) {
  FileLines& lines = walk.lines;
  MapFound& cells = walk.rows.cells;
  const bool spectrum = lines.Reading() ? WavelengthsOf(walk.sheet) > 1 : cells.OfSpectrum();
  std::array<double, 3> shape = {double(cells.columns), double(cells.rows), double(cells.firstRow)};
  lines.Numbers(shape);
  const bool sensible = shape[0] >= 1 && shape[1] >= 1 && shape[0] * shape[1] <= mostFieldElements && shape[2] >= 0 &&
                        shape[2] <= 400000 && std::ranges::all_of(shape, [](double v) { return v == Int(v); });
  if (!sensible) lines.Refuse("there are no such columns and rows");
  cells.columns = ToWhole(shape[0]);
  cells.rows = ToWhole(shape[1]);
  cells.firstRow = ToWhole(shape[2]);
  if (lines.Reading())
    cells.panels.resize(
        walk.Chosen().family == Family::EfficiencyMap && walk.Chosen().quantity != Quantity::Intensity ? 3 : 2);
  const auto channels = ChannelsOf(cells, spectrum);
  std::vector<float> row(channels.size());
  const std::size_t count = At(cells.columns) * At(cells.rows);
  for (std::size_t cell = 0; cell < count; ++cell) {
    if (!lines.Reading())
      for (std::size_t k = 0; k < row.size(); ++k) row[k] = (*channels[k])[cell];
    lines.Singles(row);
    if (!lines.Reading()) continue;
    for (std::size_t k = 0; k < row.size(); ++k) {
      if (row[k] < 0 && !MayLieBelow0(walk.Chosen(), walk.sheet.state.CalcMethod, spectrum ? 0 : k))
        RefuseBelow0(lines);
      channels[k]->push_back(row[k]);
    }
  }
  cells.done = cells.columns;
}

void WalkCells(LayoutWalk& walk) {
  Form1& form = walk.Form();
  for (TextInput* input :
       {&form.txtF9_min, &form.txtF9_max, &form.txtF9_step, &form.txtF9_fixed, &form.txtRefractMedium})
    walk.lines.Text(input->Text);
  WalkCellLines(walk);
}

/// Item 25, by which other programs know the amplitudes.
void WalkAmplitudes(LayoutWalk& walk) {
  constexpr std::string_view heading = "Real and imaginary values of S1 and S2";
  FileLines& lines = walk.lines;
  CurveRows& rows = walk.rows;
  const bool wanted = walk.Form().mnuS1S2.Checked && rows.angleS1.Rows() > 0;
  if (!lines.Word("", wanted)) return;
  if (!lines.Word(heading, true)) return;
  const RowWindow window = FileWindow(walk.sheet);
  const double step = Val(walk.Form().cboStep.Text);
  const double first = InBeam(walk.Form()) ? Val(walk.Form().txtXmin.Text) : 0;
  if (lines.Reading()) {
    rows.angleS1.Resize(window.high);
    rows.angleS2.Resize(window.high);
    walk.Form().mnuS1S2.Checked = true;
  }
  for (int row = window.low; row <= window.high; ++row) {
    std::array<double, 5> values{first + (row - 1) * step};
    if (row <= rows.angleS1.Rows())
      values = {first + (row - 1) * step, rows.angleS1.Re(row), rows.angleS1.Im(row), rows.angleS2.Re(row),
                rows.angleS2.Im(row)};
    lines.Numbers(values);
    if (!lines.Reading()) continue;
    rows.angleS1.Set(row, values[1], values[2]);
    rows.angleS2.Set(row, values[3], values[4]);
  }
}

}  // namespace

void WalkTimes(LayoutWalk& walk) {
  if (walk.Chosen().family != Family::Impulse) return;
  Form1& form = walk.Form();
  FileLines& lines = walk.lines;
  auto& dialog = walk.sheet.forms.dlogImpulse;
  lines.Text(form.txtLambda.Text);
  lines.Text(dialog.cboPulseDuration.Text);
  lines.Text(dialog.cbodB.Text);
  lines.Text(form.cboLee.Text);
  std::array<double, 3> numbers = {1, form.mnuFalseColours.Checked ? 1.0 : 0.0,
                                   form.mnuMapNormalise.Checked ? 1.0 : 0.0};
  for (double& number : numbers) lines.Number(number);
  if (lines.Reading()) {
    dialog.txtWavelength.Text = form.txtLambda.Text;
    form.mnuFalseColours.Checked = numbers[1] != 0;
    form.mnuMapNormalise.Checked = numbers[2] != 0;
  }
  for (TextInput* input : {&form.txtF9_min, &form.txtF9_max, &form.txtXmin, &form.txtXmax}) lines.Text(input->Text);
  lines.Text(form.cboStep.Text);
  const MapFound& cells = walk.rows.cells;
  std::array<double, 2> rows = {double(cells.firstRow), double(cells.firstRow + cells.rows - 1)};
  for (double& row : rows) lines.Number(row);
  WalkCellLines(walk);
  const ColourTriple light = colRGB2(Val(form.txtLambda.Text));
  std::array<double, 3> colour = {light.r, light.g, light.b};
  lines.Numbers(colour);
}

bool SumsTerms(Method method) {
  return method == Method::Debye || method == Method::CoatedSphere;
}

bool MayLieBelow0(const Graph& graph, Method method, std::size_t curve) {
  if (graph.quantity == Quantity::Asymmetry) return true;
  const bool sections = graph.quantity == Quantity::Efficiencies || graph.quantity == Quantity::CrossSections;
  if (sections && curve == 2) return true;
  return SumsTerms(method) && (sections || graph.quantity == Quantity::Albedo);
}

void WalkCurves(LayoutWalk& walk) {
  const Graph& graph = walk.Chosen();
  // A beam is told of below, or in our block; without either the light is that of before beams.
  if (walk.lines.Reading()) {
    Form1& form = walk.Form();
    TickAlone({&form.mnuPlaneWave, &form.mnuGaussian, &form.mnuTopHat}, form.mnuPlaneWave);
    form.mnuMultBeams.Checked = form.mnuCentralBeam.Checked = false;
  }
  if (graph.AgainstAngle()) {
    WalkAngles(walk);
    WalkAmplitudes(walk);
  } else if (graph.code.type >= 10 && graph.code.type <= 18) {
    WalkAxisRows(walk);
  } else if (graph.family == Family::Lee) {
    WalkLee(walk);
  } else if (graph.IsMap() && graph.family != Family::Impulse) {
    WalkCells(walk);
  }
}

}  // namespace lumivex
