#include "files/measured/open_data.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>

#include "files/measured/measured_text.h"
#include "materials/files/readable_text.h"
#include "record/number_text.h"
#include "record/text_file.h"
#include "session/compare/compare.h"
#include "session/inputs/dialog_use.h"

namespace lumivex {

namespace {

constexpr const char* title = "Measured data";
constexpr const char* noErrors = "none";

/// The file's columns, or why there are none.
ColumnText ColumnsIn(const Session& session, const std::string& path) {
  ColumnText refused;
  if (!TakesData(session.page)) {
    refused.failure = "Measured data are drawn over curves with a horizontal axis: there are none on this page.";
    return refused;
  }
  const auto content = ReadWholeFile(path);
  if (!content) {
    refused.failure = ReadablePath(path) + " cannot be read.";
    return refused;
  }
  ColumnText text = ReadColumns(*content);
  if (!text.failure.empty()) text.failure = ReadablePath(path) + " holds no measured data. " + text.failure;
  return text;
}

bool TellsOfErrors(std::string name) {
  std::ranges::transform(name, name.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  constexpr std::array<std::string_view, 6> words = {"err", "sigma", "sd", "std", "uncert", "\u03C3"};
  return std::ranges::any_of(words, [&](std::string_view word) { return name.find(word) != std::string::npos; });
}

DataColumns Guessed(const ColumnText& text) {
  DataColumns columns{1, 2, 0, true};
  const auto count = static_cast<int>(text.names.size());
  for (int i = 3; i <= count && columns.error == 0; ++i)
    if (TellsOfErrors(text.names[static_cast<std::size_t>(i - 1)])) columns.error = i;
  if (columns.error == 0 && count == 3) columns.error = 3;
  return columns;
}

void TellFaults(Session& session, const ReadPoints& read) {
  constexpr std::size_t most = 6;
  if (read.faults.empty()) return;
  std::string text = CountOf(static_cast<double>(read.faults.size()), "line") + " could not be taken, the other " +
                     std::to_string(read.points->x.size()) + " are there:\n";
  for (std::size_t i = 0; i < std::min(most, read.faults.size()); ++i) text += "\n" + read.faults[i];
  if (read.faults.size() > most) text += "\nand " + std::to_string(read.faults.size() - most) + " more";
  session.platform.Message(title, text);
}

/// @return empty, or why nothing was taken.
std::string Take(Session& session, const ColumnText& text, const DataColumns& columns, const std::string& name) {
  const auto count = static_cast<int>(text.names.size());
  const bool there = columns.x >= 1 && columns.x <= count && columns.y >= 1 && columns.y <= count &&
                     columns.error >= 0 && columns.error <= count;
  if (!there) return "There are " + CountOf(count, "column") + ", numbered from 1.";
  const ReadPoints read = PointsFrom(text, columns.x - 1, columns.y - 1, columns.error - 1);
  if (read.points->x.empty())
    return "No line could be taken: " + (read.faults.empty() ? std::string("there is none") : read.faults.front()) +
           ".";
  AddMeasured(session, read.points, name);
  TellFaults(session, read);
  return {};
}

std::string ItemOf(const ColumnText& text, int column) {
  const std::string number = std::to_string(column), &name = text.names[static_cast<std::size_t>(column - 1)];
  return name == number ? "column " + number : number + ": " + name;
}

/// The number that an item of the lists begins with, or has at its end.
int ColumnOf(const SelectionList& list) {
  const int place = list.PlaceOf(list.Text);
  const bool withNone = !list.Items.empty() && list.Items.front() == noErrors;
  return withNone ? std::max(place, 0) : place + 1;
}

void FillDialog(DlogMeasured& dialog, const ColumnText& text, const DataColumns& guess, const std::string& name) {
  const std::array previews = {&dialog.lblPreview1, &dialog.lblPreview2, &dialog.lblPreview3, &dialog.lblPreview4,
                               &dialog.lblPreview5};
  for (std::size_t i = 0; i < previews.size(); ++i) {
    const bool there = i < text.firstLines.size();
    previews[i]->Caption = there ? text.firstLines[i] : "";
    previews[i]->Visible = there;
  }
  std::vector<std::string> items;
  for (int column = 1; column <= static_cast<int>(text.names.size()); ++column) items.push_back(ItemOf(text, column));
  dialog.cboXColumn.Items = dialog.cboYColumn.Items = items;
  dialog.cboXColumn.Text = ItemOf(text, guess.x);
  dialog.cboYColumn.Text = ItemOf(text, guess.y);
  items.insert(items.begin(), noErrors);
  dialog.cboErrorColumn.Items = items;
  dialog.cboErrorColumn.Text = guess.error == 0 ? noErrors : ItemOf(text, guess.error);
  for (SelectionList* list : {&dialog.cboXColumn, &dialog.cboYColumn, &dialog.cboErrorColumn}) list->Picked = -1;
  dialog.txtDataName.Text = name;
}

}  // namespace

std::string OpenMeasured(Session& session, const std::string& path, const DataColumns& columns,
                         const std::string& name) {
  const ColumnText text = ColumnsIn(session, path);
  if (!text.failure.empty()) return text.failure;
  return Take(session, text, columns.said ? columns : Guessed(text), name.empty() ? FileNameOf(path) : name);
}

void mnuOpenData_Click(Session& session) {
  const auto path =
      session.platform.OpenFileName({title, "Columns of numbers (*.csv *.txt *.dat *.tsv);;All files (*)", ""});
  if (!path || path->empty()) return;
  const ColumnText text = ColumnsIn(session, *path);
  if (!text.failure.empty()) return session.platform.Message(title, text.failure);
  DlogMeasured& dialog = session.forms.dlogMeasured;
  FillDialog(dialog, text, Guessed(text), FileNameOf(*path));
  if (!session.platform.ShowModal(dialog)) return;
  const DataColumns columns{ColumnOf(dialog.cboXColumn), ColumnOf(dialog.cboYColumn), ColumnOf(dialog.cboErrorColumn),
                            true};
  const std::string name(Trim(dialog.txtDataName.Text));
  const std::string failure = Take(session, text, columns, name.empty() ? FileNameOf(*path) : name);
  if (!failure.empty()) session.platform.Message(title, failure);
}

}  // namespace lumivex
