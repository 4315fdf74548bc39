#pragma once

#include "session/inputs/materials/refractive_index.h"

namespace lumivex {

/// One evaluation of the models.
struct IndexLookup {
  Session& session;
  double wavelength;  ///< um
  LookupVoice voice;
};

/// Evaluates the ticked models of the sphere in their order into RefractReal and RefractImag, which stay as they were
/// where a model has no value. Were two entries ever ticked, the later one would stand.
/// @return false after a failure that was told: the evaluation ends.
bool EvaluateSphere(const IndexLookup& lookup);

/// The same for the medium, into RefractMedium. Segelstein's table writes its end correction into RefractReal.
bool EvaluateMedium(const IndexLookup& lookup);

/// Captions of the labels while an index typed by the user is in force.
inline constexpr std::string_view sphereSetByUser = "Sphere: Refractive index set by user";
inline constexpr std::string_view mediumSetByUser = "Medium: Refractive index set by user";

/// What sphere and medium models share.
namespace index_models {

/// Temperature, density and ratio of a water dialog.
struct WaterInputs {
  double temperature, density, ratio;
};
WaterInputs ReadWater(const TextInput& txtTemp, const TextInput& txtDensity);

/// The cubic through the four points of a user-defined material, which are stored on the way.
double UserIndex(const IndexLookup& lookup, const UserMaterialDialog& dialog, std::vector<double>& lambda,
                 std::vector<double>& index);

/// Whether tables are read by cubics.
TableRule RuleTicked(const Form1& form);

/// Tells of a table row that is not there.
void TellMissingRow(const IndexLookup& lookup);

}  // namespace index_models

}  // namespace lumivex
