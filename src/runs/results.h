#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "axes/table2d.h"
#include "runs/request.h"
#include "solvers/angles/amplitude_table.h"
#include "solvers/beams/beam_shape.h"
#include "solvers/rays/huygens_wave.h"
#include "solvers/series/angular_sum.h"
#include "solvers/series/mie_efficiencies.h"
#include "solvers/series/partial_waves.h"

namespace lumivex {

/// How a run ended.
enum class Outcome {
  Done,
  Stopped,   ///< what was finished is there: whole rows, wavelengths, points or columns
  Refused,   ///< nothing is there but the reason
  Overflow,  ///< the arithmetic failed; nothing is there
};

/// The input that is to blame for a refusal.
enum class InputAtFault { None, StandardDeviation, Distribution, Size };

/// What is told of a refused run.
struct Refusal {
  std::string title, text;
  InputAtFault at = InputAtFault::None;
};

/// What focused beams were calculated with.
struct BeamNumbers {
  double s = 0;       ///< confinement 1/(k w0)
  double length = 0;  ///< w0/s, over which the beam spreads (um)
  ComplexD Q;         ///< see BeamSpread
  BeamLimits limits;
  int Jmax = 0;  ///< highest j that a sum came to
  // Seconds for T(q), for the shape coefficients, for those of the sphere, and for the sums over angles.
  double functions = 0, shape = 0, waves = 0, angles = 0;
};

/// What the rays of a drop that is no sphere were counted with.
struct DropNumbers {
  double axisRatio = 1;                ///< height over width
  double raysAsked = 0, raysDone = 0;  ///< after a Stop fewer were traced
  /// Power into all directions in units of pi a^2, of unit intensity in each polarisation.
  double perpendicular = 0, parallel = 0;
};

/// What a solver tells of the last sphere that it calculated.
struct LastSphere {
  double lambda = 0;  ///< um in vacuo
  double radius = 0;  ///< um
  double sizeParameter = 0;
  double waveNumber = 0;  ///< in the medium (1/m)
  OpticalIndices indices;
  IndexValue core{0, 0};  ///< of a coated sphere, whose coating `indices` are; otherwise 0
  double relativeRe = 1, relativeIm = 0;
  Efficiencies efficiencies;  ///< of the sphere, or means over the cloud
  int NSTOP = 0, NMX = 0;
  int NANG = 2;         ///< rows from 0 to 90 degrees of its grid
  int selectedRow = 1;  ///< of one angle: the row of the grid nearest to it
  int partialWaveFirst = 0, partialWaveLast = 0;
  int samples = 1;                  ///< of its cloud
  std::optional<BeamNumbers> beam;  ///< of a series
  std::optional<DropNumbers> drop;
  // What rays and closed forms leave.
  double rainbowImpact = 1, rainbowAngle = 0, rayAngle = 0;  ///< sin i, radians, degrees
  std::vector<double> apertureCentre, apertureWeight, besselOrders;
};

/// Amplitudes by row; of a cloud the roots of the mean intensities, without phase.
struct AngleFound {
  AmplitudeTable S1, S2;
  AmplitudeTable S1b, S2b;               ///< the second field of a difference
  std::vector<double> crossRe, crossIm;  ///< of a cloud the means of S1 conj(S2) by row; empty for one sphere
  RowsDone rows;                         ///< rows that hold the whole sum
  PartialWaves waves;                    ///< empty for a cloud
  std::vector<HuygensWave> wavefronts;
};

/// Intensities by wavelength and row: element (i - 1) n + j - low is wavelength i at row j, with n rows from low on.
/// Neither weighed by the light source nor divided by the square of the wave number.
struct SpectrumFound {
  std::vector<double> perpendicular, parallel;  ///< |S1|^2 and |S2|^2, of a cloud their means
  std::vector<double> waveNumber;               ///< 1/m, first index 1
  int done = 0;                                 ///< wavelengths, from the first
  AmplitudeTable S1, S2;                        ///< of the last of them, as in AngleFound
};

/// Unpolarised light of flattened drops over the sky: element sector * rows.Count + row - rows.low. Of one wavelength
/// all three channels are |S|^2, of a spectrum they are the sums over its wavelengths.
struct DropSky {
  int sectors = 0;  ///< of equal width from the top of the bow to its foot; the other side mirrors them; 0 without
  RowWindow rows;
  std::vector<float> red, green, blue;

