#pragma once

namespace lumivex {

/// Milliseconds since the process was started by the system, loading of libraries included; where the system does not
/// tell (other than Linux), since this was first asked. Good to 10 ms.
double MillisecondsSinceStart();

}  // namespace lumivex
