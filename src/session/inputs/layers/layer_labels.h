#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// Shows what a sphere in layers is, where the main window has the index of a homogeneous one: of a coated sphere the
/// lines of core and coating in lblSphere and lblRI_Medium, the index fields of its materials at the wavelength in
/// txtLambda, and its outer radius in txtRadius; of a profile its equation in lblSphere and the index of the medium. By
/// any other method the labels have the names of the materials again.
void ShowLayers(Session& session);

/// The index fields of the coated sphere's layers: enabled where an index is typed, otherwise that of the material at
/// the wavelength in txtLambda.
void EvaluateLayers(Session& session);

/// What is typed into txtRadius is the outer radius of the coated sphere, in the words that sizes are typed in.
void TakeOuterRadius(Session& session);

/// ShowLayers as a run begins, which calls the coating a shell.
void ShowLayersOfRun(Session& session);

/// "Core: r1 = 7.5 um, n1 = 1.5" and "Coating: r2 = 10 um, n2 = 1.3333", with the micro sign.
std::string CoreLine(const Session& session);
std::string CoatingLine(const Session& session, const char* name = "Coating");

/// The medium of the coated sphere: "a vacuum", and "Medium: Vacuum".
std::string CoatedMediumName(const Session& session);
std::string CoatedMediumCaption(const Session& session);

}  // namespace lumivex
