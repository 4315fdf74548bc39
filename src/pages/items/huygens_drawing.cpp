#include "pages/items/huygens_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
constexpr double left = 12000, top = 100, bottom = 2750, widest = 5200;  // surface units
constexpr int raysDrawn = 12;
constexpr double farthest = 3;     // radii from the centre that are shown
constexpr double rayBeyond = 0.4;  // radii that a ray is drawn on beyond its wavefront
constexpr Colour rays{0xB0B0B0};   // grey
constexpr std::array fronts = {Colour{0x0000FF}, Colour{0xFF0000}, Colour{0x008000}, Colour{0xC000C0},
                               Colour{0x808000}};

/// A point in radii of the sphere.
struct Place {
  double x = 0, y = 0;
};

/// What of the plane is shown, and where.
class View {
 public:
  View(const DrawingSurface& surface, const std::vector<HuygensWave>& waves) {
    double xMin = -1.3, xMax = 1.3, yMin = -1.05, yMax = 1.05;
    for (const auto& wave : waves) {
      for (std::size_t k = 0; k < wave.waveX.size(); ++k) {
        if (std::hypot(wave.waveX[k], wave.waveY[k]) > farthest) continue;
        xMin = std::min(xMin, wave.waveX[k] - 0.1);
        xMax = std::max(xMax, wave.waveX[k] + 0.1);
        yMin = std::min(yMin, wave.waveY[k] - 0.1);
        yMax = std::max(yMax, wave.waveY[k] + 0.1);
      }
    }
    const double width = std::max(1.0, std::min(widest, surface.ScaleWidth() - left - 100));
    scale_ = std::min(width / (xMax - xMin), (bottom - top) / (yMax - yMin));
    x0_ = left - scale_ * xMin;
    y0_ = bottom + scale_ * yMin;
  }
  SurfacePoint At(const Place& p) const { return {x0_ + scale_ * p.x, y0_ - scale_ * p.y}; }
  double Length(double radii) const { return scale_ * radii; }

 private:
  double scale_ = 1, x0_ = 0, y0_ = 0;
};

/// A ray from the left, through the sphere and on beyond its wavefront.
std::vector<SurfacePoint> Path(const View& window, const HuygensWave& wave, std::size_t k) {
  const double i = std::asin(std::min(1.0, wave.impact[k]));
  const double turn = wave.p > 0 ? (wave.deviation[k] - 2 * i + pi) / wave.p : 0;
  std::vector<SurfacePoint> points = {window.At({-1.3, wave.impact[k]})};
  for (int chord = 0; chord <= wave.p; ++chord) {
    const double E = i + chord * turn;
    points.push_back(window.At({-std::cos(E), std::sin(E)}));
  }
  const double dx = std::cos(wave.deviation[k]), dy = -std::sin(wave.deviation[k]);
  const double ahead = (wave.waveX[k] - wave.exitX[k]) * dx + (wave.waveY[k] - wave.exitY[k]) * dy;
  const double length = std::clamp(ahead, 0.0, farthest) + rayBeyond;
  points.push_back(window.At({wave.exitX[k] + length * dx, wave.exitY[k] + length * dy}));
  return points;
}

void DrawWave(DrawingSurface& surface, const View& window, const HuygensWave& wave, Colour colour) {
  const std::size_t count = wave.waveX.size();
  if (count == 0) return;
  surface.ForeColour = rays;
  for (int ray = 0; ray <= raysDrawn; ++ray)
    surface.Polyline(Path(window, wave, (count - 1) * static_cast<std::size_t>(ray) / raysDrawn));
  std::vector<SurfacePoint> front;
  surface.ForeColour = colour;
  surface.DrawWidth = 2;
  for (std::size_t k = 0; k < count; ++k) {
    if (std::hypot(wave.waveX[k], wave.waveY[k]) <= farthest) {
      front.push_back(window.At({wave.waveX[k], wave.waveY[k]}));
      continue;
    }
    if (front.size() > 1) surface.Polyline(front);
    front.clear();
  }
  if (front.size() > 1) surface.Polyline(front);
  surface.DrawWidth = 1;
}

}  // namespace

void PaintHuygens(DrawingSurface& surface, const std::vector<HuygensWave>& waves) {
  if (waves.empty()) return;
  const Colour before = surface.ForeColour;
  const View window(surface, waves);
  surface.FillStyle = 1;
  std::size_t colour = 0;
  for (const auto& wave : waves) DrawWave(surface, window, wave, fronts[colour++ % fronts.size()]);
  const SurfacePoint centre = window.At({0, 0});
  surface.Circle(centre.x, centre.y, window.Length(1), colours::Black);
  surface.ForeColour = before;
}

}  // namespace lumivex
