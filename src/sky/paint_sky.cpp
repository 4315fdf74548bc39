#include "sky/paint_sky.h"

#include <algorithm>
#include <cmath>

namespace lumivex {

namespace {

/// Rows of a task: a few milliseconds of a large picture.
constexpr int rowsPerTask = 16;

/// Below it, a squared sine, no plane of scattering can be told.
constexpr double noPlane = 1e-24;

/// The channel, 0 to 255, that the transfer curve takes to `shown`.
double LinearOf(double shown) {
  constexpr double joint = 4.59, linearSlope = 4.5;
  if (shown <= linearSlope * joint) return shown / linearSlope;
  return 255 * std::pow((shown / 255 + 0.099) / 1.099, 1 / 0.45);
}

double ShareOf(const Direction& s, const Direction& u, double cosine) {
  const double across = s.forward * u.right - s.right * u.forward;
  const double squares = (1 - cosine * cosine) * (1 - u.up * u.up);
  return squares > noPlane ? std::clamp(across * across / squares, 0.0, 1.0) : 0.5;
}

/// The first column of a raster whose picture point is not left of x.
int ColumnAt(const PictureWindow& window, double x, int columns) {
  const double column = std::ceil((x + 0.5 - window.left) / window.scale - 0.5);
  return static_cast<int>(std::clamp(column, 0.0, static_cast<double>(columns)));
}

double PointAt(double begin, double scale, int cell) {
  return begin + scale * (cell + 0.5) - 0.5;
}

}  // namespace

double PerpendicularShare(const Direction& source, const Direction& u) {
  return ShareOf(source, u, Dot(source, u));
}

/// Pixels that are worked at together.
struct SkyPainter::Block {
  static constexpr int size = 256;
  int count = 0;
  std::array<double, size> cosine{}, share{}, clock{};
};

SkyPainter::SkyPainter(const SkyPainting& painting)
    : painting_(painting),
      angles_(painting.sight.source),
      firstAngle_(painting.light->first),
      lastAngle_(painting.light->Last()) {
  const Direction light =
      painting.sight.source.antisolar ? painting.sight.source.direction : Opposite(painting.sight.source.direction);
  const Direction zenith = InCamera({0, 1, 0}, painting.sight.pose);
  const double along = Dot(zenith, light);
  up_ = Normalised(
      {zenith.right - along * light.right, zenith.up - along * light.up, zenith.forward - along * light.forward});
  across_ = Cross(light, up_);
  // A preview has a new painter for every picture, and each curve takes a millisecond.
  static const RoundedCurve ofPhotographs;
  if (painting.compositing == Compositing::Over) {
    curves_ = {ofPhotographs};
  } else {
    const bool bent = painting.gamma == GammaRule::IndividualRGB;
    for (const double back : painting.background) curves_.emplace_back(bent, (255 - back) / 255, back);
  }
  for (std::size_t i = 0; i < linear_.size(); ++i) linear_[i] = LinearOf(static_cast<double>(i));
  const auto channel = [&](std::size_t c) { return static_cast<std::uint32_t>(painting.background[c]); };
  backgroundPixel_ = OpaquePixel(channel(0), channel(1), channel(2));
}

template <Mapping mapping>
void SkyPainter::Aim(const PictureWindow& window, double y, int first, Block& block) const {
  const Camera& camera = painting_.sight.camera;
  const Direction s = painting_.sight.source.direction;
  const double perPixel = 1 / camera.focal;
  const double dy = (0.5 * camera.height - y) * perPixel;
  const double dx0 = (PointAt(window.left, window.scale, first) - 0.5 * camera.width) * perPixel;
  const double step = window.scale * perPixel;
  const bool polarised = painting_.view != SkyView::Unpolarised, clocked = !painting_.light->sectors.empty();
  for (int i = 0; i < block.count; ++i) {
    const double dx = dx0 + i * step;
    const LensAngle angle = LensAngleOf(mapping, dx * dx + dy * dy);
    const Direction u{dx * angle.sineOverR, dy * angle.sineOverR, angle.cosine};
    block.cosine[static_cast<std::size_t>(i)] = std::clamp(Dot(s, u), -1.0, 1.0);
    if (clocked) block.clock[static_cast<std::size_t>(i)] = ClockOf(u);
    if (polarised) block.share[static_cast<std::size_t>(i)] = ShareOf(s, u, block.cosine[static_cast<std::size_t>(i)]);
  }
}

double SkyPainter::ClockOf(const Direction& u) const {
  return std::atan2(Dot(u, across_), Dot(u, up_));
}

ColourTriple SkyPainter::LightAt(double angle, double share, double clock) const {
  double perp = 0.5, par = 0.5;
  if (painting_.view != SkyView::Unpolarised) {
    perp = painting_.view == SkyView::PolarisedV ? share : 1 - share;
    par = 1 - perp;
    if (painting_.polarisation == SkyPolarisation::Perpendicular) par = 0;
    if (painting_.polarisation == SkyPolarisation::Parallel) perp = 0;
  } else if (painting_.polarisation != SkyPolarisation::Unpolarised) {
    perp = painting_.polarisation == SkyPolarisation::Perpendicular ? 1 : 0;
    par = 1 - perp;
  }
  ColourTriple light = LightOfSectors(*painting_.light, clock, angle, perp, par);
  if (painting_.saturated) {
    const double most = std::max({light.r, light.g, light.b});
    const double factor = most > 0 ? 255 / most : 0;
    light = {light.r * factor, light.g * factor, light.b * factor};
  }
  return light;
}

std::uint32_t SkyPainter::Replaced(ColourTriple light) const {
  if (light.r > 255 || light.g > 255 || light.b > 255) light = Saturation(light, painting_.saturation);
  if (painting_.gamma == GammaRule::GroupRGB) light = GammaCorrect(light, painting_.gamma);
  return OpaquePixel(curves_[0](light.r), curves_[1](light.g), curves_[2](light.b));
}

std::uint32_t SkyPainter::Added(ColourTriple light, std::uint32_t ground) const {
  const double f = painting_.strength;
  ColourTriple sum{linear_[ChannelOf(ground, 0)] + f * light.r, linear_[ChannelOf(ground, 1)] + f * light.g,
                   linear_[ChannelOf(ground, 2)] + f * light.b};
  if (sum.r > 255 || sum.g > 255 || sum.b > 255) sum = Saturation(sum, painting_.saturation);
  const RoundedCurve& curve = curves_.front();
  return OpaquePixel(curve(sum.r), curve(sum.g), curve(sum.b));
}

void SkyPainter::PaintPart(const PictureWindow& window, double y, int first, int last, const std::uint32_t* ground,
                           std::uint32_t* out) const {
  Block block;
  const bool replaces = painting_.compositing == Compositing::Replace;
  for (int begin = first; begin < last; begin += Block::size) {
    block.count = std::min(Block::size, last - begin);
    switch (painting_.sight.camera.mapping) {
      case Mapping::Rectilinear:
        Aim<Mapping::Rectilinear>(window, y, begin, block);
        break;
      case Mapping::Equidistant:
        Aim<Mapping::Equidistant>(window, y, begin, block);
        break;
      case Mapping::Stereographic:
        Aim<Mapping::Stereographic>(window, y, begin, block);
        break;
      case Mapping::EqualArea:
        Aim<Mapping::EqualArea>(window, y, begin, block);
        break;
      case Mapping::Orthographic:
        Aim<Mapping::Orthographic>(window, y, begin, block);
        break;
    }
    for (int i = 0; i < block.count; ++i) {
      const auto at = static_cast<std::size_t>(i);
      const double angle = angles_(block.cosine[at]);
      const bool lit = angle >= firstAngle_ && angle <= lastAngle_;
      if (!lit) {
        out[begin + i] = replaces ? backgroundPixel_ : ground[begin + i];
        continue;
      }
      const ColourTriple light = LightAt(angle, block.share[at], block.clock[at]);
      out[begin + i] = replaces ? Replaced(light) : Added(light, ground[begin + i]);
    }
  }
}

void SkyPainter::PaintRow(const PictureWindow& window, int row, int columns, const std::uint32_t* ground,
                          std::uint32_t* out) const {
  const Camera& camera = painting_.sight.camera;
  const double y = PointAt(window.top, window.scale, row);
  if (!(y > -0.5 && y < camera.height - 0.5)) return;
  const bool north = y < 0.5 * camera.height;
  const Quadrants& q = painting_.quadrants;
  const int begin = ColumnAt(window, -0.5, columns), end = ColumnAt(window, camera.width - 0.5, columns);
  const int middle = std::clamp(ColumnAt(window, 0.5 * camera.width, columns), begin, end);
  if (north ? q.NW : q.SW) PaintPart(window, y, begin, middle, ground, out);
  if (north ? q.NE : q.SE) PaintPart(window, y, middle, end, ground, out);
}

int PaintSky(const SkyPainter& painter, const PictureWindow& window, const Bitmap& ground, Bitmap& picture,
             TaskPool& pool) {
  TaskList tasks;
  tasks.count = static_cast<std::size_t>((picture.height + rowsPerTask - 1) / rowsPerTask);
  const auto firstOf = [](std::size_t task) { return static_cast<int>(task) * rowsPerTask; };
  tasks.work = [&](std::size_t task, std::size_t, RunMonitor&) {
    const int last = std::min(firstOf(task) + rowsPerTask, picture.height);
    for (int y = firstOf(task); y < last; ++y)
      painter.PaintRow(window, y, picture.width, ground.Row(y), picture.Row(y));
    return true;
  };
  tasks.take = [](std::size_t, std::size_t) { return true; };
  return std::min(firstOf(pool.Do(tasks)), picture.height);
}

}  // namespace lumivex
