#include "pages/scale.h"

#include <cmath>

#include "record/number_text.h"

namespace lumivex {

namespace {

/// Below this part of the top a bottom says nothing: ten decades do.
constexpr double smallestPartOfTop = 1e-20;
constexpr double decadesShown = 1e-10;

bool IsAutomatic(const SelectionList& list) {
  return SameName(Trim(list.Text), "Automatic");
}

double LogTop(double value) {
  return std::pow(10.0, std::floor(RuleLog10(value)) + 1);
}

}  // namespace

std::string RoundedText(double x, int decimals) {
  std::string text;
  const auto rounded = [&](double positive) { return Str(RoundTo(positive, decimals)); };
  if (x > 0.0001) {
    text = rounded(x);
  } else if (x == 0) {
    text = "0";
  } else if (x < 0) {
    text = (x >= -1 ? "-0" : "-") + Str(-RoundTo(-x, decimals));
  } else {
    text = Format(x, "Scientific");
  }
  text = Trim(text);
  return text.starts_with('.') ? "0" + text : text;
}

std::string TickText(double value) {
  return Format(value, "#0.##########");
}

void GridxStep(const GraphState& graph, double xmin, double xmax, double& step, double& range, double& labelStep) {
  range = xmax - xmin;
  step = LadderStep(range);
  labelStep = 2 * step;
  if (range == 10 && IsOdd(graph.GridOddTest)) {
    step = 1;
    labelStep = 5;
  }
}

void GridYmax(Session& session, double value, double& result) {
  auto& state = session.state;
  if (state.SecondPanel == 1) return;
  if (!IsAutomatic(session.form1.cboYmax)) {
    result = Val(session.form1.cboYmax.Text);
  } else if (state.PlotMode == 2 || !(value > 0) || !std::isfinite(value)) {
    result = state.StoredTop;
  } else if (session.form1.OptLog.Checked) {
    result = session.form1.mnuPolarPlot.Checked ? value : LogTop(value);
  } else {
    // A value of 10^p takes the unit of the call before, so that it is kept from call to call.
    result = RoundedTop(value, state.GridUnit);
  }
  state.StoredTop = result;
}

void GridYmin(Session& session, double value, double& result) {
  auto& state = session.state;
  const auto& form = session.form1;
  if (!IsAutomatic(form.cboYmin)) {
    result = Val(form.cboYmin.Text);
  } else if (state.PlotMode == 2) {
    result = state.StoredBottom;
  } else if (!form.OptLog.Checked) {
    result = 0;
  } else {
    double bottom = value;
    if (!(bottom > 0) || bottom / state.Ymax < smallestPartOfTop) bottom = state.Ymax * decadesShown;
    if (form.mnuPolarPlot.Checked) {
      result = state.Ymax / std::pow(10.0, std::floor(Log10Guarded(state.Ymax / bottom)) + 1);
    } else {
      result = std::pow(10.0, std::floor(RuleLog10(bottom)));
    }
  }
  state.StoredBottom = result;
}

}  // namespace lumivex
