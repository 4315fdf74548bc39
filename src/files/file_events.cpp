#include "files/file_events.h"

#include <array>

#include "files/settings/settings_events.h"

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
  for (const auto& row : SettingsEvents()) open.Table().Add(row.name, row.handler);
}

}  // namespace lumivex
