#include "session/view.h"

#include <algorithm>
#include <cmath>

#include "pages/frame/scale.h"
#include "pages/zoom.h"
#include "record/number_text.h"
#include "session/undo.h"
#include "session/user_actions.h"

namespace lumivex {

namespace {

constexpr int fewPoints = 50, wantedPoints = 500;
constexpr double finestAngle = 0.001;  // degrees: rows of finer ones would not fit into memory

/// The largest of 1, 2, 5 times a power of ten that is not above the value; 90 degrees are a multiple of each.
double RoundStepBelow(double value) {
  const double unit = std::pow(10.0, std::floor(std::log10(value)));
  for (const double factor : {5.0, 2.0})
    if (factor * unit <= value * (1 + 1e-9)) return factor * unit;
  return unit;
}

bool IsToldByLimits(const Session& session) {
  const PageKind& kind = session.page.kind;
  return ChosenGraph(session.state) == kind.graph && !kind.fourier && !kind.IsTwoAngle() && !session.page.map &&
         kind.graph.family != Family::Convergence && session.form1.txtXmin.Visible;
}

/// Limits on multiples of the step, where one is told; an axis without 0 does not get one.
XRange OnSteps(XRange view, double step) {
  const XRange whole{std::floor(view.xmin / step + 1e-6) * step, std::ceil(view.xmax / step - 1e-6) * step};
  return {whole.xmin <= 0 && view.xmin > 0 ? view.xmin : whole.xmin, whole.xmax};
}

}  // namespace

std::optional<ViewRun> RunOfView(const Session& session) {
  const Page& page = session.page;
  if (!IsZoomed(page) || !IsToldByLimits(session)) return std::nullopt;
  const XRange view = ViewOf(page).x;
  ViewRun run;
  run.points = PointsInView(page);
  run.complete = HasDataOver(page, view);
  if (run.points >= fewPoints && run.complete) return std::nullopt;
  if (session.form1.mnuXStepLog.Checked) {
    const XRange range = RoundedRange(view);
    run.xmin = Shortest(range.xmin);
    run.xmax = Shortest(range.xmax);
    run.step = std::to_string(wantedPoints);
    return run;
  }
  double step = RoundStepBelow((view.xmax - view.xmin) / wantedPoints);
  if (page.kind.graph.OfAngles()) step = std::max(step, finestAngle);
  const bool ofSpheres = page.kind.graph.axis == AxisVariable::Number;
  if (ofSpheres) step = std::max(step, 1.0);
  // Steps that are as fine as they can be show nothing more.
  if (run.complete && (view.xmax - view.xmin) / step < 1.5 * run.points) return std::nullopt;
  XRange range = RoundedRange(OnSteps(view, step));
  if (page.kind.graph.AgainstAngle()) range.xmax = std::min(range.xmax, 180.0);
  if (ofSpheres) range = {std::max(std::floor(range.xmin), 1.0), std::ceil(range.xmax)};
  run.xmin = Shortest(range.xmin);
  run.xmax = Shortest(range.xmax);
  run.step = Shortest(step);
  return run;
}

void CalculateView(Session& session, const ViewRun& run) {
  auto& form = session.form1;
  RememberInputs(session, "");
  {
    const ActionScope acting(session.undo);
    const UndoHold hold(session.undo);
    UserTypes(session, form.txtXmin, run.xmin);
    UserTypes(session, form.txtXmax, run.xmax);
    UserTypes(session, form.cboStep, run.step);
  }
  UserClicks(session, form.cmdNewPlot);
}

}  // namespace lumivex
