#include "ui/console/interrupt.h"

#include <csignal>
#include <initializer_list>

namespace lumivex {

namespace {

volatile std::sig_atomic_t interrupted = 0;

void Remember(int) {
  interrupted = 1;
}

}  // namespace

void WatchForInterrupt() {
  struct sigaction action {};
  action.sa_handler = Remember;
  // A wait for processes returns at once; the second signal finds the system's own handler.
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  for (const int number : {SIGINT, SIGTERM}) sigaction(number, &action, nullptr);
}

bool WasInterrupted() {
  return interrupted != 0;
}

}  // namespace lumivex
