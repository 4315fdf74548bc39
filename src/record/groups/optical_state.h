#pragma once

#include <string>
#include <type_traits>

namespace lumivex {

/// The light, the sphere and the medium of the present calculation, and what came out.
struct OpticalState {
  double Lambda = 0.65;         ///< wavelength in vacuum (um)
  double Radius = 10;           ///< radius of the sphere (um)
  double SizeParameter = 0;     ///< x = 2 pi Radius n_medium / Lambda
  double RefRelReal = 1;        ///< real part of the index of the sphere over the real index of the medium
  double RefRelImag = 0;        ///< its imaginary part, positive for absorption
  double SphereRIReal = 1;      ///< index of the sphere in the present run, n
  double SphereRIImag = 0;      ///< k
  double MediumRIReal = 1;      ///< index of the medium in the present run; an entry of 0 counts as 1
  double MediumRIImag = 0;      ///< always 0
  double WaveNumber = 0;        ///< 2 pi n_medium / (Lambda 1e-6) (1/m)
  double IntensityNorm = 1;     ///< what intensities are divided by
  std::string SphereName;       ///< as titles print it
  std::string MediumName;       ///< as titles print it, after "in"
  double Qext = 0;              ///< extinction efficiency of the last solver call
  double Qsca = 0;              ///< scattering efficiency
  double Qback = 0;             ///< |S1(180)|^2 / (pi x^2)
  double Gsca = 0;              ///< asymmetry parameter, mean cosine of the scattering angle
  std::string KeptMediumLabel;  ///< label of the medium before a map varied its index
  std::string KeptSphereLabel;  ///< label and name of the sphere before a graph varied its index
  std::string KeptSphereName;
  std::string KeptAngle;          ///< text of txtAngle before a map used the field for a radius
  std::string KeptRadius;         ///< text of txtRadius before a Lee diagram used the field for an index
  double IncidentDensity = 100;   ///< of the light (W/m2)
  double Distance = 1;            ///< of the observer (m)
  double ScatteredPower = 0;      ///< of a graph in Watts: into all directions (W)
  double BackscatteredPower = 0;  ///< into 90 to 180 degrees (W)
  std::string RunTitle;           ///< title line of the last run
  std::string RunLabel;           ///< its method's label
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, OpticalState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("Lambda", g.Lambda);
  visit("Radius", g.Radius);
  visit("SizeParameter", g.SizeParameter);
  visit("RefRelReal", g.RefRelReal);
  visit("RefRelImag", g.RefRelImag);
  visit("SphereRIReal", g.SphereRIReal);
  visit("SphereRIImag", g.SphereRIImag);
  visit("MediumRIReal", g.MediumRIReal);
  visit("MediumRIImag", g.MediumRIImag);
  visit("WaveNumber", g.WaveNumber);
  visit("IntensityNorm", g.IntensityNorm);
  visit("SphereName", g.SphereName);
  visit("MediumName", g.MediumName);
  visit("Qext", g.Qext);
  visit("Qsca", g.Qsca);
  visit("Qback", g.Qback);
  visit("Gsca", g.Gsca);
  visit("KeptMediumLabel", g.KeptMediumLabel);
  visit("KeptSphereLabel", g.KeptSphereLabel);
  visit("KeptSphereName", g.KeptSphereName);
  visit("KeptAngle", g.KeptAngle);
  visit("KeptRadius", g.KeptRadius);
  visit("IncidentDensity", g.IncidentDensity);
  visit("Distance", g.Distance);
  visit("ScatteredPower", g.ScatteredPower);
  visit("BackscatteredPower", g.BackscatteredPower);
  visit("RunTitle", g.RunTitle);
  visit("RunLabel", g.RunLabel);
}

}  // namespace lumivex
