#pragma once

#include <cstdint>
#include <numbers>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "catalogue/graph.h"
#include "catalogue/method.h"
#include "materials/index/material.h"
#include "particles/size_distribution.h"
#include "solvers/angles/angle_grid.h"
#include "solvers/beams/beam_shape.h"
#include "solvers/drops/drop_shape.h"
#include "solvers/layers/coated_paths.h"
#include "solvers/layers/index_profile.h"
#include "solvers/patterns/simple_scattering.h"
#include "solvers/waves/surface_wave.h"
#include "timedomain/pulse.h"

namespace lumivex {

/// What of the Debye series is drawn: itself, or what it leaves of another field.
enum class Difference { None, MieLessDebye, RaysLessDebye, DebyeLessRays };

/// The partial waves that the Debye terms are summed over, as ratios of x.
struct PartialWaveRange {
  double first = 0.2, last = 0.4;
  bool operator==(const PartialWaveRange&) const = default;
};

/// How a sphere whose index goes with the radius is taken apart into uniform layers.
struct ProfileLayers {
  IndexProfile profile;
  int layers = 128;
  bool byTangents = false;  ///< see LayeredSphereByTangents
  bool operator==(const ProfileLayers&) const = default;
};

/// The light that a sphere stands in: a plane wave, or beams along the same axis that are polarised along x. Lengths
/// (um) from the centre of the sphere.
struct Illumination {
  enum class Kind { PlaneWave, Gaussian, TopHat };
  Kind kind = Kind::PlaneWave;
  double x0 = 0, y0 = 0, z0 = 0;  ///< of the focus
  double w0 = 20;                 ///< half-width there
  /// Azimuth of the scattering plane to the polarisation (radians).
  double phi = std::numbers::pi / 2;
  /// S2 is that of the very beam of S1; otherwise of one that is polarised along y.
  bool oneBeam = false;
  bool pair = false;                 ///< a second beam at (-x0, -y0, z0)
  bool central = false;              ///< and one at (0, 0, z0)
  std::optional<BeamLimits> limits;  ///< in place of those that follow from beam and sphere; 0 where these hold
  BeamSumRule rule;

  bool Plane() const { return kind == Kind::PlaneWave; }
  bool operator==(const Illumination&) const = default;
};

/// Which surface waves are added.
struct SurfaceWaveOptions {
  SurfacePath path = SurfacePath::Both;
  int firstPole = 1, lastPole = 10;
  double amplitude = 1;  ///< factor on S1 and S2
  bool operator==(const SurfaceWaveOptions&) const = default;
};

/// Rays of a drop that is no sphere. The radius is that of the sphere of equal volume.
struct DropOptions {
  DropForm form = DropForm::Spheroid;
  std::optional<double> axisRatio;  ///< height over width of a spheroid; nothing for that of its size
  double elevation = 0;             ///< of the sun (radians)
  double clock = 0;                 ///< which part of the bow is counted (radians), 0 at its top
  double clockHalfWidth = 0;        ///< radians; 0 for all round
  double rays = 4e6;
  bool sky = false;  ///< a table by angle and clock angle is made as well
  bool operator==(const DropOptions&) const = default;
};

/// A sphere before a white surface.
struct DewOptions {
  double distance = 2;  ///< of the surface from the centre (radii)
  double slope = 0;     ///< of its normal to the sun (radians)
  bool operator==(const DewOptions&) const = default;
};

/// How one sphere is calculated, whatever its size.
struct MethodOptions {
  Method method = Method::Mie;
  std::vector<int> rays;        ///< rays[p] is not 0 for the numbers p of internal reflections that are wanted
  bool addDiffraction = false;  ///< to rays
  Difference difference = Difference::None;
  std::optional<PartialWaveRange> partialWaves;
  bool byRatio = false;       ///< Debye coefficients by continued fractions
  bool divideBySize = false;  ///< amplitudes of the Mie series, or of a coated sphere, are divided by x
  bool classicStart = false;  ///< see ComputeMieTruncation
  DiffractionForm diffraction = DiffractionForm::Disc;
  bool forwardEfficiency = false;  ///< Rayleigh's Qext from the amplitude straight forward
  int counted = 90;                ///< rays of a wavefront, strips of an aperture
  float Qmin = 1, Qmax = 1;        ///< amplitudes of the glory of a ring
  Illumination beam;
  std::optional<std::vector<WeightedPath>> paths;      ///< of a coated sphere: its Debye terms alone that are wanted
  WaveRecursion recursion = WaveRecursion::Automatic;  ///< of those
  ProfileLayers layers;
  SurfaceWaveOptions surface;
  DropOptions drop;
  DewOptions dew;

