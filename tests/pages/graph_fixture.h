#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "pages/curve_legend.h"
#include "pages/frame.h"
#include "pages/line_graph.h"
#include "pages/redraw.h"
#include "pages/two_panels.h"
#include "record/recording_surface.h"
#include "record/session.h"
#include "session/inputs/look/look_menus.h"

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
  void Yield() override {
    if (state != nullptr && stopAtYield) state->PlotMode = 4;
  }
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
  RunState* state = nullptr;
  bool stopAtYield = false;
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
    platform.state = &session.state;
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

  /// Stores curves against angle from 0 to 180 degrees as a run leaves them; f and g give the two polarisations.
  template <class F, class G>
  void StoreAngles(double step, F&& f, G&& g) {
    auto& s = session.state;
    s.Xstep = step;
    s.NANG = static_cast<int>(std::lround(90 / step)) + 1;
    s.AngleLow = 1;
    s.AngleHigh = 2 * s.NANG - 1;
    const auto size = static_cast<std::size_t>(s.AngleHigh) + 1;
    for (auto* y : {&s.XValues, &s.Iperp, &s.Ipar, &s.Iunpol, &s.Extra1, &s.Extra2, &s.Extra3}) y->assign(size, 0);
    for (std::size_t i = 1; i < size; ++i) {
      const double angle = static_cast<double>(i - 1) * step;
      s.XValues[i] = angle;
      s.Iperp[i] = f(angle);
      s.Ipar[i] = g(angle);
      s.Iunpol[i] = (s.Iperp[i] + s.Ipar[i]) / 2;
      s.Extra1[i] = (s.Iperp[i] - s.Ipar[i]) / (s.Iperp[i] + s.Ipar[i]);
    }
  }
  template <class F>
  void StoreAngles(double step, F&& f) {
    StoreAngles(step, f, f);
  }

  void ShowRange(std::string_view xmin, std::string_view xmax) {
    session.form1.txtXmin.Text = xmin;
    session.form1.txtXmax.Text = xmax;
  }

  /// A plain run draws its curves.
  void Draw() {
    session.state.PlotMode = 1;
    Display(session, session.state.Iperp, session.state.Ipar, session.state.Iunpol);
  }
  void DrawOver() {
    session.state.PlotMode = 2;
    Display(session, session.state.Iperp, session.state.Ipar, session.state.Iunpol);
  }

  GraphPlatform platform;
  RecordingSurface surface{19200, 15360};
  RaisedEvents events;
  Session session{platform, surface, events};
  MainFormState& state = session.state;
  Form1& form = session.form1;
};

}  // namespace lumivex
