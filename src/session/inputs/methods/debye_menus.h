#pragma once

#include <span>
#include <string_view>

#include "record/session.h"

namespace lumivex {

/// Differences of the Debye series: one at a time, or none. The label follows, results must be calculated anew.
void mnuMieDebye_Click(Session& session);
void mnuGODebye_Click(Session& session);
void mnuSWsub_Click(Session& session);

/// The coefficients by continued fractions instead of recurrences.
void mnuDebyeRecursion_Click(Session& session);

/// Asks which partial waves of the Debye terms are summed.
void mnuPartial_Click(Session& session);

/// An event of the methods of this folder and their dialogs, and what it does.
struct SolverEvent {
  std::string_view name;
  void (*handler)(Session&);
};
std::span<const SolverEvent> SolverEvents();

}  // namespace lumivex