  /// Of p = 0 alone.
  bool OnlyReflected() const { return rays.size() == 1 && rays[0] != 0; }
  bool operator==(const MethodOptions&) const = default;
};

/// What of a coated sphere stays as it is while its size varies.
enum class CoatedSizes {
  FixedCore,     ///< the coating grows about it
  FixedRatio,    ///< of both radii
  FixedCoating,  ///< a core of another size has a coating of the same depth
};

/// The core of a coated sphere.
struct SphereCore {
  double radius = 7.5;  ///< um, less than that of the sphere
  Material material = FixedIndex{1.5, 0};
  CoatedSizes sizes = CoatedSizes::FixedCore;
  bool operator==(const SphereCore&) const = default;
};

/// The sphere and the medium about it. Of a coated sphere `sphere` is the coating; of one whose index is a profile it
/// is the outermost layer.
struct Particle {
  double radius = 10;               ///< um
  std::optional<double> sizeTyped;  ///< the size parameter, where that was given instead of a radius
  Material sphere = FixedIndex{1.33, 0};
  Material medium = Vacuum{};
  std::optional<SphereCore> core = std::nullopt;
  bool operator==(const Particle&) const = default;
};

/// Wavelengths with their weights and colours; first index 1.
struct SpectrumOfLight {
  std::vector<float> wavelength;  ///< um
  std::vector<float> weight;
  std::vector<double> red, green, blue;  ///< 0 to 1
  bool components = false;               ///< red, green and blue alone
  int Count() const { return wavelength.empty() ? 0 : static_cast<int>(wavelength.size()) - 1; }
  /// The one in the middle, which stands for the others where only one can be told.
  int Middle() const { return (Count() + 1) / 2; }
  bool operator==(const SpectrumOfLight&) const = default;
};

struct Light {
  double lambda = 0.65;                     ///< um in vacuo; of a spectrum the one in its middle
  std::optional<SpectrumOfLight> spectrum;  ///< of more than one wavelength
  double incidentDensity = 100;             ///< W/m2
  double distance = 1;                      ///< of the observer (m)
  bool operator==(const Light&) const = default;
};

/// Rows of scattering angle: row j is (j - 1) step degrees.
struct AngleRows {
  double xmin = 0, xmax = 180, step = 0.1;  ///< degrees
  int NANG = 901;                           ///< rows from 0 to 90 degrees
  RowWindow window{1, 1801};                ///< rows that are calculated: those shown and the neighbours averages need
  double firstPoint = 1, lastPoint = 1801;  ///< rows shown
  /// Degrees of row 1 where the two sides differ, in a beam or about the antisolar point of dew: NANG is then half of
  /// the rows. Otherwise rows begin at 0 and are mirrored at 90 degrees.
  std::optional<double> origin = std::nullopt;

