#include "ui/process_clock.h"

#include <chrono>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#if defined(__linux__)
#include <time.h>
#include <unistd.h>
#endif

namespace lumivex {

double MillisecondsSinceStart() {
#if defined(__linux__)
  std::ifstream file("/proc/self/stat");
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  // The name, in parentheses, may hold blanks; the start, in ticks since the boot, is the 20th field after it.
  std::istringstream fields(text.substr(text.rfind(')') + 1));
  std::string field;
  for (int i = 0; i < 20; ++i) fields >> field;
  timespec now{};
  if (fields && clock_gettime(CLOCK_BOOTTIME, &now) == 0) {
    const double start = std::stod(field) / static_cast<double>(sysconf(_SC_CLK_TCK));
    return (static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9 - start) * 1000;
  }
#endif
  static const auto first = std::chrono::steady_clock::now();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - first).count();
}

}  // namespace lumivex
