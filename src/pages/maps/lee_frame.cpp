#include "pages/maps/lee_frame.h"

#include <algorithm>
#include <cmath>

#include "axes/scale_rules.h"
#include "pages/frame/scale.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

/// Between the cells and the box about them.
constexpr double outside = 15;

constexpr double minorTick = 75, majorTick = 120, majorTickAtLeft = 100, tickAbove = 45;
constexpr double numbersBelow = 150, titleBelow = 350;
constexpr double slideFont = 19, slideTitleFont = 12, smallestFont = 6;
constexpr int mostTicks = 2000;

/// Right of the third panel, for half a number.
constexpr double rightMargin = 250;

/// Below the panels: numbers, title and lines.
constexpr double roomBelow = 1250, roomBelowSlide = 2000;
constexpr double leastHeight = 1500, leastWidth = 300;

/// What a side is marked with.
struct Ladder {
  std::vector<TickRow> ticks;
  std::vector<double> numbers;  ///< the most wanted first
  int decimals = 0;             ///< of the numbers
};

/// A logarithmic side of at least this ratio counts by decades; a shorter one in equal steps.
constexpr double leastRatioOfDecades = 5;

/// @param limits        the side as x.
/// @param roomForFives  whether numbers between the decades would stand clear of each other.
Ladder DecadeLadder(const AxisLimits& limits, bool roomForFives) {
  constexpr int mostDecadesOfNine = 5;
  const int first = static_cast<int>(std::floor(std::log10(limits.xmin) + 1e-9));
  const int last = static_cast<int>(std::ceil(std::log10(limits.xmax) - 1e-9));
  Ladder ladder;
  ladder.decimals = 12;
  const auto row = [&](double start, double end, double step) {
    return TickRow{start, end, step, limits.xmin, limits.xmax, true};
  };
  for (const int factor : {1, 5, 2})
    for (int decade = first; decade <= last; ++decade) {
      const double value = factor * std::pow(10.0, decade);
      const TickRow one = row(value, value, value);
      ladder.ticks.push_back(one);
      if (factor > 1 && !roomForFives) continue;
      for (const double at : TickValues(one)) ladder.numbers.push_back(at);
    }
  for (int decade = first; decade < last && last - first <= mostDecadesOfNine; ++decade) {
    const double unit = std::pow(10.0, decade);
    ladder.ticks.push_back(row(unit, 10 * unit, unit));
  }
  return ladder;
}

/// The part of a side that its narrowest step takes, which on a logarithmic one is the last.
double PartOfStep(const AxisLimits& limits, bool logarithmic, double step) {
  if (!logarithmic) return step / (limits.xmax - limits.xmin);
  if (step >= limits.xmax - limits.xmin) return 1;
  return std::log(limits.xmax / (limits.xmax - step)) / std::log(limits.xmax / limits.xmin);
}

std::string NumberText(double value, int decimals) {
  constexpr double scientificFrom = 1e5, scientificBelow = 1e-4;
  const double size = std::abs(value);
  if (size >= scientificFrom || (size > 0 && size < scientificBelow)) return Significant(value, 4);
  return TickText(RoundTo(value, decimals));
}

/// How far apart the numbers of a side stand: at every tick where these are well apart, otherwise at every second,
/// fifth or tenth one where they have room: at steps that end with the side if there are such, or else that begin with
/// it.
/// @param wanted  part of the side that a number takes, with air.
double NumberStep(const AxisLimits& limits, bool logarithmic, double step, double labelStep, double wanted) {
  constexpr double rounding = 1e-6, air = 1.1, airAtTicks = 1.2, airAtUnequalTicks = 2;
  const double range = limits.xmax - limits.xmin;
  // Equal steps of a logarithmic side come closer and closer, and look crowded before they are.
  if ((logarithmic ? airAtUnequalTicks : airAtTicks) * wanted <= step / range) return step;
  const double coarsest = 20 * step;
  double roomy = 0, fromBeginning = 0;
  const auto isMultiple = [](double value, double of) {
    return std::abs(value / of - std::round(value / of)) < rounding;
  };
  for (const double candidate : {labelStep, 5 * step, 10 * step, coarsest}) {
    if (air * wanted > PartOfStep(limits, logarithmic, candidate)) continue;
    if (roomy == 0) roomy = candidate;
    if (2 * candidate > range || !isMultiple(limits.xmin, candidate)) continue;
    if (isMultiple(limits.xmax, candidate)) return candidate;
    if (fromBeginning == 0) fromBeginning = candidate;
  }
  if (fromBeginning > 0) return fromBeginning;
  return roomy > 0 ? roomy : coarsest;
}