  double Origin() const { return origin.value_or(0); }
  AngleGrid Grid() const {
    constexpr double degree = std::numbers::pi / 180;
    return origin ? AngleGrid::From(*origin * degree, step * degree, NANG) : AngleGrid(NANG);
  }
  bool operator==(const AngleRows&) const = default;
};

// The families. One alternative each; what they share stands in RunRequest.

struct AngleRun {
  AngleRows rows;
  bool operator==(const AngleRun&) const = default;
};
/// A spectrum against scattering angle.
struct SpectrumRun {
  AngleRows rows;
  bool operator==(const SpectrumRun&) const = default;
};
/// A short pulse in place of steady light, and where its times are counted from.
struct PulsedLight {
  PulseRequest pulse;
  bool fromCentre = false;  ///< see ResponseClock
  bool correlated = false;  ///< what is found is correlated with the pulse, as by CorrelationOf
  bool operator==(const PulsedLight&) const = default;
};

/// Points along an axis.
struct AxisRun {
  double xmin = 1, xmax = 20,
         step = 0.02;  ///< in the unit of the axis; the number of steps where those are logarithmic
  bool logSteps = false;
  int points = 1;
  double angle = 0;             ///< radians; of graphs at one angle
  bool constantVolume = false;  ///< per volume of the spheres
  struct Range {
    double low = 0, high = 180, step = 0.1;  ///< degrees
    bool operator==(const Range&) const = default;
  } range;  ///< of a scattered power
  /// Of an answer to a pulse: the axis is time (fs), its points are all samples from `xmin` on.
  std::optional<PulsedLight> pulse = std::nullopt;
  bool operator==(const AxisRun&) const = default;
};
struct ConvergenceRun {
  /// What the sums of a beam, which are double, run over; those of a plane wave have one number of terms.
  enum class Over { L, M };
  double angle = 0;  ///< degrees
  Over over = Over::L;
  bool operator==(const ConvergenceRun&) const = default;
};
struct DebyeAnalysisRun {
  double angle = 0;  ///< radians
  int limit = 0;     ///< the highest p
  bool operator==(const DebyeAnalysisRun&) const = default;
};
struct TwoAngleRun {
  double angle1Min = 0, angle1Max = 0, angle2Min = 0, angle2Max = 0;  ///< degrees
  std::vector<double> index;   ///< of the sphere in vacuo, by column, first index 0
  std::vector<double> radius;  ///< um, by row, first index 0
  bool operator==(const TwoAngleRun&) const = default;
};
/// Samples of what a map varies: the first at `low`, the last at `high`.
struct Sweep {
  Swept quantity = Swept::Radius;
  double low = 1, high = 20;  ///< in the unit of the quantity
  int steps = 4;              ///< one less than the samples
  bool geometric = false;     ///< equal ratios in place of equal differences
  bool fromZero = false;      ///< 0 was asked for: `low` stands in its place, and is shown as 0
  double LowShown() const { return fromZero ? 0 : low; }
  int Count() const { return steps + 1; }
  double At(int sample) const;  ///< first index 0
  bool operator==(const Sweep&) const = default;
};
/// Columns of scattering angles: Lee diagrams and maps over angle. A column is a sphere, or a cloud, in the light of
/// the request: of one wavelength, or of a spectrum whose colours are summed up in each cell.
struct AngleMapRun {
  AngleRows rows;
  Sweep columns;
  bool invWavelength = false;  ///< intensities are freed of the square of the wave number before they are summed
  std::optional<PulsedLight> pulse = std::nullopt;  ///< of columns that are times after a pulse
  bool operator==(const AngleMapRun&) const = default;
};
/// Efficiencies, or intensities at one angle, over two quantities.
struct EfficiencyMapRun {
  Sweep columns, rows;
  double angle = 0;  ///< radians
  bool operator==(const EfficiencyMapRun&) const = default;
};
/// Many spheres at random places in a cube, whose fields at one angle are added with their phases.
struct VolumeRun {
  AxisRun axis;            ///< of positions (um), numbers of spheres, times (s) or radii (um)
  int count = 100;         ///< spheres; along an axis of numbers the largest
  double side = 1000;      ///< of the cube (um)
  std::uint64_t seed = 1;  ///< of places, sizes and motion
  bool operator==(const VolumeRun&) const = default;
};
using FamilyRun = std::variant<AngleRun, SpectrumRun, AxisRun, ConvergenceRun, DebyeAnalysisRun, TwoAngleRun,
                               AngleMapRun, EfficiencyMapRun, VolumeRun>;

/// The request in the words of whoever made it: titles, keys, headers and files are written with them; no calculation
/// reads them.
struct RunWords {
  std::string method, graph;  ///< as their lists have them
  std::string methodLabel;    ///< the method with its p, partial waves and differences
  std::string rays;           ///< the p selected: "0, 2"
  std::string sphereName, mediumName;
  std::string core;            ///< of a coated sphere: "Core: r1 = 7.5 um, n1 = 1.5"
  std::string paths;           ///< of a coated sphere: the ways whose Debye terms are added
  std::string sphere, medium;  ///< "Sphere: Water (IAPWS 5C Complex)"
  std::string light;           ///< source of a spectrum
  std::string sizes;           ///< of a cloud: "Log-normal, Std Dev % 5, 20 samples"
  std::string scale;           ///< caption of the axis' inputs
  bool diagnostics = false;    ///< numbers that the calculation went by are told as well
};

/// All that a run is asked.
struct RunRequest {
  Graph graph;
  MethodOptions method;
  Particle particle;
  Light light;
  SizeDistribution sizes;
  FamilyRun run;
  RunWords words;

  bool Cloud() const { return IsCloud(sizes); }
  int Wavelengths() const { return light.spectrum ? light.spectrum->Count() : 1; }
  /// Whether both ask for the same numbers, whatever words stand with them.
  bool AsksSame(const RunRequest& other) const {
    return graph == other.graph && method == other.method && particle == other.particle && light == other.light &&
           sizes == other.sizes && run == other.run;
  }
};

}  // namespace lumivex
