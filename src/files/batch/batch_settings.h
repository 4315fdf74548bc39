#pragma once

#include "files/batch/batch_commands.h"
#include "record/session.h"

namespace lumivex {

/// What the commands of a batch do to the inputs: the values are set as a user sets them, events and all, also where an
/// input is hidden in the graph of the moment. No dialog opens: those of the session stand as they are.

/// Carries out a command that sets inputs; one that runs, steps or stops sets none.
void SetByCommand(Session& session, const BatchCommand& command);

/// Chooses what a size means, where the steps are sizes.
void PrepareSteps(Session& session, const BatchStepName& name);

/// Sets the input of a step. @param value  as At gives it; it is written as rounded as the name has it.
void SetStep(Session& session, const BatchStepName& name, float value);

}  // namespace lumivex