  int RowCount() const { return rows.Empty() ? 0 : rows.high - rows.low + 1; }
  std::size_t Size() const { return static_cast<std::size_t>(sectors) * static_cast<std::size_t>(RowCount()); }
};

/// Points of an axis, first index 1; what was not calculated is 0 and lies beyond `done`.
struct AxisFound {
  std::vector<double> x;  ///< in the unit of the axis
  AmplitudeTable S1, S2;  ///< of graphs at one angle a row a point; of a cloud as in AngleFound
  std::vector<double> crossRe, crossIm;
  std::vector<double> waveNumber;  ///< 1/m
  std::vector<double> radius, size;
  std::vector<double> Qext, Qsca, Qback, g;
  std::vector<double> Cext, Csca;           ///< um2; of a cloud their means
  std::vector<double> powerPerp, powerPar;  ///< W
  std::vector<double> Qabs;                 ///< of an answer to a pulse, where it is no difference; otherwise empty
  /// Scattering angles of the bows p = 2, 3, 4 (degrees); not a number where there is none. Empty for other graphs.
  std::array<std::vector<double>, 3> bows;
  int done = 0;  ///< points, from the first
};

/// Intensities of the running sums by number of terms, index 0 unused.
struct ConvergenceFound {
  std::vector<double> perpendicular, parallel, unpolarised;
  AmplitudeTable S1, S2;
  PartialWaves waves;
  int first = 1;  ///< what element 1 is: 0 of sums over |M|
  /// Of the double series of a beam, for each polarisation: moduli of what the parts with pi and with tau add, and the
  /// modulus of the sum so far over that of the whole.
  struct Terms {
    std::vector<double> ofPi, ofTau, ratio;
  };
  Terms perpendicularTerms = {}, parallelTerms = {};
};

/// Row 1 is the Mie amplitude of a point, row j what is left of it after the first j - 1 terms.
struct DebyeAnalysisFound {
  AmplitudeTable dots1, dots2;
  AmplitudeTable S1b, S2b;  ///< the Mie amplitudes
  int done = 0;             ///< rows
};

/// Cross-sections (um2), a row a radius and a column an index, first index 0; not a number where a Stop came before.
struct TwoAngleFound {
  Table2D first, second;
  PartialWaves waves;  ///< of the last sphere
  int done = 0;        ///< spheres
};

/// Cells of one panel of a map, in single precision, since it is colours that they become: element column * rows + row,
/// first indices 0, the lowest row first. Cells have either a value or, where a spectrum was summed up, three channels.
struct MapPanel {
  std::vector<float> value;
  std::vector<float> red, green, blue;
};

/// What a map holds, column by column; cells of columns that were not done are 0. A cell takes 8 bytes of one
/// wavelength, 28 of a spectrum, and 12 where efficiencies are mapped: 200 MB of the largest spectrum.
struct MapFound {
  int rows = 0, columns = 0;  ///< of an answer to a pulse that was stopped the rows that were done
  int firstRow = 1;           ///< of a map over angle the row of the grid that the lowest row of the cells is
  /// Of intensities perpendicular and parallel (the unpolarised one is their mean); otherwise Qext, Qsca and Qabs.
  std::vector<MapPanel> panels;
  /// Of a spectrum: the wavelength (from 1) that gives most to a cell, of each panel; 0 in the dark.
  std::vector<std::vector<std::uint16_t>> strongest;
  int done = 0;  ///< columns, from the first
  /// Whether cells have channels in place of a value.
  bool OfSpectrum() const { return !panels.empty() && !panels.front().red.empty(); }
  std::size_t At(int column, int row) const {
    return static_cast<std::size_t>(column) * static_cast<std::size_t>(rows) + static_cast<std::size_t>(row);
  }
};

/// Many spheres at each point of an axis, first index 1.
struct VolumeFound {
  std::vector<double> x;                    ///< in the unit of the axis
  AmplitudeTable S1, S2;                    ///< sums of the fields, a row a point
  std::vector<double> alonePerp, alonePar;  ///< sums of |S1|^2 and |S2|^2 of the spheres, each for itself
};

using FamilyFound = std::variant<AngleFound, SpectrumFound, AxisFound, ConvergenceFound, DebyeAnalysisFound,
                                 TwoAngleFound, MapFound, VolumeFound>;

/// What a run found, with what it was asked: whoever holds results knows what they are results of. Where they are held
/// by a shared pointer, a page may share their cells.
struct Results : std::enable_shared_from_this<Results> {
  Results() = default;

  RunRequest asked;
  FamilyFound found;  ///< the alternative of asked.run
  LastSphere last;
  DropSky sky;
  double seconds = 0;  ///< that the run took
  /// That its session has given it, from 1; 0 outside one, and unasked of what nobody has asked for yet.
  int number = 0;
  static constexpr int unasked = -1;

  const Graph& AskedGraph() const { return asked.graph; }
  template <class Family>
  const Family* Find() const {
    return std::get_if<Family>(&found);
  }
};

/// A run that has ended.
struct RunEnd {
  Outcome outcome = Outcome::Refused;
  Refusal refusal;          ///< of a refused run, and of an overflow
  bool hasResults = false;  ///< a run that is stopped before anything was whole has none
  Results results;
};

}  // namespace lumivex
