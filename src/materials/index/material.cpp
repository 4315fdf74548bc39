#include "materials/index/material.h"

#include <cmath>
#include <span>
#include <utility>

#include "materials/index/water.h"
#include "materials/tables/metals.h"
#include "materials/tables/ray_water.h"
#include "materials/tables/segelstein_water.h"

namespace lumivex {

namespace {

IndexFound Real(double n) {
  return {IndexValue{n, 0}};
}

const MetalTable& TableOf(MetalName name) {
  return name == MetalName::Gold ? GoldNK : name == MetalName::Silver ? SilverNK : CopperNK;
}

IndexFound ReadMetal(const MetalFilm& metal, double wavelength) {
  const auto wanted = static_cast<float>(wavelength);
  auto found = LookUpMetal(MetalLambda, TableOf(metal.name), wanted, metal.rule);
  const bool cubicOrLast = metal.rule == TableRule::Cubic || wanted == MetalLambda[metalRows];
  if (found && metal.layer && (metal.name == MetalName::Copper || !cubicOrLast)) found->k = 0;
  return {found};
}

/// The water tables know straight lines only, and their search stops at the first hit.
IndexFound ReadWaterTable(std::span<const float> lambda, std::span<const float> n, std::span<const float> k,
                          double wavelength, bool complex) {
  const auto wanted = static_cast<float>(wavelength);
  const auto index = LookUpLinear(lambda, n, wanted);
  if (!index) return {};
  return {IndexValue{*index, complex ? LookUpLinear(lambda, k, wanted).value_or(0) : 0}};
}

struct Evaluate {
  double lambda;

  IndexFound operator()(const Vacuum&) const { return Real(1); }
  IndexFound operator()(const FixedIndex& m) const { return {IndexValue{m.n, m.k}}; }
  IndexFound operator()(const FixedDielectric& m) const {
    return {IndexValue{IndexOfDielectric(m.e1, m.e2), AbsorptionOfDielectric(m.e1, m.e2)}};
  }
  IndexFound operator()(const SellmeierGlass& m) const { return Real(SellmeierIndex(m.terms, lambda)); }
  IndexFound operator()(const WaterTable& m) const {
    if (m.source == WaterSource::Ray) return ReadWaterTable(RayLambda, RayN, RayK, lambda, m.complex);
    return ReadWaterTable(SegelsteinLambda, SegelsteinN, SegelsteinK, lambda, m.complex);
  }
  IndexFound operator()(const WaterFormula& m) const {
    // The one search that runs on the wavelength in double precision.
    const double k = m.complex ? LookUpLinear(SegelsteinLambda, SegelsteinK, lambda).value_or(0.0) : 0;
    return {IndexValue{WaterIndexIapws(lambda, m.density, m.tempRatio), k}};
  }
  IndexFound operator()(const WaterKayeLaby&) const { return Real(WaterIndexKayeLaby(lambda)); }
  IndexFound operator()(const AirAt& m) const { return Real(AirIndex(lambda, m.temperature)); }
  IndexFound operator()(const MetalFilm& m) const { return ReadMetal(m, lambda); }
  IndexFound operator()(const IndexFromFile& m) const {
    if (!m.table) return {};
    const FileLookup found = LookUpFile(m.table->View(), lambda, m.rule, m.gate);
    return {found.value, found.beyondRows};
  }
  IndexFound operator()(const FourPoints& m) const { return Real(LagrangePolynomial(m.lambda, m.n, lambda)); }
};

}  // namespace

IndexFound IndexAt(const Material& material, double lambda) {
  return std::visit(Evaluate{lambda}, material);
}

IndexFound MediumIndexAt(const Material& material, double lambda) {
  if (const auto* dielectric = std::get_if<FixedDielectric>(&material)) return Real(std::sqrt(dielectric->e1));
  const auto* water = std::get_if<WaterTable>(&material);
  if (water == nullptr || water->source != WaterSource::Segelstein) return IndexAt(material, lambda);
  // At exactly the last wavelength the medium keeps the interpolated value, and the table's last row is written into
  // the index of the sphere: results saved so rely on it.
  const EndedLookup found = LookUpToEnd(SegelsteinLambda, SegelsteinN, static_cast<float>(lambda));
  IndexFound index;
  if (found.value) index.value = IndexValue{*found.value, 0};
  if (found.atEnd) index.intoSphere = SegelsteinN.back();
  return index;
}

IndicesFound IndicesAt(const Material& sphere, const Material& medium, double lambda) {
  IndicesFound found;
  const IndexFound ofSphere = IndexAt(sphere, lambda);
  if (ofSphere.missingRow) found.failure = IndexFailure::MissingRow;
  const IndexValue index = ofSphere.value.value_or(IndexValue{0, 0});
  found.indices.sphereN = index.n;
  found.indices.sphereK = index.k;
  if (found.failure == IndexFailure::None && (index.n == 0 || !std::isfinite(index.n) || !std::isfinite(index.k)))
    found.failure = IndexFailure::SphereUndefined;
  if (found.failure != IndexFailure::None) return found;
  const IndexFound ofMedium = MediumIndexAt(medium, lambda);
  if (ofMedium.missingRow) {
    found.failure = IndexFailure::MissingRow;
  } else if (!ofMedium.value || !std::isfinite(ofMedium.value->n)) {
    found.failure = IndexFailure::MediumUndefined;
  } else {
    found.indices.medium = ofMedium.value->n;
  }
  if (ofMedium.intoSphere) found.indices.sphereN = *ofMedium.intoSphere;
  return found;
}

}  // namespace lumivex
