#include "scripts/scripted_platform.h"

#include <algorithm>
#include <ostream>

#include "record/form.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

template <class Value>
std::optional<Value> TakeFirst(std::deque<Value>& queue) {
  if (queue.empty()) return std::nullopt;
  Value value = std::move(queue.front());
  queue.pop_front();
  return value;
}

}  // namespace

void ScriptedPlatform::Record(std::string_view title, std::string_view text) {
  messages.push_back({std::string(title), std::string(text)});
  // One write a line, for processes that tell something at the same time.
  if (echo_ != nullptr) *echo_ << std::string(title) + ": " + std::string(text) + "\n" << std::flush;
}

void ScriptedPlatform::Message(std::string_view title, std::string_view text) {
  Record(title, text);
}

bool ScriptedPlatform::Question(std::string_view title, std::string_view text) {
  Record(title, text);
  return TakeFirst(answers).value_or(true);
}

std::optional<std::string> ScriptedPlatform::OpenFileName(const FileDialog&) {
  return TakeFirst(openPaths);
}

std::optional<std::string> ScriptedPlatform::SaveFileName(const FileDialog& dialog) {
  suggestedName = dialog.suggested;
  return TakeFirst(savePaths);
}

bool ScriptedPlatform::ShowModal(Form& form) {
  const auto isNext = [&] { return !dialogs.empty() && SameName(dialogs.front().form, form.Name()); };
  const FormSnapshot before = form.Snapshot();
  const auto open = whileOpen ? whileOpen(form) : nullptr;
  // An OK that leaves a red field keeps the dialog open: the next answer goes on in it. Without one the user gives up.
  do {
    DialogAnswer answer;
    if (isNext()) {
      answer = std::move(dialogs.front());
      dialogs.pop_front();
    }
    for (const auto& [field, text] : answer.fields)
      if (setField) setField(form, field, text);
    if (!answer.ok) break;
    if (confirm) confirm(form);
    const bool refused = std::ranges::any_of(
        form.Controls(), [](const Control* c) { return c->Visible && c->BackColour == colours::BadInput; });
    if (!refused) return true;
  } while (isNext());
  form.Restore(before);
  return false;
}

void ScriptedPlatform::Show(Form& form) {
  form.Visible = true;
  shownForms.emplace_back(form.Name());
  if (showForm) showForm(form);
}

void ScriptedPlatform::Yield() {
  if (onYield) onYield();
}

double ScriptedPlatform::Timer() {
  if (clock) return clock();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
}

std::string ScriptedPlatform::SavePicture(std::string_view path) {
  return savePicture ? savePicture(path) : "Pictures can be saved only where there is a window system";
}

OpenedPhotograph ScriptedPlatform::OpenPhotograph(std::string_view path) {
  return openPhotograph ? openPhotograph(path) : Platform::OpenPhotograph(path);
}

std::string ScriptedPlatform::SaveDrawing(const Page& page, std::string_view path) {
  return saveDrawing ? saveDrawing(page, path) : Platform::SaveDrawing(page, path);
}

std::string ScriptedPlatform::SavePhotograph(const Page& page, std::string_view notes, std::string_view path) {
  return savePhotograph ? savePhotograph(page, notes, path) : Platform::SavePhotograph(page, notes, path);
}

}  // namespace lumivex
