#include "record/catalogue/method_texts.h"

#include <algorithm>
#include <array>

namespace lumivex {

namespace {

using enum Feature;

constexpr std::array methodRows = {
    MethodRow{Method::Mie, "Mie", MieSeries, true, 0},
    MethodRow{Method::Debye, "Debye", DebyeSeries, true, 0},
    MethodRow{Method::Rayleigh, "Rayleigh", SimpleScattering, true, 0},
    MethodRow{Method::Airy, "Airy", AiryTheory, true, 0},
    MethodRow{Method::Diffraction, "Diffraction", SimpleScattering, true, 0},
    MethodRow{Method::Descartes, "Descartes", RayOptics, true, 0},
    MethodRow{Method::Young, "Young", RayOptics, true, 0},
    MethodRow{Method::YoungMod, "Young mod", RayOptics, true, 0},
    MethodRow{Method::YoungAiry, "Young + Airy", RayOptics, true, 0},
    MethodRow{Method::SurfaceWave, "Surface wave", SurfaceWaves, true, 0},
    MethodRow{Method::CoatedSphere, "Coated sphere", Feature::CoatedSphere, true, 0},
    MethodRow{Method::Diffraction, "Diffraction new", SimpleScattering, false, 1},
    MethodRow{Method::Huygens, "Huygens", RayOptics, false, 0},
    MethodRow{Method::Aperture, "Aperture", SimpleScattering, false, 0},
    MethodRow{Method::VanDeHulst, "van de Hulst", SimpleScattering, false, 0},
    MethodRow{Method::Burgeroid, "Burgeroid", NonSphericalDrops, false, 0},
    MethodRow{Method::Heiligenschein, "Heiligenschein", Feature::Heiligenschein, false, 0},
    MethodRow{Method::InhomogeneousSphere, "Inhomogeneous sphere", Feature::InhomogeneousSphere, false, 0},
};

}  // namespace

std::span<const MethodRow> MethodTable() {
  return methodRows;
}

const MethodRow* FindMethod(std::string_view text) {
  const auto row =
      std::ranges::find_if(methodRows, [text](const MethodRow& r) { return r.text == text && IsAvailable(r.feature); });
  return row == methodRows.end() ? nullptr : &*row;
}

std::string_view TextOfMethod(Method method, int diffractionVariant) {
  const int variant = method == Method::Diffraction ? diffractionVariant : 0;
  for (const auto& row : methodRows)
    if (row.method == method && row.diffractionVariant == variant) return row.text;
  return {};
}

std::vector<std::string> OfferedMethods() {
  std::vector<std::string> texts;
  for (const auto& row : methodRows)
    if (row.inStartList && IsAvailable(row.feature)) texts.emplace_back(row.text);
  return texts;
}

}  // namespace lumivex
