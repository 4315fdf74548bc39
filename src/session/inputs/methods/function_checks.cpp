#include "session/inputs/methods/function_checks.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "axes/polar_coordinates.h"
#include "materials/files/input_items.h"
#include "pages/build_page.h"
#include "record/number_text.h"
#include "session/inputs/look/read_look.h"
#include "session/page.h"
#include "solvers/functions/airy_function.h"
#include "solvers/functions/bessel_functions.h"

namespace lumivex {

namespace {

constexpr double degree = 0.017453292519943295;
constexpr std::size_t tableLength = 1001;
constexpr int digits = 9;

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

/// Lines are a page like any other: it is painted anew on every surface, till the next plot takes its place.
void ShowSheet(Session& session, std::vector<std::string> lines) {
  Page page = WithLook({}, ReadLook(session));
  page.scale = session.state;
  page.sheet = std::move(lines);
  ShowPage(session, std::move(page));
  session.form1.cmdReplot.Enabled = session.state.LastResults != nullptr;
}

}  // namespace

void cmdBessel_Click(Session& session) {
  std::vector<std::string> sheet;
  for (int angle = 10; angle <= 360; angle += 10) {
    double x = 0, y = 0, r = 0, theta = 0;
    PolarRectangular(1, angle * degree, x, y);
    RectangularPolar(x, y, r, theta);
    sheet.push_back(std::to_string(angle) + ": " + Number(r) + ", " + Number(theta / degree));
  }
  const double x = std::fmax(0.0, Val(session.form1.txtRadius.Text));
  RealBessel bessel;
  for (const int n : {1, -1}) {
    BesselJY(x, n, bessel);
    sheet.push_back("n = " + std::to_string(n) + ", x = " + Number(x));
    for (int k = 0; k <= 1; ++k) {
      const auto i = static_cast<std::size_t>(k);
      const std::string order = std::to_string(k) + " = ";
      sheet.push_back("J" + order + Number(bessel.RealBesselJ[i]) + "  J'" + order + Number(bessel.derivativeJ[i]));
      sheet.push_back("Y" + order + Number(bessel.RealBesselY[i]) + "  Y'" + order + Number(bessel.derivativeY[i]));
    }
  }
  ShowSheet(session, std::move(sheet));
}

void cmdAiry_Click(Session& session) {
  std::vector<std::string> sheet;
  for (double z = -15; z <= 10; z += 1.0) {
    double Ai = 0, dAi = 0;
    AiryCalc(z, Ai, dAi);
    sheet.push_back("Ai(" + Shortest(z) + ") = " + Number(Ai) + "  Ai' = " + Number(dAi));
  }
  ShowSheet(session, std::move(sheet));
}

void read_Diff_file(Session& session) {
  const auto path = session.platform.OpenFileName({"Table of Bessel functions", "Text (*.txt)", "BesselDiff.txt"});
  if (!path) return;
  const auto refuse = [&session] { session.platform.Message("Error", "Error in file: BesselDiff.txt"); };
  std::ifstream file;
  std::string line;
  if (!OpenInput(file, *path).empty() || !std::getline(file, line) || Trim(line) != "Bessel") return refuse();
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
