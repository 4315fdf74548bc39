#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "colour/rounded_curve.h"
#include "runs/task_pool.h"
#include "sky/bitmap.h"
#include "sky/light_table.h"
#include "sky/sight.h"

namespace lumivex {

/// Light of which polarisation is there. The values are those of the record's PolarisationCode.
enum class SkyPolarisation { Unpolarised = 0, Perpendicular = 1, Parallel = 2 };
/// Through what it is looked at: nothing, or a polariser that passes vertical or horizontal light. The values are those
/// of the record's ViewCode.
enum class SkyView { Unpolarised = 0, PolarisedV = 1, PolarisedH = 2 };
/// How the light and the photograph come together.
enum class Compositing {
  Replace,  ///< light on the background colour takes the place of the photograph
  Over      ///< light is added to that of the photograph
};

/// Quarters of a picture about its middle.
struct Quadrants {
  bool NE = false, NW = false, SE = false, SW = false;
  bool Any() const { return NE || NW || SE || SW; }
  bool operator==(const Quadrants&) const = default;
};

/// Everything that makes a painted sky.
struct SkyPainting {
  Sight sight;
  std::shared_ptr<const LightTable> light;
  SkyPolarisation polarisation = SkyPolarisation::Unpolarised;
  SkyView view = SkyView::Unpolarised;
  bool saturated = false;  ///< the greatest channel of each pixel is full
  SaturationRule saturation = SaturationRule::Photo;
  GammaRule gamma = GammaRule::IndividualRGB;
  Compositing compositing = Compositing::Replace;
  std::array<int, 3> background{};  ///< colour of a sky without that light: red, green, blue, 0 to 255
  double strength = 1;              ///< factor of the light that is added to a photograph
  Quadrants quadrants{true, true, true, true};
};

/// Share of the perpendicular component that a polariser for vertical light passes, of light that comes from direction
/// u and was scattered about the direction of the source; either sign of it. One half where the two are one.
double PerpendicularShare(const Direction& source, const Direction& u);

/// Paints rows of a picture; may be asked by several threads at once.
///
/// Of each pixel: its direction, the scattering angle, the light of the two polarisations between two rows of the
/// table, what the polariser passes of them; channels are non-negative. Replacing, the colour is that of a cell of a
/// bar (SaturationRule, GammaRule), and lies over the background like two slides on one screen: shown (255 -
/// background)/255 + background. Over the photograph, the light is added to the photograph's own, which the inverse of
/// the transfer curve gives, and the sum goes through SaturationRule and the curve: no light changes no pixel.
class SkyPainter {
 public:
  explicit SkyPainter(const SkyPainting& painting);

  /// One row of a raster that shows a window of the picture.
  /// @param ground  the photograph on the same raster, for light that is added to it.
  /// @param out     the row as it was; what lies in no chosen quadrant, or beside the picture, stays. May be `ground`.
  void PaintRow(const PictureWindow& window, int row, int columns, const std::uint32_t* ground,
                std::uint32_t* out) const;

 private:
  struct Block;
  void PaintPart(const PictureWindow& window, double y, int first, int last, const std::uint32_t* ground,
                 std::uint32_t* out) const;
  template <Mapping mapping>
  void Aim(const PictureWindow& window, double y, int first, Block& block) const;
  ColourTriple LightAt(double angle, double share, double clock) const;
  double ClockOf(const Direction& u) const;
  std::uint32_t Replaced(ColourTriple light) const;
  std::uint32_t Added(ColourTriple light, std::uint32_t ground) const;

  SkyPainting painting_;
  AngleOfCosine angles_;
  double firstAngle_, lastAngle_;
  Direction up_, across_;             ///< across the light: to the top of a bow, and to its side
  std::vector<RoundedCurve> curves_;  ///< a channel each, of light on the background; of the photograph one alone
  std::array<double, 256> linear_;    ///< light of a channel of the photograph
  std::uint32_t backgroundPixel_;
};

/// Paints a raster that shows a window of the picture, rows as tasks of the pool.
/// @param window   {} for the whole picture, a cell a pixel.
/// @param ground   the photograph on that raster.
/// @param picture  is painted; of the size of the ground. Rows that a Stop leaves out stay as they are.
/// @return the rows painted, from the top.
int PaintSky(const SkyPainter& painter, const PictureWindow& window, const Bitmap& ground, Bitmap& picture,
             TaskPool& pool);

}  // namespace lumivex
