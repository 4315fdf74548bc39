#pragma once

#include <string>

#include "materials/index/material.h"
#include "record/session.h"

namespace lumivex {

/// The material of the sphere, or of the medium, that the menus, dialogs and tables of the session stand for. Of
/// several ticked entries the last one counts, in the order of the list beside each function. With none ticked there is
/// no index: a table that was never read.
///
/// Sphere: formula, Ray, Segelstein, file, gold, silver, copper, Kaye and Laby, IAPWS, air, vacuum, an index typed in,
/// fixed, dielectric, user-defined.
Material SphereMaterial(const Session& session);

/// Medium: an index typed in, air, vacuum, fixed, file, IAPWS, user-defined, Segelstein, dielectric.
///
/// Whether the medium's table may be read by cubics is asked of the rows of the sphere's table: without a sphere file
/// it never is.
Material MediumMaterial(const Session& session);

/// Whether tables are read by cubics.
TableRule RuleTicked(const Form1& form);

/// The name that a user or a file gave a material, or a word for one that has none: labels and titles would end in the
/// air.
std::string NameOfMaterial(const std::string& given);

/// How a material is called in titles ("Water") and on its label ("Sphere: Water (IAPWS 5C Complex)").
struct MaterialWords {
  std::string name, caption;
};

/// The names in force: those that the menus chose, but for materials that are named in their own inputs.
MaterialWords SphereWords(const Session& session);
MaterialWords MediumWords(const Session& session);

}  // namespace lumivex
