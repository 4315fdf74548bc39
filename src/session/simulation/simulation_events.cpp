#include "session/simulation/simulation_events.h"

#include <cmath>

#include "pages/photograph/photograph_page.h"
#include "record/number_text.h"
#include "session/simulation/paint_simulation.h"
#include "session/simulation/read_simulation.h"
#include "session/simulation/simulation_page.h"
#include "session/undo.h"

namespace lumivex {

namespace {

constexpr const char* markPoint = "Mark a point on the arc (left click with mouse)";

void mnuWindowGraph_Click(Session& session) {
  session.platform.BringToFront(session.form1);
}

void mnuWindowSimulation_Click(Session& session) {
  ShowSimulation(session);
  session.forms.form2.Visible = true;
  session.platform.Show(session.forms.form2);
  session.platform.BringToFront(session.forms.form2);
}

void cmdExit2_Click(Session& session) {
  session.forms.form2.Visible = false;
}

void cboPoint_Click(Session& session) {
  SimulationWindow(session);
  // The kind that is there already keeps what was typed for it.
  if (static_cast<int>(ChosenPoint(session.forms.form2)) != session.state.PointShown) PlacePoint(session);
  ShowSimulation(session);
}

template <int SimulationState::*flag>
void ToggleQuadrant(Session& session) {
  session.state.*flag = session.state.*flag != 0 ? 0 : 1;
  ShowSimulation(session);
}

/// Whether a box of degrees between lines can be used; told where not.
bool StepHolds(Session& session, SelectionList& box) {
  const double step = Val(box.Text);
  constexpr double smallest = 0.1, largest = 90;
  if (IsNumber(box.Text) && step >= smallest && step <= largest) return true;
  box.BackColour = colours::BadInput;
  session.platform.Message("Input error", "Values must be in the range 0.1 - 90");
  return false;
}

/// Lines need a camera and a point.
bool SightHolds(Session& session) {
  return ScaleCalc(session) && ReadSight(session, Telling::Aloud).has_value();
}

void cmdCircle_Click(Session& session) {
  SimulationWindow(session);
  auto& shown = session.state.CirclesShown;
  if (shown != 0 || (StepHolds(session, session.forms.form2.cboRStep) && SightHolds(session)))
    shown = shown != 0 ? 0 : 1;
  ShowSimulation(session);
}

void cmdGrid_Click(Session& session) {
  SimulationWindow(session);
  auto& shown = session.state.GridShown;
  if (shown != 0 || (StepHolds(session, session.forms.form2.cboGrid) && SightHolds(session)))
    shown = shown != 0 ? 0 : 1;
  ShowSimulation(session);
}

void cmdAnalyse_Click(Session& session) {
  SimulationWindow(session);
  session.forms.form2.cboPoint.Text = "Arc";
  PlacePoint(session);
  ShowSimulation(session);
  session.platform.Message("First point", markPoint);
}

void Tell(Session& session, const std::string& failure) {
  if (!failure.empty()) session.platform.Message("Error", failure);
}

void mnuOpenPicture_Click(Session& session) {
  const auto path = session.platform.OpenFileName(
      {"Open picture", "Pictures (*.jpg *.jpeg *.png *.tif *.tiff *.webp *.JPG *.JPEG *.PNG *.TIF *.TIFF *.WEBP)", ""});
  if (path) OpenPicture(session, *path);
}

void SavePictureTo(Session& session, const std::string& path) {
  Page page = SimulationWindow(session).page;
  page.photograph->preview = nullptr;
  Tell(session, session.platform.SavePhotograph(page, session.simulation.notes, path));
}

void Form2_mnuSavePicture_Click(Session& session) {
  ShowSimulation(session);
  const auto path =
      session.platform.SaveFileName({"Save picture", "PNG picture (*.png);;JPEG picture (*.jpg)", "simulation.png"});
  if (path) SavePictureTo(session, *path);
}

void Form2_mnuCopyPicture_Click(Session& session) {
  ShowSimulation(session);
  SavePictureTo(session, "");
}

void mnuLandscape_Click(Session& session) {
  SimulationWindow(session);
  // It is drawn for this one.
  session.forms.form2.cboScale.Text = "28";
  session.forms.form2.cboScale.BackColour = colours::White;
  TakeDefaultLandscape(session);
  ShowSimulation(session);
}

void mnuWholePicture_Click(Session& session) {
  ShowSimulation(session);
  SimulationWindow(session).page.photograph->zoom = 1;
  DrawSimulation(session);
}

/// Whole pixels, as a click gives them.
PicturePoint PixelAt(Session& session, double x, double y) {
  const Window& window = SimulationWindow(session);
  const Page& page = window.page;
  const PictureWindow shown = WindowOf(*page.photograph, page.geometry.surfaceWidth, page.geometry.surfaceHeight);
  const PicturePoint at = PicturePointAt(*page.photograph, shown, {x, y});
  return {std::round(at.x), std::round(at.y)};
}

void MarkArc(Session& session, const PicturePoint& at) {
  auto& s = session.state;
  if (s.ArcPointCount >= 3) s.ArcPointCount = 0;
  s.ArcX[static_cast<std::size_t>(s.ArcPointCount)] = at.x;
  s.ArcY[static_cast<std::size_t>(s.ArcPointCount)] = at.y;
  ++s.ArcPointCount;
  ShowSimulation(session);
  if (s.ArcPointCount == 1) session.platform.Message("Second point", markPoint);
  if (s.ArcPointCount == 2) session.platform.Message("Third point", markPoint);
  if (s.ArcPointCount < 3) return;
  session.platform.Message("Input scattering angle", "Input scattering angle");
  // Marks on one line are told; they can be made anew. The angle that is asked for may be typed after them.
  if (ScaleCalc(session) && MarksOnOneLine(session)) {
    s.ArcPointCount = 0;
    session.platform.Message("Analyse", onOneLine);
  }
  ShowSimulation(session);
}

constexpr SimulationEvent rows[] = {
    {"cmdSimulation_Click", cmdSimulation_Click},
    {"mnuWindowGraph_Click", mnuWindowGraph_Click},
    {"mnuWindowSimulation_Click", mnuWindowSimulation_Click},
    {"Form2.Inputs_Changed", ShowSimulation},
    {"Form2.cboPoint_Click", cboPoint_Click},
    {"Form2.txtX1_Change", ShowSimulation},
    {"Form2.txtY1_Change", ShowSimulation},
    {"Form2.txtSunElevation_Change", ShowSimulation},
    {"Form2.cmdAnalyse_Click", cmdAnalyse_Click},
    {"Form2.cboScale_Change", ShowSimulation},
    {"Form2.cboMapping_Click", ShowSimulation},
    {"Form2.cboPolarisation_Click", ShowSimulation},
    {"Form2.cboView_Click", ShowSimulation},
    {"Form2.optPlaneWave_Click", ShowSimulation},
    {"Form2.optDivergingLight_Click", ShowSimulation},
    {"Form2.txtD1_Change", ShowSimulation},
    {"Form2.txtD2_Change", ShowSimulation},
    {"Form2.cboComposite_Click", ShowSimulation},
    {"Form2.txtStrength_Change", ShowSimulation},
    {"Form2.txtBackRed_Change", ShowSimulation},
    {"Form2.txtBackGreen_Change", ShowSimulation},
    {"Form2.txtBackBlue_Change", ShowSimulation},
    {"Form2.cmdQuadNE_Click", ToggleQuadrant<&SimulationState::QuadNE>},
    {"Form2.cmdQuadNW_Click", ToggleQuadrant<&SimulationState::QuadNW>},
    {"Form2.cmdQuadSE_Click", ToggleQuadrant<&SimulationState::QuadSE>},
    {"Form2.cmdQuadSW_Click", ToggleQuadrant<&SimulationState::QuadSW>},
    {"Form2.chkPreview_Click", ShowSimulation},
    {"Form2.cmdCircle_Click", cmdCircle_Click},
    {"Form2.cboRStep_Change", ShowSimulation},
    {"Form2.cmdGrid_Click", cmdGrid_Click},
    {"Form2.cboGrid_Change", ShowSimulation},
    {"Form2.cmdSimPlot_Click", cmdSimPlot_Click},
    {"Form2.cmdSimLee_Click", cmdSimLee_Click},
    {"Form2.cmdStopSim_Click", cmdStopSim_Click},
    {"Form2.cmdRestorePic_Click", RestorePicture},
    {"Form2.cmdExit2_Click", cmdExit2_Click},
    {"Form2.mnuOpenPicture_Click", mnuOpenPicture_Click},
    {"Form2.mnuSavePicture_Click", Form2_mnuSavePicture_Click},
    {"Form2.mnuCopyPicture_Click", Form2_mnuCopyPicture_Click},
    {"Form2.mnuRestorePicture_Click", RestorePicture},
    {"Form2.mnuKeepPicture_Click", mnuKeepPicture_Click},
    {"Form2.mnuLandscape_Click", mnuLandscape_Click},
    {"Form2.mnuWholePicture_Click", mnuWholePicture_Click},
    {"Form2.mnuInvert_Click", mnuInvert_Click},
    {"Form2.mnuSatCol_Click", mnuSatCol_Click},
};

}  // namespace

std::span<const SimulationEvent> SimulationEvents() {
  return rows;
}

void OpenPicture(Session& session, const std::string& path) {
  SimulationWindow(session);
  OpenedPhotograph opened = session.platform.OpenPhotograph(path);
  if (!opened.failure.empty() || opened.picture.Empty()) {
    Tell(session, opened.failure.empty() ? "There is no picture in " + path : opened.failure);
    return;
  }
  auto& form = session.forms.form2;
  if (opened.focal35 > 0) {
    form.cboScale.Text = Shortest(RoundDecimals(opened.focal35, 1));
    form.cboScale.BackColour = colours::White;
  }
  const auto slash = path.find_last_of("/\\");
  TakePhotograph(session, std::move(opened.picture), slash == std::string::npos ? path : path.substr(slash + 1));
  session.simulation.notes = std::move(opened.notes);
  ShowSimulation(session);
  Tell(session, opened.remark);
  const auto& s = session.state;
  if (s.ScaleDoubtful != 0)
    session.platform.Message("Warning - possible scale error",
                             "Aspect ratio = " + Shortest(RoundDecimals(s.HalfWidth / s.HalfHeight, 3)));
}

void picture1_mousedown(Session& session, double x, double y) {
  SimulationWindow(session);
  const PicturePoint at = PixelAt(session, x, y);
  const PointKind kind = ChosenPoint(session.forms.form2);
  if (kind == PointKind::Arc) return MarkArc(session, at);
  if (kind == PointKind::AltitudeAzimuth) return picture1_mousemove(session, x, y);
  DragPoint(session, x, y, true);
}

void picture1_mousemove(Session& session, double x, double y) {
  const auto reading = ReadPhotograph(SimulationWindow(session).page, x, y);
  session.forms.form2.lblPosition.Caption = reading ? reading->text : "";
}

void NudgePoint(Session& session, double right, double down) {
  auto& form = session.forms.form2;
  const PointKind kind = ChosenPoint(form);
  const bool hasPixel = kind == PointKind::Antisolar || kind == PointKind::Sun;
  if (!hasPixel || !IsNumber(form.txtX1.Text) || !IsNumber(form.txtY1.Text)) return;
  RememberInputs(session, "Form2.arrows");
  form.txtX1.Text = Shortest(Val(form.txtX1.Text) + right);
  form.txtY1.Text = Shortest(Val(form.txtY1.Text) + down);
  ShowSimulation(session);
}

void DragPoint(Session& session, double x, double y, bool begins) {
  auto& form = session.forms.form2;
  const PointKind kind = ChosenPoint(form);
  if (kind == PointKind::Arc || kind == PointKind::AltitudeAzimuth) return;
  if (begins) RememberInputs(session, "");
  const PicturePoint at = PixelAt(session, x, y);
  form.txtX1.Text = Shortest(at.x);
  form.txtY1.Text = Shortest(at.y);
  form.txtX1.BackColour = form.txtY1.BackColour = colours::White;
  ShowSimulation(session);
  picture1_mousemove(session, x, y);
}

}  // namespace lumivex
