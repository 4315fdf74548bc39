#include "session/undo.h"

#include <utility>

#include "session/inputs/graph_types.h"
#include "session/inputs/input_events.h"
#include "session/inputs/look/look_menus.h"
#include "session/inputs/methods/rays_check.h"
#include "session/page.h"

namespace lumivex {

namespace {

void RestoreSettings(MainFormState& s, const DialogSettings& settings) {
  s.SpectrumMin = settings.spectrumMin;
  s.SpectrumMax = settings.spectrumMax;
  s.BlackBodyTemp = settings.blackBodyTemp;
  s.IncidentDensity = settings.incidentDensity;
  s.Distance = settings.distance;
  s.RIUserEdited = settings.indexUserEdited;
  s.SphereIndexTyped = settings.sphereIndexTyped;
  s.SphereIndexVaries = settings.sphereIndexVaries;
  s.MediumIndexTyped = settings.mediumIndexTyped;
  s.CatalogueIndex = settings.catalogueIndex;
  s.PickedLineColour = settings.pickedLineColour;
  s.BarReference = settings.barReference;
  s.BarReferencePerWaveNumber = settings.barReferencePerWaveNumber;
  s.BarReferenceWeighted = settings.barReferenceWeighted;
  s.MapReference = settings.mapReference;
  s.MapReferenceThird = settings.mapReferenceThird;
  s.MapReferenceKind = static_cast<MapValues>(settings.mapReferenceKind);
  s.Sellmeier = settings.sellmeier;
  s.Layers = settings.layers;
  s.TimePlotRays = settings.timePlotRays;
  s.TimePlotWaves = settings.timePlotWaves;
}

/// What a cancelled dialog puts back, and what the selection of rays comes to, are those of the lists as they stand.
void FollowLists(Session& session) {
  auto& s = session.state;
  s.KeptRays = session.form1.cboRays.Text;
  s.DistribInUse = session.form1.cboDistrib.Text;
  if (SelectsRays(s.CalcMethod)) RaysCheck(session);
}

/// Replot draws the last results: it is there again once the inputs are those for which it was.
void OfferReplot(Session& session, const InputState& state) {
  const auto results = state.replots.lock();
  if (results && results == session.state.LastResults) session.form1.cmdReplot.Enabled = true;
}

/// Moves one state over: the present one onto `to`, the last of `from` into the inputs.
void Step(Session& session, std::vector<InputState>& from, std::vector<InputState>& to) {
  InputState present = PresentInputs(session);
  // A dialog that was cancelled, a tick set and taken away.
  while (!from.empty() && from.back() == present) from.pop_back();
  if (from.empty()) return;
  to.push_back(std::move(present));
  const InputState state = std::move(from.back());
  from.pop_back();
  RestoreInputs(session, state);
  session.undo.typedInto.clear();
}

void StepInDialog(DialogHistory& dialog, std::vector<FormSnapshot>& from, std::vector<FormSnapshot>& to) {
  dialog.typedInto.clear();
  FormSnapshot present = dialog.form->Snapshot();
  while (!from.empty() && from.back() == present) from.pop_back();
  if (from.empty()) return;
  to.push_back(std::move(present));
  dialog.form->Restore(from.back());
  from.pop_back();
  for (Control* control : dialog.form->Controls()) control->BackColour = colours::White;
}

void RememberInDialog(DialogHistory& dialog, std::string_view typedInto) {
  const bool goesOn = !typedInto.empty() && dialog.typedInto == typedInto;
  dialog.typedInto = typedInto;
  if (goesOn) return;
  dialog.past.push_back(dialog.form->Snapshot());
  dialog.future.clear();
}

void KeepStep(UndoHistory& undo, InputState state) {
  undo.past.push_back(std::move(state));
  if (undo.past.size() > mostUndoSteps) undo.past.erase(undo.past.begin());
  undo.future.clear();
}

void EnableHistory(Session& session) {
  session.form1.mnuUndo.Enabled = !session.undo.past.empty();
  session.form1.mnuRedo.Enabled = !session.undo.future.empty();
}

}  // namespace

InputState PresentInputs(Session& session) {
  const auto& s = session.state;
  InputState state;
  state.graph = {s.GraphType, s.GraphSubType};
  state.method = s.CalcMethod;
  state.sphereName = s.SphereName;
  state.mediumName = s.MediumName;
  if (session.form1.cmdReplot.Enabled) state.replots = s.LastResults;
  state.settings = {s.SpectrumMin,
                    s.SpectrumMax,
                    s.BlackBodyTemp,
                    s.IncidentDensity,
                    s.Distance,
                    s.RIUserEdited,
                    s.SphereIndexTyped,
                    s.SphereIndexVaries,
                    s.MediumIndexTyped,
                    s.CatalogueIndex,
                    s.PickedLineColour,
                    s.BarReference,
                    s.BarReferencePerWaveNumber,
                    s.BarReferenceWeighted,
                    s.MapReference,
                    s.MapReferenceThird,
                    static_cast<int>(s.MapReferenceKind),
                    s.Sellmeier,
                    s.Layers,
                    s.TimePlotRays,
                    s.TimePlotWaves};
  state.comparison = session.comparison;
  for (const Form* form : session.forms.All()) state.forms.push_back(form->Snapshot());
  ForEachCaption(session.form1, [&](Control&, const std::string& caption) { state.captions.push_back(caption); });
  return state;
}

void RestoreInputs(Session& session, const InputState& state) {
  auto& s = session.state;
  s.LoadingFlag = 1;
  const auto forms = session.forms.All();
  for (std::size_t i = 0; i < forms.size() && i < state.forms.size(); ++i) forms[i]->Restore(state.forms[i]);
  SetGraph(s, state.graph);
  s.CalcMethod = state.method;
  s.SphereName = state.sphereName;
  s.MediumName = state.mediumName;
  RestoreSettings(s, state.settings);
  session.comparison = state.comparison;
  FollowLists(session);
  ShowFamilyInputs(session);
  std::size_t i = 0;
  ForEachCaption(session.form1, [&](Control&, std::string& caption) {
    if (i < state.captions.size()) caption = state.captions[i++];
  });
  // What the lines tell of a pulse or of light comes back with its graph.
  const Graph& graph = ChosenGraph(s);
  for (Label* line : {&session.form1.lblWatts, &session.form1.lblDistance})
    line->Visible = (graph.OfPulse() || graph.InUnitsOfLight()) && !line->Caption.empty();
  for (Control* control : session.form1.Controls()) control->BackColour = colours::White;
  s.LoadingFlag = 0;
  Inputs_Changed(session);
  OfferReplot(session, state);
  TakeTickedLook(session);
  RenewLook(session);
}

DialogScope::DialogScope(Session& session, Form& form) : session_(session) {
  auto& undo = session.undo;
  if (undo.acting == 0 && undo.open.empty()) before_ = PresentInputs(session);
  undo.open.push_back({&form, {}, {}, {}});
}

DialogScope::~DialogScope() {
  auto& undo = session_.undo;
  undo.open.pop_back();
  undo.typedInto.clear();
  if (before_ && !(*before_ == PresentInputs(session_))) KeepStep(undo, std::move(*before_));
  EnableHistory(session_);
}

void RememberInputs(Session& session, std::string_view typedInto) {
  auto& undo = session.undo;
  if (undo.held || session.state.LoadingFlag != 0) return;
  if (!undo.open.empty()) return RememberInDialog(undo.open.back(), typedInto);
  const bool goesOn = !typedInto.empty() && undo.typedInto == typedInto;
  undo.typedInto = typedInto;
  if (goesOn) return;
  KeepStep(undo, PresentInputs(session));
}

void TakeBackGraph(Session& session) {
  const auto& undo = session.undo;
  if (undo.acting == 0 || undo.past.empty() || undo.past.back().graph == ChosenGraph(session.state).code) return;
  const InputState before = undo.past.back();
  RestoreInputs(session, before);
}

void OfferHistory(Session& session) {
  auto& undo = session.undo;
  if (undo.acting == 0 && undo.open.empty() && !undo.past.empty() && undo.past.back() == PresentInputs(session)) {
    undo.past.pop_back();
    undo.typedInto.clear();
  }
  EnableHistory(session);
}

void mnuUndo_Click(Session& session) {
  auto& undo = session.undo;
  if (!undo.open.empty()) return StepInDialog(undo.open.back(), undo.open.back().past, undo.open.back().future);
  Step(session, undo.past, undo.future);
  EnableHistory(session);
}

void mnuRedo_Click(Session& session) {
  auto& undo = session.undo;
  if (!undo.open.empty()) return StepInDialog(undo.open.back(), undo.open.back().future, undo.open.back().past);
  Step(session, undo.future, undo.past);
  EnableHistory(session);
}

}  // namespace lumivex
