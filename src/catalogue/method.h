#pragma once

#include <span>

namespace lumivex {

/// The calculation methods. The values are the codes by which files and scripts name them.
enum class Method : int {
  None = 0,  ///< no method of that name
  Mie = 1,
  Debye = 2,
  Rayleigh = 3,
  Diffraction = 4,
  Airy = 5,
  Descartes = 6,  ///< rays, intensities added
  Young = 7,      ///< rays, amplitudes added
  YoungMod = 8,   ///< rays with the quarter waves of the caustics
  Huygens = 9,
  Aperture = 10,
  SurfaceWave = 11,
  VanDeHulst = 12,
  CoatedSphere = 13,
  YoungAiry = 14,
  Burgeroid = 15,
  Heiligenschein = 16,
  InhomogeneousSphere = 17,
};

/// What of the angle's input a method counts in place of degrees.
enum class Counted { Nothing, Rays, Strips };

/// What a method can do and needs.
struct MethodTraits {
  Method method = Method::None;
  bool series = false;            ///< sums partial waves: has terms, end intensities and readings, and can take long
  bool showsP = false;            ///< the number p of internal reflections is on offer
  bool needsP = false;            ///< and must be a number
  bool efficiencies = false;      ///< has Qext and Qsca of its own, so that they can be drawn
  bool realIndexOnly = false;     ///< knows no absorption
  bool layered = false;           ///< has indices of its own for its layers
  bool beams = false;             ///< can be lit by a beam
  bool angleOnly = false;         ///< is calculated against scattering angle only
  bool takesDiffraction = false;  ///< diffraction can be added
  bool hasHidden = false;         ///< offers the diagnostics
  bool divides = false;           ///< its amplitudes can be divided by x
  bool leastSize = false;         ///< spheres below a size are refused
  bool takesLong = false;         ///< without a series; its work is told before it begins
  Counted counts = Counted::Nothing;
};

/// One row a method, in the order of their codes.
std::span<const MethodTraits> MethodTraitsTable();

/// The row of a method; that of None knows nothing.
const MethodTraits& TraitsOf(Method method);

}  // namespace lumivex
