#include "files/results/file_version.h"

#include <array>

namespace lumivex {

namespace {

struct VersionRow {
  std::string_view line;
  int code;
};

constexpr std::array versionRows = {
    VersionRow{"Lumivex v1.0", 1},       VersionRow{"Lumivex v1.01", 101},    VersionRow{"Lumivex v2.00", 200},
    VersionRow{"Lumivex v2.01", 201},    VersionRow{"Lumivex v2.02", 202},    VersionRow{"Lumivex v2.03", 203},
    VersionRow{"Lumivex v2.04", 204},    VersionRow{"Lumivex v2.05", 205},    VersionRow{"Lumivex v3.1.02", 3102},
    VersionRow{"Lumivex v3.2.01", 3201}, VersionRow{"Lumivex v3.2.02", 3202}, VersionRow{"Lumivex v3.4.11", 3411},
    VersionRow{"Lumivex v3.5.02", 3502}, VersionRow{"Lumivex v4.0.00", 4000}, VersionRow{"Lumivex v4.0.01", 4001},
    VersionRow{"Lumivex v4.0.02", 4002}, VersionRow{"Lumivex v4.0.03", 4003}, VersionRow{"Lumivex v4.0.04", 4004},
    VersionRow{"Lumivex v4.0.05", 4005}, VersionRow{"Lumivex v4.0.06", 4006}, VersionRow{"Lumivex v4.0.07", 4007},
    VersionRow{"Lumivex v4.0.08", 4008}, VersionRow{"Lumivex v4.1.08", 4108}, VersionRow{"Lumivex v4.2.00", 4200},
    VersionRow{"Lumivex v4.2.01", 4201}, VersionRow{"Lumivex v4.3.01", 4301}, VersionRow{"Lumivex v4.3.02", 4302},
    VersionRow{"Lumivex v4.4.00", 4400},
};
static_assert(versionRows.size() == 28);
static_assert(versionRows.front().code == oldestFile && versionRows.back().code == newestFile);

}  // namespace

int FileVersionCode(std::string_view firstLine) {
  for (const auto& row : versionRows)
    if (row.line == firstLine) return row.code;
  return 0;
}

std::string_view FileVersionLine(int code) {
  for (const auto& row : versionRows)
    if (row.code == code) return row.line;
  return {};
}

bool IsOfThisProgram(std::string_view firstLine) {
  return firstLine.starts_with("Lumivex");
}

}  // namespace lumivex
