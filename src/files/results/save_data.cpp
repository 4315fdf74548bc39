#include "files/results/save_data.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "files/file_dialogs.h"
#include "files/results/input_sheet.h"
#include "files/results/layout.h"
#include "files/results/own_block.h"
#include "record/number_text.h"
#include "record/text_file.h"
#include "runs/curves.h"
#include "session/driver/read_run.h"
#include "session/inputs/look/look_menus.h"
#include "session/inputs/methods/rays_check.h"
#include "session/undo.h"

namespace lumivex {

namespace {

auto Words(const RunWords& w) {
  return std::tie(w.method, w.graph, w.methodLabel, w.rays, w.sphereName, w.mediumName, w.core, w.paths, w.sphere,
                  w.medium, w.light, w.sizes, w.scale);
}

bool SamePulse(const std::optional<PulsedLight>& a, const std::optional<PulsedLight>& b) {
  if (!a || !b) return a.has_value() == b.has_value();
  return a->pulse == b->pulse && a->fromCentre == b->fromCentre && a->correlated == b->correlated;
}

bool SameSweep(const Sweep& a, const Sweep& b) {
  return a.quantity == b.quantity && a.low == b.low && a.high == b.high && a.steps == b.steps &&
         a.geometric == b.geometric && a.fromZero == b.fromZero;
}

/// Columns, and what a pulse made of them.
bool SameColumns(const FamilyRun& a, const FamilyRun& b) {
  const auto *first = std::get_if<AngleMapRun>(&a), *second = std::get_if<AngleMapRun>(&b);
  if (first != nullptr && second != nullptr)
    return SameSweep(first->columns, second->columns) && SamePulse(first->pulse, second->pulse);
  const AxisRun *one = AxisOf(a), *other = AxisOf(b);
  return one == nullptr || other == nullptr || SamePulse(one->pulse, other->pulse);
}

bool SameRows(const FamilyRun& a, const FamilyRun& b) {
  const AngleRows *first = RowsOf(a), *second = RowsOf(b);
  if (first != nullptr && second != nullptr)
    return first->step == second->step && first->NANG == second->NANG && first->origin == second->origin &&
           first->window.low == second->window.low && first->window.high == second->window.high;
  const AxisRun *one = AxisOf(a), *other = AxisOf(b);
  if (one != nullptr && other != nullptr)
    return one->points == other->points && one->xmin == other->xmin && one->step == other->step &&
           one->logSteps == other->logSteps && one->angle == other->angle;
  return true;
}

bool SameLayers(const RunRequest& a, const RunRequest& b) {
  const ProfileLayers &first = a.method.layers, &second = b.method.layers;
  const bool sameCores =
      !a.particle.core || !b.particle.core ||
      (a.particle.core->radius == b.particle.core->radius && a.particle.core->sizes == b.particle.core->sizes);
  return first.profile == second.profile && first.layers == second.layers && first.byTangents == second.byTangents &&
         a.method.recursion == b.method.recursion && sameCores;
}

/// Whether inputs ask for what was asked, as far as any of them can be told apart from others.
bool AsksTheSame(const RunRequest& a, const RunRequest& b) {
  return a.graph == b.graph && a.method.method == b.method.method && a.method.rays == b.method.rays &&
         a.method.difference == b.method.difference && a.method.beam == b.method.beam && SameLayers(a, b) &&
         a.particle.radius == b.particle.radius && a.light.lambda == b.light.lambda &&
         a.Wavelengths() == b.Wavelengths() && a.run.index() == b.run.index() && Words(a.words) == Words(b.words) &&
         SameRows(a.run, b.run) && SameColumns(a.run, b.run);
}

void WriteNumber(TextInput& field, double value) {
  if (Val(field.Text) != value) field.Text = Shortest(value);
}

/// The limits of the run, where a Replot has narrowed those of the inputs.
void WriteLimits(Form1& form, const RunRequest& asked) {
  const AngleRows* rows = RowsOf(asked.run);
  const AxisRun* axis = AxisOf(asked.run);
  if (rows == nullptr && axis == nullptr) return;
  WriteNumber(form.txtXmin, rows != nullptr ? rows->xmin : axis->xmin);
  WriteNumber(form.txtXmax, rows != nullptr ? rows->xmax : axis->xmax);
}

/// A sheet with the inputs that the last results were asked with: the present ones or, where these have been changed
/// since, those that Undo or Redo would bring back. Null where they are gone.
std::unique_ptr<InputSheet> SheetOfResults(Session& session) {
  const auto& results = session.state.LastResults;
  std::vector<InputState> candidates = {PresentInputs(session)};
  for (auto past = session.undo.past.rbegin(); past != session.undo.past.rend(); ++past)
    if (past->replots.lock() == results) candidates.push_back(*past);
  for (auto future = session.undo.future.rbegin(); future != session.undo.future.rend(); ++future)
    if (future->replots.lock() == results) candidates.push_back(*future);
  for (const InputState& candidate : candidates) {
    auto sheet = std::make_unique<InputSheet>(session);
    RestoreInputs(sheet->Inputs(), candidate);
    WriteLimits(sheet->Inputs().form1, results->asked);
    const auto request = ReadRun(sheet->Inputs());
    if (request && AsksTheSame(*request, results->asked)) return sheet;
  }
  return nullptr;
}

/// Limits and extremes of the page; where it has no axes those of the record.
void WriteScales(const Session& session, CurveRows& rows) {
  const MainFormState& s = session.state;
  const Page& page = session.page;
  const bool axes = !page.panels.empty();
  rows.Ymin = axes ? page.panels.front().limits.ymin : s.Ymin;
  rows.Ymax = axes ? page.panels.front().limits.ymax : s.Ymax;
  rows.YAutoMin = axes ? page.autoBottom : s.YAutoMin;
  rows.YAutoMax = axes ? page.autoTop : s.YAutoMax;
}

/// Sizes that were chosen for a Lee diagram since Replot, which has not folded them in: its page is that of one size.
bool SizesWait(const Session& session) {
  const auto& results = session.state.LastResults;
  if (results->asked.graph.family != Family::Lee || session.state.FoldedResults) return false;
  return std::get<AngleMapRun>(results->asked.run).columns.quantity == Swept::Radius;
}

void ChooseMono(FormSnapshot& inputs) {
  for (auto& [name, value] : inputs)
    if (name == "optMono" || name == "optDisp") value.checked = name == "optMono";
}

/// The inputs as they stand where they are still those of the results; else those of the results, in
/// the colours and sizes that the menus have now: the page was drawn with the scales of before.
InputState ShownInputs(Session& session, const InputState& asked) {
  InputState present = PresentInputs(session);
  if (session.form1.cmdReplot.Enabled) {
    if (SizesWait(session)) ChooseMono(present.forms.front());
    return present;
  }
  InputState shown = asked;
  TakeLook(present, shown, LookPart::Menus);
  return shown;
}

/// What a page is drawn with: the menus of looks and, beside them, its scales.
bool IsLook(const std::string& name, LookPart part) {
  constexpr std::array scales = {"cboPol",  "cboYmax", "cboYmin", "OptLog",   "optLinear", "OptXLinear",
                                 "optXLog", "cboLee",  "optSun",  "optPoint", "cboBright", "chkComponents"};
  const auto isNamed = [&](std::string_view look) { return SameName(look, name); };
  if (part == LookPart::Whole && std::ranges::any_of(scales, isNamed)) return true;
  const std::string event = name + "_Click";
  return std::ranges::any_of(LookEvents(), [&](const GraphEvent& each) { return SameName(each.name, event); });
}

}  // namespace

void TakeLook(const InputState& from, InputState& to, LookPart part) {
  FormSnapshot& inputs = to.forms.front();
  for (std::size_t i = 0; i < inputs.size() && i < from.forms.front().size(); ++i)
    if (IsLook(inputs[i].first, part)) inputs[i].second = from.forms.front()[i].second;
  to.settings.pickedLineColour = from.settings.pickedLineColour;
  to.settings.barReference = from.settings.barReference;
  to.settings.barReferencePerWaveNumber = from.settings.barReferencePerWaveNumber;
  to.settings.barReferenceWeighted = from.settings.barReferenceWeighted;
  to.settings.mapReference = from.settings.mapReference;
  to.settings.mapReferenceThird = from.settings.mapReferenceThird;
  to.settings.mapReferenceKind = from.settings.mapReferenceKind;
}

std::string ResultsText(Session& session, std::string& failure) {
  const MainFormState& s = session.state;
  if (!s.LastResults) {
    failure = "There are no results to save.";
    return {};
  }
  const auto sheet = SheetOfResults(session);
  if (!sheet) {
    failure = "The inputs have been changed since the results were calculated: press New plot, then save.";
    return {};
  }
  Session& inputs = sheet->Inputs();
  if (LacksRays(inputs)) {
    failure = "Which rays the results are of is not known: select them, press New plot, then save.";
    return {};
  }
  Results results = *s.LastResults;
  CurveRows rows = RowsForFile(results, results.asked.graph.AgainstAngle() ? FileWindow(inputs) : RowWindow{});
  rows.Xmin = Val(inputs.form1.txtXmin.Text);
  rows.Xmax = Val(inputs.form1.txtXmax.Text);
  WriteScales(session, rows);
  WrittenLines lines;
  std::string version(FileVersionLine(newestFile));
  lines.Text(version);
  InputState asked = PresentInputs(inputs);
  LayoutWalk walk{lines, inputs, rows};
  inputs.form1.mnuS1S2.Checked = session.form1.mnuS1S2.Checked;
  WalkInputs(walk);
  WalkCurves(walk);
  std::string lead(ownBlockLine);
  lines.Text(lead);
  lines.Exactly();
  WalkInputsAndTables(lines, inputs, asked);
  InputState shown = ShownInputs(session, asked);
  WalkInputState(lines, inputs, shown);
  ScaleFields scales{s, s.LeeOverallMaximum};
  WalkScaleFields(lines, scales);
  WalkFound(lines, results);
  return lines.Take();
}

std::string Save_Data(Session& session, const std::string& path) {
  std::string failure;
  const std::string text = ResultsText(session, failure);
  return failure.empty() ? WriteWholeFile(path, text) : failure;
}

void mnuSave_Click(Session& session) {
  select_save_filename(session, SaveKind::Results);
}

}  // namespace lumivex
