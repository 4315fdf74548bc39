// Drawing the first plot beside calculating it: building the page, and painting it on a surface that only keeps a list,
// so that what is measured is the work of the pages, not that of a window system. Then a Lee diagram of 200 columns by
// 1801 rows, built anew as after each change of its colours.

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <memory>
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

/// A Lee diagram of three colours whose cells follow a formula.
std::shared_ptr<const Results> LeeDiagram() {
  Results results;
  results.asked.graph = GraphOf({20, 1});
  AngleRows rows;
  const Sweep columns{Swept::Radius, 1, 1000, 199, true};
  results.asked.run = AngleMapRun{rows, columns};
  SpectrumOfLight light;
  light.wavelength = {0, 0.65F, 0.51F, 0.44F};
  light.weight = {0, 1, 1, 1};
  light.red = light.green = light.blue = {0, 1, 1, 1};
  results.asked.light.spectrum = light;
  MapFound found;
  found.rows = 1801;
  found.columns = found.done = columns.Count();
  found.panels.resize(2);
  for (int column = 0; column < found.columns; ++column)
    for (int row = 0; row < found.rows; ++row) {
      const double value = std::exp(-8 * std::abs(std::sin(0.02 * row + column)));
      for (MapPanel& panel : found.panels) {
        panel.red.push_back(static_cast<float>(value));
        panel.green.push_back(static_cast<float>(value * value));
        panel.blue.push_back(static_cast<float>(value * 0.5));
      }
    }
  results.found = std::move(found);
  return std::make_shared<const Results>(std::move(results));
}

void MeasureMaps() {
  const auto results = LeeDiagram();
  const auto row = [&](const char* name, auto&& change) {
    Look look;
    look.scale.x = {0, 180};
    change(look);
    Page page;
    const double built = BestMicroseconds(10, [&] { page = BuildPage(*results, look, {}, {}); });
    RecordingSurface surface(19200, 15360);
    const double painted = BestMicroseconds(10, [&] { Paint(page, surface); });
    std::printf("%-26s %14.0f %14.0f\n", name, built, painted);
  };
  row("normalised", [](Look&) {});
  row("absolute", [](Look& look) { look.colours.absolute = true; });
  row("brightness 5", [](Look& look) { look.colours.rules.brightness = 5; });
  row("saturated", [](Look& look) { look.colours.rules.saturated = true; });
  row("hue held, bright", [](Look& look) {
    look.colours.rules.brightness = 5;
    look.colours.rules.saturation = SaturationRule::Freeze;
  });
  row("gamma of the group", [](Look& look) { look.colours.rules.gamma = GammaRule::GroupRGB; });
  row("no gamma", [](Look& look) { look.colours.rules.gamma = GammaRule::None; });
  row("false colours", [](Look& look) { look.colours.falseColours = true; });
  row("disc of the sun", [](Look& look) { look.sun.disc = true; });
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
  std::printf("\nLee diagram of 200 columns by 1801 rows, best times in microseconds\n");
  std::printf("%-26s %14s %14s\n", "colours", "page", "paint");
  MeasureMaps();
  return 0;
}