/// @param limits  the side as x.
/// @param room    part of the side that a number of that text takes, with air.
template <class Room>
Ladder StepLadder(const AxisLimits& limits, bool logarithmic, double oddTest, Room&& room) {
  double step = 0, range = 0, labelStep = 0;
  GridxStep(oddTest, limits.xmin, limits.xmax, step, range, labelStep);
  Ladder ladder;
  ladder.decimals = TickDecimals(range, limits.xmax, step);
  ladder.ticks = {{limits.xmin, limits.xmax, step, limits.xmin, limits.xmax, logarithmic}};
  const double wanted =
      std::max(room(NumberText(limits.xmax, ladder.decimals)), room(NumberText(limits.xmin + step, ladder.decimals)));
  const double numberStep = NumberStep(limits, logarithmic, step, labelStep, wanted);
  ladder.numbers = TickValues({limits.xmin, limits.xmax, numberStep, limits.xmin, limits.xmax});
  return ladder;
}

/// From the cells to the numbers below them, which keep clear of the lowest one at the left.
double NumbersBelow(const DrawingSurface& surface, const PageStyle& style) {
  constexpr double air = 30;
  return style.special ? std::max(numbersBelow, 0.5 * surface.TextHeight("X") + air) : numbersBelow;
}

bool IsByDecades(const AxisLimits& limits, bool logarithmic) {
  return logarithmic && limits.xmax / limits.xmin >= leastRatioOfDecades;
}

/// A number of a side, and how it reads.
struct SideNumber {
  double value = 0;
  std::string text;
};

/// The numbers at the left, the most wanted first: those of the ladder, then the ends.
std::vector<SideNumber> NumbersOf(const Ladder& ladder, const AxisLimits& limits) {
  std::vector<SideNumber> numbers;
  for (const double value : ladder.numbers) numbers.push_back({value, NumberText(value, ladder.decimals)});
  for (const double end : {limits.xmin, limits.xmax})
    numbers.push_back({end, NumberText(end, std::max(ladder.decimals, 6))});
  return numbers;
}

/// Makes the letters smaller until the text fits.
void FitFont(DrawingSurface& surface, std::string_view text, double room) {
  while (surface.TextWidth(text) > room && surface.FontSize > smallestFont) surface.FontSize -= 0.5;
}

/// Numbers below a panel reach no further than half way to its neighbours.
void PaintNumbersBelow(FramePaint& paint) {
  constexpr double air = 60;
  auto& surface = paint.surface;
  const GraphBox& box = paint.Box();
  const AxisLimits& limits = paint.map.limits;
  const double top = box.bottom + NumbersBelow(surface, paint.style), fontSize = surface.FontSize;
  const auto room = [&](const std::string& text) { return (surface.TextWidth(text) + 80) / box.Width(); };
  const auto ladderNow = [&] {
    if (!IsByDecades(limits, paint.map.logX)) return StepLadder(limits, paint.map.logX, paint.panel.oddTest, room);
    const double decade = box.Width() / std::log10(limits.xmax / limits.xmin);
    return DecadeLadder(limits, 0.3 * decade > surface.TextWidth(NumberText(limits.xmax, 4)) + 20);
  };
  for (const SideNumber& number : NumbersOf(ladderNow(), limits))
    FitFont(surface, number.text, paint.page.geometry.box.left - air);
  const Ladder ladder = ladderNow();
  const double below = box.bottom + outside, above = box.top - outside;
  for (const TickRow& row : ladder.ticks) {
    GridLeeTicks(surface, row, box.left, box.right, below, minorTick);
    GridLeeTicks(surface, row, box.left, box.right, above, -tickAbove);
  }
  for (const SideNumber& number : NumbersOf(ladder, limits)) {
    const double x = paint.map.X(number.value);
    if (paint.LabelBelow(number.text, x, top)) paint.Rule(x, below, x, below + majorTick, colours::Black);
  }
  surface.FontSize = fontSize;
}

