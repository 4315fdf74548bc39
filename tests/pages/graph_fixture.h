#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "pages/build_page.h"
#include "record/recording_surface.h"
#include "record/session.h"
#include "session/inputs/look/look_menus.h"
#include "session/inputs/look/read_look.h"
#include "session/page.h"

namespace lumivex {

/// An outside world that remembers messages and answers dialogs.
class GraphPlatform final : public Platform {
 public:
  void Message(std::string_view title, std::string_view text) override {
    messages.push_back(std::string(title) + ": " + std::string(text));
  }
  bool Question(std::string_view, std::string_view) override { return false; }
  std::optional<std::string> OpenFileName(const FileDialog&) override { return {}; }
  std::optional<std::string> SaveFileName(const FileDialog&) override { return {}; }
  bool ShowModal(Form&) override {
    ++dialogsShown;
    return dialogAnswer;
  }
  void Show(Form&) override {}
  void Yield() override {}
  double Timer() override { return 0; }
  ScreenSize Screen() override { return {}; }
  char DecimalSymbol() override { return '.'; }
  void Beep() override {}
  void Help(std::string_view) override {}
  void BringToFront(Form&) override {}
  std::string SavePicture(std::string_view) override { return {}; }
  void CopyText(std::string_view) override {}
  void Quit() override {}

  std::vector<std::string> messages;
  int dialogsShown = 0;
  bool dialogAnswer = true;
};

class RaisedEvents final : public Events {
 public:
  bool Raise(std::string_view name) override {
    raised.emplace_back(name);
    return true;
  }
  std::vector<std::string> raised;
};

/// A session that has started but calculated nothing, on a surface of 19200 by 15360 units, in the "Large" size.
struct GraphSession {
  GraphSession() {
    form.mnuMajorGridX.Checked = form.mnuMajorGridY.Checked = true;
    form.mnuDrawWidth1.Checked = true;
    form.mnuLogoPositionBL.Checked = true;
    Click("mnuDefault_Click");
    Click("mnuLarge_Click");
    events.raised.clear();
  }

  void Click(std::string_view event) {
    for (const auto& row : LookEvents())
      if (row.name == event) row.handler(session);
  }

  /// Results against angle from 0 to 180 degrees as a run gives them; f and g are the two intensities, at a phase of
  /// both amplitudes (degrees).
  template <class F, class G>
  void StoreAngles(double step, F&& f, G&& g, double phase = 0) {
    AngleRows rows;
    rows.step = step;
    rows.NANG = static_cast<int>(std::lround(90 / step)) + 1;
    const int last = 2 * rows.NANG - 1;
    rows.window = {1, last};
    AngleFound found;
    found.S1.Resize(last);
    found.S2.Resize(last);
    found.rows = {{1, rows.NANG}, {rows.NANG + 1, last}};
    const double c = std::cos(phase * 3.14159265358979 / 180), s = std::sin(phase * 3.14159265358979 / 180);
    for (int row = 1; row <= last; ++row) {
      const double angle = (row - 1) * step;
      const double a = std::sqrt(f(angle)), b = std::sqrt(g(angle));
      found.S1.Set(row, a * c, a * s);
      found.S2.Set(row, b * c, b * s);
    }
    results = {};
    results.asked.run = AngleRun{rows};
    results.found = std::move(found);
    results.last.lambda = 0.65;
  }
  template <class F>
  void StoreAngles(double step, F&& f) {
    StoreAngles(step, f, f);
  }
  void TakeGraph(GraphCode code) { results.asked.graph = GraphOf(code); }
  AngleFound& Found() { return std::get<AngleFound>(results.found); }

  void ShowRange(std::string_view xmin, std::string_view xmax) {
    session.form1.txtXmin.Text = xmin;
    session.form1.txtXmax.Text = xmax;
  }

  /// A plain run shows its curves, an overplot adds them.
  void Draw() { ShowPage(session, BuildPage(results, ReadLook(session), GeometryOf(session), session.state)); }
  void DrawOver() { ShowPage(session, lumivex::DrawOver(session.page, results, ReadLook(session))); }

  GraphPlatform platform;
  RecordingSurface surface{19200, 15360};
  RaisedEvents events;
  Session session{platform, surface, events};
  MainFormState& state = session.state;
  Form1& form = session.form1;
  Page& page = session.page;
  Results results;
};

}  // namespace lumivex
