#pragma once

#include <optional>
#include <string>

#include "catalogue/method.h"
#include "record/session.h"
#include "session/inputs/methods/rays_check.h"

namespace lumivex {

/// What the label of the method in use tells beyond the method itself. Numbers are texts as their fields show them.
struct DebyeLabelDetails {
  enum class Beam { PlaneWave, Gaussian, TopHat };
  enum class Difference { None, MinusGo, FromMie };
  enum class Profile { None, Linear, Cosine, ModLuneburg, Exponential, Polynomial, Luneburg, ThreeLayer, Sinusoidal };
  enum class Path { ShortAndLong, Short, Long };

  struct BeamNumbers {
    std::string x0, y0, z0, w0, Lmax, Mmax, Mmax1;
    bool lockPolarisation = false, multiple = false, central = false;
  };
  /// Ends of the partial waves summed, over x.
  struct PartialRange {
    std::string first, last;
  };
  /// A coated sphere: version 1 or 2; N, A, B of its Debye series where that is what is summed, N alone of several
  /// ways.
  struct Coating {
    int version = 1;
    std::optional<std::string> N;
    std::string A, B;
  };
  struct RadialProfile {
    Profile kind = Profile::None;
    std::string n1, n2, r1, r2, radius;  ///< of two parts, the radii in um
    std::string B, C, F;
  };

  /// A flattened drop, which rays of it are counted and where: all round, about a clock angle, or along the whole
  /// clock.
  struct Drop {
    enum class Place { AllRound, About, Along };
    std::string shape, rays, elevation, clock;
    Place place = Place::AllRound;
  };

  Method method = Method::Mie;
  Beam beam = Beam::PlaneWave;
  BeamNumbers beamNumbers;
  Difference difference = Difference::None;
  std::string p = "0";                  ///< text of cboRays
  std::optional<RayRange> range;        ///< for "Multiple" by a range of p
  std::string selected;                 ///< for "Multiple" one by one: "0, 3"
  std::optional<PartialRange> partial;  ///< of a Debye term
  Path path = Path::ShortAndLong;
  bool diffraction = false;
  Coating coating;
  RadialProfile profile;
  Drop drop;
  std::string heiligenscheinL, heiligenscheinGamma;
};

/// The label as text, lines parted by '\n'.
std::string DebyeLabelText(const DebyeLabelDetails& details);

/// That of the method in use, as the inputs stand.
std::string MethodLabel(const Session& session);
/// The same with other rays than those of the inputs.
std::string MethodLabel(const Session& session, const RayInputs& rays);

/// Writes lblDebyeRays for the method in use.
void DebyeLabel(Session& session);

}  // namespace lumivex
