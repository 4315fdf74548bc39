// Drawing the first plot beside calculating it: building the page, and painting it on a surface that only keeps a list,
// so that what is measured is the work of the pages, not that of a window system.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <sstream>

#include "pages/build_page.h"
#include "pages/read_out.h"
#include "scripts/script_runner.h"
#include "session/inputs/look/read_look.h"

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
  const Look look = ReadLook(session);
  const PageGeometry geometry = GeometryOf(session);
  const double built = BestMicroseconds(runs, [&] { session.page = BuildPage(*s.LastResults, look, geometry, s); });
  const double painted = BestMicroseconds(runs, [&] { Paint(session.page, surface); });
  double sum = 0;
  const double reading = BestMicroseconds(runs, [&] {
    const auto found = ReadAt(session.page, 8000, 6000);
    sum += found ? found->curveY : 0;
  });
  const double whole = BestMicroseconds(runs, [&] { session.events.Raise("cmdNewPlot_Click"); });
  std::printf("%8s %8zu %14.0f %14.0f %14.0f %14.0f\n", step, s.Iperp.size() - 1, built, painted, reading, whole);
}

}  // namespace

int main() {
  std::ostringstream output, errors;
  ScriptRunner runner(output, errors);
  runner.Start();
  std::printf("First plot, radius 10 um, best times in microseconds\n");
  std::printf("%8s %8s %14s %14s %14s %14s\n", "step", "rows", "page", "paint", "read-out", "whole run");
  Measure(runner, "1", 200);
  Measure(runner, "0.1", 200);
  Measure(runner, "0.01", 50);
  return 0;
}
