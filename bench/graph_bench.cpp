// Drawing the first plot beside calculating it: frame and both curves on a surface that only keeps a list, so that what
// is measured is the work of the graphs, not that of a window system.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <sstream>

#include "pages/line_graph.h"
#include "pages/read_out.h"
#include "pages/redraw.h"
#include "scripts/script_runner.h"

namespace {

using namespace lumivex;

template <class Work>
double BestMicroseconds(int runs, const Work& work) {
  using Clock = std::chrono::steady_clock;
  double best = 1e300;
  for (int run = 0; run < runs; ++run) {
    const auto begin = Clock::now();
    work();
    best = std::min(best, std::chrono::duration<double, std::micro>(Clock::now() - begin).count());
  }
  return best;
}

void Measure(ScriptRunner& runner, const char* step, int runs) {
  Session& session = runner.Current();
  auto& s = session.state;
  session.form1.cboStep.Text = step;
  session.events.Raise("cmdNewPlot_Click");
  RecordingSurface surface(19200, 15360);
  DrawingSurface* const before = session.surface;
  session.surface = &surface;
  const double first = BestMicroseconds(runs, [&] {
    s.PlotMode = 1;
    Display(session, s.Iperp, s.Ipar, s.Iunpol);
    s.PlotMode = 1;
  });
  const double again = BestMicroseconds(runs, [&] { RedrawGraph(session); });
  double sum = 0;
  const double reading = BestMicroseconds(runs, [&] {
    const auto found = ReadGraph(s, 8000, 6000);
    sum += found ? found->curveY : 0;
  });
  session.surface = before;
  const double whole = BestMicroseconds(runs, [&] { session.events.Raise("cmdNewPlot_Click"); });
  std::printf("%8s %8zu %14.0f %14.0f %14.0f %14.0f\n", step, s.Iperp.size() - 1, first, again, reading, whole);
}

}  // namespace

int main() {
  std::ostringstream output, errors;
  ScriptRunner runner(output, errors);
  runner.Start();
  std::printf("First plot, radius 10 um, best times in microseconds\n");
  std::printf("%8s %8s %14s %14s %14s %14s\n", "step", "rows", "frame+curves", "redraw", "read-out", "whole run");
  Measure(runner, "1", 200);
  Measure(runner, "0.1", 200);
  Measure(runner, "0.01", 50);
  return 0;
}
