#pragma once

#include "record/settings.h"

namespace lumivex {

/// This program, as the system's folder /proc tells it.
ProgramIdentity ThisProgram();

/// Whether that program may still run: another machine's may, as far as this one can tell. A number that has gone over
/// to a program of another name is no sign of life.
bool MayRun(const ProgramIdentity& program);

}  // namespace lumivex
