#pragma once

#include <optional>

#include "record/catalogue/map_inputs.h"
#include "record/session.h"
#include "runs/request.h"

namespace lumivex {

/// What Lee diagrams and maps ask of the inputs, after the tables of record/catalogue/map_inputs.

/// Captions, and which inputs are on the screen; what a map has hidden comes back with the next graph. Other graphs'
/// captions and inputs must have been shown before.
void ShowMapInputs(Session& session);

/// Start values of a Lee diagram or a map; of the swept quantity alone where only that is another.
void WriteMapStarts(Session& session, bool sweepAlone);

/// How the colours of a Lee diagram or a map start in the light that is chosen: cboLee, and false colours for a map of
/// one wavelength, which against its greatest value is nearly black in the colour of its light. A user who has ticked
/// or unticked them since the start keeps them.
void StartMapColours(Session& session);

/// After inputs that no event brought: false colours follow the light of a map again where they are those that it
/// starts in, and are a choice of the user's where they are not.
void FollowMapColours(Session& session);

/// Some graphs have a radius typed into the field of the angle, and an index into that of the radius: keeps what stood
/// there when such a graph has been chosen, and puts it back after it.
void KeepTypedSize(Session& session, const Graph& before);

/// The sweep of the columns, as typed; a lowest value of 0 is one of 1e-12, at which every quantity still has a
/// meaning.
Sweep ReadColumns(const Session& session, const Graph& graph);
/// That of the rows of a map without angles.
Sweep ReadRows(const Session& session, const Graph& graph);

/// Steps of the sweep of the columns, as typed.
double ColumnSteps(const Session& session, const MapInputs& inputs);
/// The input in which they are typed.
TextInput& StepsField(Form1& form, const MapInputs& inputs);

/// What is held still in txtF9_fixed, where it is that quantity.
std::optional<double> HeldValue(const Session& session, Swept quantity);

/// The sphere and the medium of a map that varies an index: the index that is held still, the other at the start of its
/// sweep. Of any other graph the materials chosen.
Material SphereOfGraph(const Session& session);
Material MediumOfGraph(const Session& session);

/// The radius of a map in micrometres: as typed, the smallest that is swept, or nothing where a size parameter is.
std::optional<double> RadiusOfMap(const Session& session);

}  // namespace lumivex
