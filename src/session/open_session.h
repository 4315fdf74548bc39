#pragma once

#include "record/session.h"
#include "session/event_table.h"

namespace lumivex {

/// A session with its table of events, ready for Form_Load once the events of files are added (files/file_events).
class OpenSession {
 public:
  OpenSession(Platform& platform, DrawingSurface& surface) : session_(platform, surface, table_) {
    table_.Attach(session_);
  }
  Session& Get() { return session_; }
  const EventTable& Table() const { return table_; }
  /// For storeys above, which have events of their own.
  EventTable& Table() { return table_; }

 private:
  EventTable table_;
  Session session_;
};

}  // namespace lumivex
