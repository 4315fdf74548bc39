#pragma once

#include <map>
#include <string>

#include "record/events.h"
#include "record/session.h"

namespace lumivex {

/// The events that the program listens to, by name: one place, read like an index (event_table.cpp).
class EventTable final : public Events {
 public:
  using Handler = void (*)(Session&);

  EventTable();
  /// The session that handlers act on; to be set before the first event.
  void Attach(Session& session) { session_ = &session; }
  bool Raise(std::string_view name) override;
  bool Listens(std::string_view name) const;
  /// An event of a storey above, or another handler in the place of the present one.
  void Add(std::string_view name, Handler handler);

 private:
  std::map<std::string, Handler, std::less<>> handlers_;  ///< by name in lower case
  Session* session_ = nullptr;
};

}  // namespace lumivex
