#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "files/file_events.h"
#include "record/layout/menu_tree.h"
#include "record/layout/panel_layout.h"
#include "record/layout/simulation_layout.h"
#include "session/open_session.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

class Record : public ScriptedSession {};

TEST_F(Record, ControlsAreDeclaredOnceAndFoundWhateverTheirCase) {
  for (const Form* form : runner.Current().forms.All()) {
    std::set<std::string> names;
    for (const Control* control : form->Controls()) {
      std::string lower(control->Name());
      for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
      EXPECT_TRUE(names.insert(lower).second) << control->Name() << " twice in " << form->Name();
      EXPECT_EQ(form->Find(lower), control);
    }
  }
}

TEST_F(Record, EveryMenuEntryThatIsOfferedIsDeclaredAndActs) {
  ScriptedPlatform world;
  RecordingSurface surface(15000, 9000);
  OpenSession open(world, surface);
  AddFileEvents(open);
  std::set<std::string_view> seen;
  for (const auto& row : OfferedMenu()) {
    if (row.entry == "-") continue;
    EXPECT_TRUE(seen.insert(row.entry).second) << row.entry << " stands twice";
    const Control* entry = runner.Current().form1.Find(row.entry);
    ASSERT_NE(entry, nullptr) << row.entry;
    EXPECT_EQ(entry->Kind(), ControlKind::MenuEntry) << row.entry;
    EXPECT_TRUE(open.Table().Listens(std::string(row.entry) + "_Click")) << row.entry << " is dead";
  }
  const Form& second = runner.Current().forms.form2;
  for (const auto& row : simulationMenu) {
    if (row.entry == "-") continue;
    EXPECT_NE(second.Find(row.entry), nullptr) << row.entry;
    EXPECT_TRUE(open.Table().Listens("Form2." + std::string(row.entry) + "_Click")) << row.entry << " is dead";
  }
}

TEST_F(Record, TheLayoutNamesOnlyWhatThereIs) {
  std::set<std::string_view> placed;
  const auto check = [&](const Form& form, std::span<const LayoutLine> lines) {
    for (const auto& line : lines)
      for (const auto name : line.controls) {
        if (name.empty()) continue;
        EXPECT_NE(form.Find(name), nullptr) << form.Name() << "." << name;
        EXPECT_TRUE(placed.insert(name).second || &form != &runner.Current().form1) << name << " stands twice";
      }
  };
  for (const auto& frame : MainPanel()) check(runner.Current().form1, frame.lines);
  for (const auto& frame : simulationFrames) check(runner.Current().forms.form2, frame.lines);
  for (const auto& dialog : Dialogs()) {
    const Form* form = runner.Current().forms.Find(dialog.form);
    ASSERT_NE(form, nullptr) << dialog.form;
    check(*form, dialog.lines);
  }
}

TEST_F(Record, EveryInputTellsItsUnitAndMeaning) {
  for (const Form* form : runner.Current().forms.All())
    for (const Control* control : form->Controls())
      if (control->Kind() == ControlKind::TextInput || control->Kind() == ControlKind::SelectionList) {
        EXPECT_GT(control->Tip.size(), 10U) << control->Name();
      }
}

TEST_F(Record, SnapshotsPutBackWhatTheUserSet) {
  auto& form = runner.Current().form1;
  const FormSnapshot before = form.Snapshot();
  Do("set txtRadius 33\nclick optLinear\nchoose cboPol Parallel");
  EXPECT_NE(form.Snapshot(), before);
  form.Restore(before);
  EXPECT_EQ(form.Snapshot(), before);
  EXPECT_EQ(form.txtRadius.Text, "10");
  EXPECT_TRUE(form.OptLog.Checked);
  EXPECT_FALSE(form.optLinear.Checked);
}

TEST_F(Record, FieldsAreListedOnce) {
  std::set<std::string> names;
  int fields = 0;
  ForEachStateField(runner.Current().state, [&](std::string_view name, const auto&) {
    ++fields;
    EXPECT_TRUE(names.insert(std::string(name)).second) << name;
  });
  EXPECT_GT(fields, 100);
}

}  // namespace
}  // namespace lumivex
