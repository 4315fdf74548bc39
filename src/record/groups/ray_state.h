#pragma once

#include <string>
#include <type_traits>
#include <vector>

#include "solvers/angles/amplitude_table.h"
#include "solvers/rays/huygens_wave.h"

namespace lumivex {

/// Which numbers p of internal reflections are selected, and what the ray and diffraction solvers leave behind.
struct RayState {
  std::vector<int> RayEnabled;  ///< 1 where the term p is selected, by p from 0 to RayMax
  int RayMax = 0;               ///< highest p of RayEnabled
  int RayCount = 0;             ///< number of selected terms
  std::string KeptRays = "2";   ///< text of cboRays before its last change
  int RayIndex = 0;             ///< running p
  int Pmin = 0;                 ///< lowest p, highest p and step of "Multiple" by steps
  int Pmax = 0;
  int Pstep = 1;
  int PlaneWaveFlag = 0;     ///< 0 for a plane wave, 1 for a beam
  int PartialWaveFirst = 0;  ///< partial waves that the Debye series summed
  int PartialWaveLast = 0;
  double RainbowImpact = 1;     ///< sin i of the rainbow of the last p; 1 without one
  double RainbowAngle = 0;      ///< its scattering angle, 0..pi (radians)
  double RayAngleDegrees = 0;   ///< last angle at which rays were added
  double BeamCentreOffset = 0;  ///< centre of the beam in radii of the sphere
  double BeamWaist = 2;         ///< its waist in radii of the sphere
  double BeamTilt = 0;          ///< its tilt (radians)
  float QminValue = 1;          ///< the two amplitudes of the glory of a ring
  float QmaxValue = 1;
  std::vector<double> ApertureCentre;   ///< strips of the aperture, by strip from 0: centres across a width of 1
  std::vector<double> ApertureWeight;   ///< and weights
  std::vector<double> BesselOrders;     ///< J_0 to J_4 at the last angle of the glory of a ring
  std::vector<double> BesselDiffTable;  ///< numbers read from "BesselDiff.txt", from 0
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, RayState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("RayEnabled", g.RayEnabled);
  visit("RayMax", g.RayMax);
  visit("RayCount", g.RayCount);
  visit("KeptRays", g.KeptRays);
  visit("RayIndex", g.RayIndex);
  visit("Pmin", g.Pmin);
  visit("Pmax", g.Pmax);
  visit("Pstep", g.Pstep);
  visit("PlaneWaveFlag", g.PlaneWaveFlag);
  visit("PartialWaveFirst", g.PartialWaveFirst);
  visit("PartialWaveLast", g.PartialWaveLast);
  visit("RainbowImpact", g.RainbowImpact);
  visit("RainbowAngle", g.RainbowAngle);
  visit("RayAngleDegrees", g.RayAngleDegrees);
  visit("BeamCentreOffset", g.BeamCentreOffset);
  visit("BeamWaist", g.BeamWaist);
  visit("BeamTilt", g.BeamTilt);
  visit("QminValue", g.QminValue);
  visit("QmaxValue", g.QmaxValue);
  visit("ApertureCentre", g.ApertureCentre);
  visit("ApertureWeight", g.ApertureWeight);
  visit("BesselOrders", g.BesselOrders);
  visit("BesselDiffTable", g.BesselDiffTable);
}

}  // namespace lumivex
