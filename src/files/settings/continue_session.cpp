#include "files/settings/continue_session.h"

#include <optional>

#include "files/settings/ini_text.h"
#include "files/settings/session_text.h"
#include "materials/files/readable_text.h"

namespace lumivex {

namespace {

/// Empty, or what the user is told.
std::string Take(Session& session, const std::string& path) {
  const auto content = path.empty() ? std::nullopt : ReadOwnFile(path);
  if (!content) return "There is no last session to continue.";
  const auto text = Unsealed(*content);
  const std::string failure = text ? TakeSession(session, *text) : "it is damaged";
  if (failure.empty()) return {};
  return "The last session was kept in " + ReadablePath(path) + ",\nwhich cannot be read: " + failure +
         ". Nothing was changed.";
}

}  // namespace

bool ContinueSession(Session& session, const std::string& path) {
  const std::string failure = Take(session, path);
  if (!failure.empty()) {
    session.platform.Message("Continue last session", failure);
    return false;
  }
  session.events.Raise("cmdNewPlot_Click");
  return true;
}

void mnuContinueSession_Click(Session& session) {
  ContinueSession(session, session.settings.lastSessionFile);
}

}  // namespace lumivex