/// Numbers at the left stand between a panel and its neighbour, all of them in the same letters.
void PaintNumbersAtLeft(FramePaint& paint) {
  constexpr double air = 30, besideTick = 130;
  auto& surface = paint.surface;
  const GraphBox& box = paint.Box();
  const AxisLimits& all = paint.map.limits;
  const AxisLimits limits{all.ymin, all.ymax, 0, 1};
  const auto room = [&](const std::string&) { return 1.8 * surface.TextHeight("X") / box.Height(); };
  const auto ladderNow = [&] {
    return IsByDecades(limits, paint.map.logY) ? DecadeLadder(limits, true)
                                               : StepLadder(limits, paint.map.logY, 0, room);
  };
  const double fontSize = surface.FontSize, widest = paint.page.geometry.box.left - besideTick - outside - air;
  for (const SideNumber& number : NumbersOf(ladderNow(), limits)) FitFont(surface, number.text, widest);
  // Smaller letters leave room for more of them.
  const Ladder ladder = ladderNow();
  const auto tick = [&](double value, double length) {
    const double y = paint.map.Y(value);
    paint.Rule(box.left - outside - length, y, box.left - outside, y, colours::Black);
  };
  for (const TickRow& row : ladder.ticks)
    for (const double value : TickValues(row)) tick(value, minorTick);
  for (const SideNumber& number : NumbersOf(ladder, limits)) {
    const double x = box.left - besideTick - surface.TextWidth(number.text);
    const double y = paint.map.Y(number.value) - 0.5 * surface.TextHeight(number.text);
    if (paint.labels.Print(number.text, x, y)) tick(number.value, majorTickAtLeft);
  }
  surface.FontSize = fontSize;
}

void PrintCentred(DrawingSurface& surface, std::string_view text, double middle, double y) {
  const double width = surface.TextWidth(text);
  surface.CurrentX = std::clamp(middle - 0.5 * width, 30.0, std::max(30.0, surface.ScaleWidth() - width - 30));
  surface.CurrentY = y;
  surface.Print(text, false);
}

/// Room for a text over or under a panel: the distance to the next one.
double Pitch(const FramePaint& paint) {
  constexpr double air = 150;
  return paint.Box().Width() + paint.page.geometry.box.left - air;
}

double TopOfTitleBelow(const DrawingSurface& surface, const PageStyle& style, const GraphBox& box) {
  return box.bottom + std::max(titleBelow, NumbersBelow(surface, style) + surface.TextHeight("X") + 10);
}

void PaintTitleBelow(FramePaint& paint) {
  auto& surface = paint.surface;
  const GraphBox& box = paint.Box();
  const double top = TopOfTitleBelow(surface, paint.style, box), fontSize = surface.FontSize;
  FitFont(surface, paint.page.map->across.title, paint.style.special ? box.Width() : Pitch(paint));
  PrintCentred(surface, paint.page.map->across.title, 0.5 * (box.left + box.right), top);
  surface.FontSize = fontSize;
}

double LogoFont(GraphSize size) {
  switch (size) {
    case GraphSize::Small:
      return 8;
    case GraphSize::Medium:
      return 10;
    default:
      return 16;
  }
}

void SetLetters(DrawingSurface& surface, const PageStyle& style) {
  PrepareSurface(surface, style);
  if (style.special) surface.FontSize = slideFont;
  surface.FontBold = false;
}

}  // namespace

GraphBox LeePanelBox(const PageGeometry& geometry, const PageStyle& style, int number) {
  const double left = geometry.box.left, top = geometry.box.top;
  const double widest = (geometry.surfaceWidth - rightMargin) / 3;
  const double width = std::max(std::min(geometry.panelWidth, widest), left + leastWidth);
  const double lowest = geometry.surfaceHeight - (style.special ? roomBelowSlide : roomBelow);
  const double bottom = std::min(geometry.box.bottom, std::max(lowest, top + leastHeight));
  return {number * width + left, (number + 1) * width, top, bottom};
}

