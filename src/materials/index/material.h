#pragma once

#include <array>
#include <memory>
#include <optional>
#include <variant>

#include "materials/index/index_formulas.h"
#include "materials/index/index_table.h"
#include "materials/index/table_lookup.h"

namespace lumivex {

// The models of a refractive index, as values.

struct Vacuum {
  bool operator==(const Vacuum&) const = default;
};
struct FixedIndex {
  double n = 1, k = 0;
  bool operator==(const FixedIndex&) const = default;
};
/// A dielectric function e1 + i e2 that does not depend on wavelength.
struct FixedDielectric {
  double e1 = 1, e2 = 0;
  bool operator==(const FixedDielectric&) const = default;
};
struct SellmeierGlass {
  SellmeierTerms terms;
  bool operator==(const SellmeierGlass&) const = default;
};
/// Tables of water: Ray's and Segelstein's, with or without absorption.
enum class WaterSource { Ray, Segelstein };
struct WaterTable {
  WaterSource source = WaterSource::Segelstein;
  bool complex = true;
  bool operator==(const WaterTable&) const = default;
};
/// Water by the formula of the IAPWS, its absorption by Segelstein.
struct WaterFormula {
  double density = 0.99996382;         ///< g/cm3
  double tempRatio = 278.15 / 273.15;  ///< (T + 273.15) / 273.15
  bool complex = true;
  bool operator==(const WaterFormula&) const = default;
};
struct WaterKayeLaby {
  bool operator==(const WaterKayeLaby&) const = default;
};
struct AirAt {
  double temperature = 0;  ///< C
  bool operator==(const AirAt&) const = default;
};
enum class MetalName { Gold, Silver, Copper };
struct MetalFilm {
  MetalName name = MetalName::Gold;
  TableRule rule = TableRule::Linear;
  /// Of a sphere in layers: read along straight lines it does not absorb, but gold and silver at exactly the last row;
  /// copper never does. Results saved with coated metals rely on it.
  bool layer = false;
  bool operator==(const MetalFilm&) const = default;
};
struct IndexFromFile {
  std::shared_ptr<const IndexTable> table;
  TableRule rule = TableRule::Linear;
  CubicGate gate;
  bool operator==(const IndexFromFile&) const = default;
};
/// The cubic through four points.
struct FourPoints {
  std::array<double, 4> lambda{}, n{};
  bool operator==(const FourPoints&) const = default;
};

/// A material: whatever gives a refractive index at a wavelength.
using Material = std::variant<Vacuum, FixedIndex, FixedDielectric, SellmeierGlass, WaterTable, WaterFormula,
                              WaterKayeLaby, AirAt, MetalFilm, IndexFromFile, FourPoints>;

/// Why there is no index.
enum class IndexFailure {
  None,
  MissingRow,       ///< a file table has not the row that its last interval is read with
  SphereUndefined,  ///< the sphere's material has no index there
  MediumUndefined,  ///< the medium's has none
};

/// An index and why it is not there.
struct IndexFound {
  std::optional<IndexValue> value;
  bool missingRow = false;
  /// Segelstein's water as a medium, at exactly its last wavelength: the row that is written into the sphere's index.
  std::optional<double> intoSphere = std::nullopt;
};

/// The index of the material of a sphere.
/// @param lambda  vacuum wavelength, above 0 (um).
IndexFound IndexAt(const Material& material, double lambda);

/// The index of the material as a medium: k is not used. Segelstein's table is read to its very end there.
IndexFound MediumIndexAt(const Material& material, double lambda);

/// Indices of a sphere in a medium at a wavelength.
struct OpticalIndices {
  double sphereN = 1, sphereK = 0;
  double medium = 1;  ///< as the model gives it; 0 counts as 1
  double MediumInUse() const { return medium == 0 ? 1 : medium; }
  /// Relative index: sphere over medium.
  double RelativeRe() const { return sphereN / MediumInUse(); }
  double RelativeIm() const { return sphereK == 0 ? 0 : sphereK / MediumInUse(); }
};

struct IndicesFound {
  OpticalIndices indices;
  IndexFailure failure = IndexFailure::None;
};

/// Both indices. An index of the sphere of 0, or one that is not finite, is none.
IndicesFound IndicesAt(const Material& sphere, const Material& medium, double lambda);

}  // namespace lumivex
