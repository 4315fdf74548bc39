#pragma once

#include <type_traits>

#include "record/groups/axis_state.h"
#include "record/groups/batch_state.h"
#include "record/groups/colour_state.h"
#include "record/groups/graph_state.h"
#include "record/groups/impulse_state.h"
#include "record/groups/lee_results.h"
#include "record/groups/light_state.h"
#include "record/groups/material_state.h"
#include "record/groups/optical_state.h"
#include "record/groups/ray_state.h"
#include "record/groups/result_arrays.h"
#include "record/groups/run_state.h"
#include "record/groups/series_state.h"
#include "record/groups/simulation_state.h"
#include "record/groups/size_state.h"
#include "record/groups/spectrum_results.h"

namespace lumivex {

/// The one record of a session: what was asked for, where the run stands, what came out and how it is drawn. It is
/// told in groups, so that a routine asks for the narrowest one it needs; it lives as long as the session.
struct MainFormState : RunState,
                       OpticalState,
                       SeriesState,
                       ResultArrays,
                       SpectrumResults,
                       LeeResults,
                       AxisState,
                       MaterialState,
                       LightState,
                       SizeState,
                       ColourState,
                       GraphState,
                       RayState,
                       BatchState,
                       SimulationState,
                       ImpulseState {};

/// Visits every field of the record as visit(name, field), group by group in the order above. State is MainFormState,
/// const or not.
template <class State, class Visitor>
void ForEachStateField(State& state, Visitor&& visit) {
  const auto group = [&visit]<class Group>(Group& g) { ForEachField(g, visit); };
  const auto as = [&]<class Group>(std::type_identity<Group>) -> auto& {
    using Wanted = std::conditional_t<std::is_const_v<State>, const Group, Group>;
    return static_cast<Wanted&>(state);
  };
  group(as(std::type_identity<RunState>{}));
  group(as(std::type_identity<OpticalState>{}));
  group(as(std::type_identity<SeriesState>{}));
  group(as(std::type_identity<ResultArrays>{}));
  group(as(std::type_identity<SpectrumResults>{}));
  group(as(std::type_identity<LeeResults>{}));
  group(as(std::type_identity<AxisState>{}));
  group(as(std::type_identity<MaterialState>{}));
  group(as(std::type_identity<LightState>{}));
  group(as(std::type_identity<SizeState>{}));
  group(as(std::type_identity<ColourState>{}));
  group(as(std::type_identity<GraphState>{}));
  group(as(std::type_identity<RayState>{}));
  group(as(std::type_identity<BatchState>{}));
  group(as(std::type_identity<SimulationState>{}));
  group(as(std::type_identity<ImpulseState>{}));
}

}  // namespace lumivex
