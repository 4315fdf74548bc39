#include "catalogue/method.h"

#include <array>

namespace lumivex {

namespace {

constexpr auto yes = true;

constexpr std::array rows = {
    MethodTraits{.method = Method::None},
    MethodTraits{.method = Method::Mie, .series = yes, .efficiencies = yes, .beams = yes, .divides = yes},
    MethodTraits{
        .method = Method::Debye, .series = yes, .showsP = yes, .needsP = yes, .efficiencies = yes, .beams = yes},
    MethodTraits{.method = Method::Rayleigh, .efficiencies = yes, .realIndexOnly = yes, .hasHidden = yes},
    MethodTraits{.method = Method::Diffraction, .efficiencies = yes},
    MethodTraits{.method = Method::Airy, .showsP = yes, .needsP = yes, .realIndexOnly = yes},
    MethodTraits{.method = Method::Descartes, .showsP = yes, .needsP = yes, .takesDiffraction = yes},
    MethodTraits{.method = Method::Young, .showsP = yes, .needsP = yes, .takesDiffraction = yes},
    MethodTraits{.method = Method::YoungMod,
                 .showsP = yes,
                 .needsP = yes,
                 .beams = yes,
                 .takesDiffraction = yes,
                 .hasHidden = yes},
    MethodTraits{.method = Method::Huygens, .showsP = yes, .needsP = yes, .counts = Counted::Rays},
    MethodTraits{.method = Method::Aperture, .showsP = yes, .angleOnly = yes, .counts = Counted::Strips},
    MethodTraits{.method = Method::SurfaceWave, .showsP = yes, .beams = yes, .leastSize = yes},
    MethodTraits{.method = Method::VanDeHulst, .angleOnly = yes},
    MethodTraits{.method = Method::CoatedSphere, .series = yes, .efficiencies = yes, .layered = yes, .divides = yes},
    MethodTraits{.method = Method::YoungAiry,
                 .showsP = yes,
                 .needsP = yes,
                 .beams = yes,
                 .takesDiffraction = yes,
                 .hasHidden = yes},
    MethodTraits{.method = Method::Burgeroid, .angleOnly = yes, .leastSize = yes, .takesLong = yes},
    MethodTraits{.method = Method::Heiligenschein, .leastSize = yes, .takesLong = yes},
    MethodTraits{.method = Method::InhomogeneousSphere, .layered = yes, .angleOnly = yes},
};

constexpr bool InOrder() {
  for (std::size_t code = 0; code < rows.size(); ++code)
    if (static_cast<std::size_t>(rows[code].method) != code) return false;
  return true;
}
static_assert(InOrder(), "a row stands at the place of its code");

}  // namespace

std::span<const MethodTraits> MethodTraitsTable() {
  return std::span(rows).subspan(1);
}

const MethodTraits& TraitsOf(Method method) {
  const auto code = static_cast<std::size_t>(method);
  return rows[code < rows.size() ? code : 0];
}

}  // namespace lumivex