std::vector<double> TickValues(const TickRow& row) {
  std::vector<double> values;
  if (!(row.step > 0)) return values;
  const double steps = row.start / row.step, whole = std::round(steps);
  const double first = std::abs(steps - whole) <= 1e-9 * std::max(1.0, std::abs(whole)) ? whole : std::floor(steps);
  const double slack = 1e-9 * std::max(std::abs(row.low), std::abs(row.high));
  for (int i = 0; i < mostTicks; ++i) {
    const double value = row.step * (first + i);
    if (value > row.end + 1e-9 * std::abs(row.end)) break;
    if (value >= row.low - slack && value <= row.high + slack) values.push_back(value);
  }
  return values;
}

void GridLeeTicks(DrawingSurface& surface, const TickRow& row, double left, double right, double y, double length) {
  const PanelMap map{{left, right, 0, 1}, {row.low, row.high, 0, 1}, row.logarithmic, false};
  surface.ForeColour = colours::Black;
  for (const double value : TickValues(row)) {
    const double x = map.X(value);
    surface.Line(x, y, x, y + length);
  }
}

void LeeFrame(FramePaint& paint) {
  auto& surface = paint.surface;
  const GraphBox& box = paint.Box();
  SetLetters(surface, paint.style);
  surface.Line(box.left - outside, box.top - outside, box.right + outside, box.bottom + outside, LineKind::Box);
  PaintNumbersBelow(paint);
  PaintNumbersAtLeft(paint);
  PaintTitleBelow(paint);
}

void PaintLeeTitles(FramePaint& paint, std::size_t number) {
  auto& surface = paint.surface;
  const GraphBox& box = paint.Box();
  const PageMap& map = *paint.page.map;
  SetLetters(surface, paint.style);
  surface.FontBold = true;
  // All in the same letters.
  if (paint.style.special) surface.FontSize = slideTitleFont;
  for (const MapPicture& picture : map.pictures) FitFont(surface, picture.title, box.Width());
  const double foot = box.top - outside - tickAbove;
  PrintCentred(surface, map.pictures[number].title, 0.5 * (box.left + box.right), foot - surface.TextHeight("X"));
  surface.FontBold = false;
  if (number > 0) return;
  constexpr double left = 50, air = 70;
  surface.FontSize = 8;
  const bool firstIsWider = surface.TextWidth(map.up.firstLine) > surface.TextWidth(map.up.secondLine);
  FitFont(surface, firstIsWider ? map.up.firstLine : map.up.secondLine, box.left - left - air);
  const double height = surface.TextHeight("X");
  double y = paint.labels.HighestTop(0, box.left, box.top) - 2 * height - 10;
  for (const std::string& line : {map.up.firstLine, map.up.secondLine}) {
    surface.CurrentX = left;
    surface.CurrentY = y;
    surface.Print(line, false);
    y += height;
  }
}

void LogoLee(DrawingSurface& surface, const Page& page) {
  const PageStyle& style = page.style;
  if (style.logo.empty()) return;
  constexpr double air = 100;
  const bool right = style.logoPlace == LogoPlace::TopRight || style.logoPlace == LogoPlace::BottomRight;
  const bool above = style.logoPlace == LogoPlace::TopRight || style.logoPlace == LogoPlace::TopLeft;
  surface.ForeColour = style.logoColour;
  surface.FontBold = false;
  for (const PagePanel& panel : page.panels) {
    const GraphBox& box = panel.box;
    surface.FontSize = LogoFont(style.size);
    FitFont(surface, style.logo, box.Width() - 2 * air);
    const double atRight = style.narrowScreen ? box.left + 0.35 * (box.right - box.left) : box.right - 2700;
    const double end = box.right - air - surface.TextWidth(style.logo);
    const double wanted = right ? atRight : box.left + air;
    surface.CurrentX = std::max(box.left + air, std::min(wanted, end));
    surface.CurrentY = above ? box.top + 100 : std::min(box.bottom - 500, box.bottom - surface.TextHeight("X") - air);
    surface.Print(style.logo, false);
  }
  surface.FontSize = 8;
  surface.ForeColour = colours::Black;
}

double BottomOfLeeTitle(const DrawingSurface& surface, const Page& page) {
  return TopOfTitleBelow(surface, page.style, page.panels.front().box) + surface.TextHeight("X");
}

}  // namespace lumivex
