#include "files/file_events.h"

#include <array>

namespace lumivex {

namespace {

struct EventRow {
  std::string_view name;
  EventTable::Handler handler;
};

constexpr std::array<EventRow, 0> fileEventRows = {};

}  // namespace

void AddFileEvents(OpenSession& open) {
  for (const auto& row : fileEventRows) open.Table().Add(row.name, row.handler);
}

}  // namespace lumivex
