#include "sky/sky_lines.h"

#include <cmath>
#include <numbers>

namespace lumivex {

namespace {

constexpr double degree = std::numbers::pi / 180;
/// Between two points of a line; an arc of 2000 pixels' radius is out by less than 0.1 pixel.
constexpr double between = 0.5 * degree;
/// Lines end so many widths or heights beside the picture.
constexpr double beside = 2;

bool IsNear(const Camera& camera, const PicturePoint& point) {
  const PicturePoint middle = camera.Middle();
  return std::abs(point.x - middle.x) < (beside + 0.5) * camera.width &&
         std::abs(point.y - middle.y) < (beside + 0.5) * camera.height;
}

/// Points that are seen, joined to lines.
class LineMaker {
 public:
  explicit LineMaker(const Camera& camera) : camera_(camera) {}

  void Add(const Direction& seen) {
    const auto point = PointOf(camera_, seen);
    if (!point || !IsNear(camera_, *point)) return Break();
    line_.push_back(*point);
  }
  void Break() {
    if (line_.size() > 1) lines_.push_back(std::move(line_));
    line_.clear();
  }
  std::vector<SkyLine> Take() {
    Break();
    return std::move(lines_);
  }

 private:
  const Camera& camera_;
  SkyLine line_;
  std::vector<SkyLine> lines_;
};

void AddCircle(LineMaker& lines, const Direction& centre, double radius) {
  // Up along the circle, and right.
  const Direction raised{-centre.up * centre.right, 1 - centre.up * centre.up, -centre.up * centre.forward};
  const bool vertical = Dot(raised, raised) < 1e-20;
  const Direction e1 = vertical ? Direction{0, 0, 1} : Normalised(raised), e2 = Cross(e1, centre);
  const int steps = static_cast<int>(std::ceil(2 * std::numbers::pi / between));
  const double c = std::cos(radius), s = std::sin(radius);
  for (int i = 0; i <= steps; ++i) {
    const double phi = 2 * std::numbers::pi * (i % steps) / steps, a = s * std::cos(phi), b = s * std::sin(phi);
    lines.Add({c * centre.right + a * e1.right + b * e2.right, c * centre.up + a * e1.up + b * e2.up,
               c * centre.forward + a * e1.forward + b * e2.forward});
  }
  lines.Break();
}

/// How many steps fill a span of degrees, up to its end but not on it.
int StepsBelow(double span, double step) {
  return static_cast<int>(std::ceil(span / step - 1e-9)) - 1;
}

}  // namespace

std::vector<SkyLine> CircleLines(const Camera& camera, const Direction& centre, double radius) {
  LineMaker lines(camera);
  AddCircle(lines, centre, radius);
  return lines.Take();
}

std::vector<SkyLine> CirclesAbout(const Camera& camera, const Direction& centre, double step) {
  LineMaker lines(camera);
  for (int i = 1; i <= StepsBelow(180, step); ++i) AddCircle(lines, centre, i * step * degree);
  return lines.Take();
}

std::vector<SkyLine> SkyGrid(const Camera& camera, const CameraPose& pose, double step) {
  LineMaker lines(camera);
  const int rings = StepsBelow(90, step);
  for (int i = -rings; i <= rings; ++i) {
    const int steps = static_cast<int>(std::ceil(2 * std::numbers::pi / between));
    for (int j = 0; j <= steps; ++j)
      lines.Add(InCamera(DirectionAt(i * step * degree, 2 * std::numbers::pi * j / steps), pose));
    lines.Break();
  }
  for (int i = 0; i <= StepsBelow(360, step); ++i) {
    const int steps = static_cast<int>(std::ceil(std::numbers::pi / between));
    for (int j = 0; j <= steps; ++j)
      lines.Add(
          InCamera(DirectionAt(std::numbers::pi * (static_cast<double>(j) / steps - 0.5), i * step * degree), pose));
    lines.Break();
  }
  return lines.Take();
}

}  // namespace lumivex
