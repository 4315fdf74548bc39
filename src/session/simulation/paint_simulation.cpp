#include "session/simulation/paint_simulation.h"

#include <numbers>
#include <vector>

#include "pages/photograph/sky_light.h"
#include "record/features.h"
#include "record/number_text.h"
#include "runs/curves.h"
#include "runs/further_methods.h"
#include "session/checks/number_input.h"
#include "session/driver/lock.h"
#include "session/inputs/look/read_look.h"
#include "session/simulation/read_simulation.h"
#include "session/simulation/simulation_page.h"

namespace lumivex {

namespace {

/// The inputs of both windows switched off, and as they were again on every way out.
class SimulationLock {
 public:
  explicit SimulationLock(Session& session) {
    auto& form = session.forms.form2;
    for (Form* each : {static_cast<Form*>(&session.form1), static_cast<Form*>(&form)})
      for (Control* control : each->Controls()) before_.push_back({control, control->Enabled});
    LockON(session);
    for (Control* control : form.Controls())
      if (control->Kind() != ControlKind::Label && control->Kind() != ControlKind::Frame) control->Enabled = false;
    form.Picture1.Enabled = true;
    form.cmdStopSim.Enabled = true;
  }
  ~SimulationLock() {
    for (const auto& [control, enabled] : before_) control->Enabled = enabled;
  }
  SimulationLock(const SimulationLock&) = delete;
  SimulationLock& operator=(const SimulationLock&) = delete;

 private:
  struct Was {
    Control* control;
    bool enabled;
  };
  std::vector<Was> before_;
};

/// Serves the window between the rows.
class PaintWatch final : public RunWatch {
 public:
  explicit PaintWatch(Session& session) : session_(session) {}
  bool Look(const RunProgress& progress) override {
    session_.state.ProgressPercent = 100 * progress.share;
    session_.platform.Yield();
    // Either Stop: that of this window, or that of a run, which scripts press.
    return session_.state.StopFlag == 0 && session_.state.StopAnswer == 0;
  }

 private:
  Session& session_;
};

void PaintPicture(Session& session, const SkyPainting& painting) {
  auto& s = session.state;
  auto& simulation = session.simulation;
  const SimulationLock lock(session);
  s.StopFlag = s.StopAnswer = 0;
  auto painted = std::make_shared<Bitmap>(*simulation.picture);
  PaintWatch watch(session);
  TaskPool pool(watch, session.platform.Threads());
  PaintSky(SkyPainter(painting), {}, *simulation.photograph, *painted, pool);
  simulation.picture = std::move(painted);
  s.PlotMode = 1;
}

/// The light is there: what is left is in the controls of the window.
void Simulate(Session& session) {
  if ((!PaintsOver(session.forms.form2) && !ErrorRGB(session)) || !ScaleCalc(session)) return;
  if (!QuadSelect(session)) {
    session.platform.Message("Select quadrant(s)", "No quadrant selected");
    return;
  }
  const auto painting = ReadPainting(session, Telling::Aloud);
  if (!painting) return;
  HideCircles(session);
  PaintPicture(session, *painting);
}

void StoreLight(Session& session) {
  auto& s = session.state;
  auto& simulation = session.simulation;
  const AngleRows* rows = s.LastResults ? RowsOf(s.LastResults->asked.run) : nullptr;
  if (rows == nullptr) return;
  auto light = LightOfBars(session.page, {rows->xmin, rows->xmax}, ReadLook(session).colours.rules);
  if (!light) return;
  const Results& results = *s.LastResults;
  if (!light->sectors.empty()) {
    light->bows = BowsOfSectors(results, static_cast<int>(light->sectors.size()));
    // Flattened drops have been lit by a sun of one elevation, which is that of the sky now.
    auto& form = session.forms.form2;
    constexpr int digits = 6;
    if (ChosenPoint(form) != PointKind::Arc)
      form.txtSunElevation.Text = Significant(results.asked.method.drop.elevation * 180 / std::numbers::pi, digits);
  }
  simulation.stored = simulation.light = std::make_shared<const LightTable>(std::move(*light));
  simulation.lightWords.clear();
  s.SimTableRows = static_cast<int>(simulation.stored->rows.size());
  s.SimTableFirst = simulation.stored->first;
  s.SimTableStep = simulation.stored->step;
}

template <class Change>
void ChangePicture(Session& session, Change change) {
  SimulationWindow(session);
  auto changed = std::make_shared<Bitmap>(*session.simulation.picture);
  change(*changed);
  session.simulation.picture = std::move(changed);
  // A preview would hide what has just been changed.
  session.forms.form2.chkPreview.Checked = false;
  ShowSimulation(session);
}

}  // namespace

void cmdSimPlot_Click(Session& session) {
  SimulationWindow(session);
  auto& simulation = session.simulation;
  if (!simulation.stored) {
    session.platform.Message("Simulation",
                             "No colours are stored: plot intensity against scattering angle for several wavelengths, "
                             "then press Simulation");
    return;
  }
  simulation.light = simulation.stored;
  simulation.lightWords.clear();
  Simulate(session);
  ShowSimulation(session);
}

bool SimLee(Session& session) {
  auto& simulation = session.simulation;
  auto& box = session.forms.form2.txtDropRadius;
  constexpr double largest = 1e5;
  if (!getval(session, box, largest, NumberSign::Positive)) return false;
  const auto& results = session.state.LastResults;
  const double lambda = results ? results->asked.light.lambda : 0.65;
  auto lee = LightOfLee(session.page, Val(box.Text), ReadLook(session).colours, lambda);
  if (!lee) {
    session.platform.Message("Simulation from Lee diagram",
                             "There is no column of a Lee diagram: plot one of scattering angle against radius first");
    return false;
  }
  simulation.light = std::make_shared<const LightTable>(std::move(lee->table));
  simulation.lightWords = "r = " + Significant(lee->radius, 6) + " \u00B5m";
  if (results) {
    const auto& particle = results->asked.particle;
    if (const auto index = IndexAt(particle.sphere, lambda).value)
      simulation.lightWords += "   n = " + Significant(index->n, 6);
  }
  return true;
}

void cmdSimLee_Click(Session& session) {
  SimulationWindow(session);
  if (SimLee(session)) Simulate(session);
  ShowSimulation(session);
}

void cmdStopSim_Click(Session& session) {
  session.state.StopFlag = 1;
}

void cmdSimulation_Click(Session& session) {
  const SimulationLock lock(session);
  StoreLight(session);
  ShowSimulation(session);
  session.forms.form2.Visible = true;
  session.platform.Show(session.forms.form2);
}

void OfferSimulation(Session& session) {
  auto& command = session.form1.cmdSimulation;
  const Page& page = session.page;
  command.Visible = IsAvailable(Feature::Simulation) && page.bars && page.kind.wavelengths > 1;
  command.Enabled = command.Visible;
}

void RestorePicture(Session& session) {
  SimulationWindow(session);
  session.simulation.picture = session.simulation.photograph;
  session.state.GridShown = 0;
  HideCircles(session);
  ShowSimulation(session);
}

void mnuKeepPicture_Click(Session& session) {
  SimulationWindow(session);
  session.simulation.photograph = session.simulation.picture;
  ShowSimulation(session);
}

void mnuInvert_Click(Session& session) {
  ChangePicture(session, Invert);
}

void mnuSatCol_Click(Session& session) {
  ChangePicture(session, SaturateColours);
}

}  // namespace lumivex
