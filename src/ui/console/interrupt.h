#pragma once

namespace lumivex {

/// Takes Ctrl-C and a request to end as a wish to stop: what is finished is put in order first. A second one ends the
/// program at once.
void WatchForInterrupt();

/// Whether there was one.
bool WasInterrupted();

}  // namespace lumivex
