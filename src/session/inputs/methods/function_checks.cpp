#include "session/inputs/methods/function_checks.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "axes/polar_coordinates.h"
#include "record/number_text.h"
#include "solvers/functions/airy_function.h"
#include "solvers/functions/bessel_functions.h"

namespace lumivex {

namespace {

constexpr double lineHeight = 250, top = 400, firstColumn = 600, columnWidth = 5000;
constexpr int linesPerColumn = 38;
constexpr double degree = 0.017453292519943295;
constexpr std::size_t tableLength = 1001;
constexpr int digits = 9;

/// Lines in columns over the whole page.
class Sheet {
 public:
  explicit Sheet(Session& session) : surface_(*session.surface) {
    surface_.Cls();
    surface_.ForeColour = colours::Black;
  }
  void Line(const std::string& text) {
    surface_.CurrentX = firstColumn + columnWidth * (line_ / linesPerColumn);
    surface_.CurrentY = top + lineHeight * (line_ % linesPerColumn);
    surface_.Print(text);
    ++line_;
  }

 private:
  DrawingSurface& surface_;
  int line_ = 0;
};

/// The parts of a line between blanks and commas.
std::vector<std::string> SplitFields(std::string line) {
  std::ranges::replace(line, ',', ' ');
  std::ranges::replace(line, '\t', ' ');
  std::istringstream parts(line);
  return {std::istream_iterator<std::string>(parts), {}};
}

std::string Number(double value) {
  return Significant(value, digits);
}

}  // namespace

void cmdBessel_Click(Session& session) {
  Sheet sheet(session);
  for (int angle = 10; angle <= 360; angle += 10) {
    double x = 0, y = 0, r = 0, theta = 0;
    PolarRectangular(1, angle * degree, x, y);
    RectangularPolar(x, y, r, theta);
    sheet.Line(std::to_string(angle) + ": " + Number(r) + ", " + Number(theta / degree));
  }
  const double x = std::fmax(0.0, Val(session.form1.txtRadius.Text));
  RealBessel bessel;
  for (const int n : {1, -1}) {
    BesselJY(x, n, bessel);
    sheet.Line("n = " + std::to_string(n) + ", x = " + Number(x));
    for (int k = 0; k <= 1; ++k) {
      const auto i = static_cast<std::size_t>(k);
      const std::string order = std::to_string(k) + " = ";
      sheet.Line("J" + order + Number(bessel.RealBesselJ[i]) + "  J'" + order + Number(bessel.derivativeJ[i]));
      sheet.Line("Y" + order + Number(bessel.RealBesselY[i]) + "  Y'" + order + Number(bessel.derivativeY[i]));
    }
  }
}

void cmdAiry_Click(Session& session) {
  Sheet sheet(session);
  for (double z = -15; z <= 10; z += 1.0) {
    double Ai = 0, dAi = 0;
    AiryCalc(z, Ai, dAi);
    sheet.Line("Ai(" + Shortest(z) + ") = " + Number(Ai) + "  Ai' = " + Number(dAi));
  }
}

void read_Diff_file(Session& session) {
  const auto path = session.platform.OpenFileName({"Table of Bessel functions", "Text (*.txt)", "BesselDiff.txt"});
  if (!path) return;
  const auto refuse = [&session] { session.platform.Message("Error", "Error in file: BesselDiff.txt"); };
  std::ifstream file(*path);
  std::string line;
  if (!file || !std::getline(file, line) || Trim(line) != "Bessel") return refuse();
  std::vector<double> table;
  while (table.size() < tableLength && std::getline(file, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    for (const auto& part : SplitFields(line)) {
      if (!IsNumber(part)) return refuse();
      if (table.size() < tableLength) table.push_back(Val(part));
    }
  }
  session.state.BesselDiffTable = std::move(table);
}

}  // namespace lumivex
