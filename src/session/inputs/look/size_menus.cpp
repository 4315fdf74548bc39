#include <cmath>

#include "session/inputs/look/look_menus.h"

namespace lumivex {

namespace {

using Entry = MenuEntry Form1Menus::*;

struct SizeRow {
  Entry entry;
  float right, bottom;
  double polarX, polarY;
  int polarRadius;
  float leePanelWidth;
};

constexpr SizeRow largeRow{&Form1Menus::mnuLarge, 15000, 9800, 5200, 6600, 3200, 5000};
constexpr SizeRow mediumRow{&Form1Menus::mnuMedium, 13150, 9580, 3500, 5650, 2250, 5000};
constexpr SizeRow smallRow{&Form1Menus::mnuSmall, 6000, 6800, 3500, 5100, 1700, 3000};

constexpr float specialRight = 13150, specialBottom = 9580;
constexpr int narrowScreenPx = 1401, smallScreenPx = 1024;

/// Ticks one of the four sizes, and replots.
void EndSizeChange(Session& session, Entry ticked) {
  auto& form = session.form1;
  for (const Entry entry :
       {&Form1Menus::mnuVLarge, &Form1Menus::mnuLarge, &Form1Menus::mnuMedium, &Form1Menus::mnuSmall})
    (form.*entry).Checked = entry == ticked;
  form.mnuSizeVariable.Enabled = ticked == &Form1Menus::mnuVLarge;
  session.events.Raise(session.state.Busy == 1 ? "cmdNewPlot_Click" : "cmdReplot_Click");
}

void SetSize(Session& session, const SizeRow& row) {
  auto& s = session.state;
  s.GraphLeft = 1000;
  s.GraphTop = 3400;
  s.GraphRight = row.right;
  s.GraphBottom = row.bottom;
  s.PolarCentreX = row.polarX;
  s.PolarCentreY = row.polarY;
  s.PolarRadius = row.polarRadius;
  if (ChosenGraph(s).InColour()) s.LeePanelWidth = row.leePanelWidth;
}

void SetVeryLarge(Session& session) {
  auto& s = session.state;
  const double width = session.surface->ScaleWidth(), height = session.surface->ScaleHeight();
  s.GraphLeft = 1000;
  s.GraphTop = 3400;
  s.GraphRight = static_cast<float>(0.97 * width);
  s.GraphBottom = static_cast<float>(0.84 * height);
  s.PolarCentreX = 0.3 * height + 1000;
  s.PolarCentreY = 0.3 * height + double{s.GraphTop};
  s.PolarRadius = static_cast<int>(std::floor(0.3 * height));
  const Graph& graph = ChosenGraph(s);
  if (graph.InColour() || graph.family == Family::Impulse) s.LeePanelWidth = static_cast<float>(width / 3.1);
  session.form1.Frame6.Left = s.ScreenWidthPx < narrowScreenPx ? 11760 : 16000;
}

/// Geometry of the size that is ticked.
void SetTickedSize(Session& session) {
  const auto& form = session.form1;
  if (form.mnuVLarge.Checked)
    SetVeryLarge(session);
  else if (form.mnuMedium.Checked)
    SetSize(session, mediumRow);
  else if (form.mnuSmall.Checked)
    SetSize(session, smallRow);
  else
    SetSize(session, largeRow);
}

void SetSpecialSize(MainFormState& s) {
  s.GraphRight = specialRight;
  s.GraphBottom = specialBottom;
}

}  // namespace

double TickedPanelWidth(const Session& session) {
  constexpr double panelsOnSurface = 3.1;
  const auto& form = session.form1;
  if (form.mnuVLarge.Checked) return session.surface->ScaleWidth() / panelsOnSurface;
  if (form.mnuMedium.Checked) return double{mediumRow.leePanelWidth};
  return double{form.mnuSmall.Checked ? smallRow.leePanelWidth : largeRow.leePanelWidth};
}

void SetTickedGeometry(Session& session) {
  SetTickedSize(session);
  if (session.form1.mnuSizeSpecial.Checked) SetSpecialSize(session.state);
}

void mnuLarge_Click(Session& session) {
  SetSize(session, largeRow);
  EndSizeChange(session, largeRow.entry);
}

void mnuMedium_Click(Session& session) {
  SetSize(session, mediumRow);
  EndSizeChange(session, mediumRow.entry);
}

void mnuSmall_Click(Session& session) {
  SetSize(session, smallRow);
  EndSizeChange(session, smallRow.entry);
}

void mnuVLarge_Click(Session& session) {
  SetVeryLarge(session);
  EndSizeChange(session, &Form1Menus::mnuVLarge);
}

void mnuSizeSpecial_Click(Session& session) {
  auto& form = session.form1;
  form.mnuSizeSpecial.Checked = !form.mnuSizeSpecial.Checked;
  // The geometry comes before the background, which replots.
  if (form.mnuSizeSpecial.Checked) {
    SetSpecialSize(session.state);
  } else {
    SetTickedSize(session);
  }
  if (form.mnuSizeSpecial.Checked && !form.mnuPolarPlot.Checked)
    mnuWhite_Click(session);
  else
    mnuDefault_Click(session);
  form.cmdReplot.Enabled = true;
}

void mnuSizeVariable_Click(Session& session) {
  auto& variable = session.form1.mnuSizeVariable;
  variable.Checked = !variable.Checked;
  if (!variable.Checked && session.state.ScreenWidthPx <= smallScreenPx)
    mnuLarge_Click(session);
  else
    mnuVLarge_Click(session);
}

}  // namespace lumivex
