/// What the window keeps from one start to the next.

#include <QTemporaryDir>
#include <filesystem>

#include "files/settings/keep_session.h"
#include "files/settings/save_ini.h"
#include "ui/window_fixture.h"

namespace lumivex {
namespace {

/// A program that has been started in a folder of settings, as main does.
struct Started {
  explicit Started(const QString& folder) {
    program.UseSettings(folder.toStdString());
    program.Load();
    program.Window().show();
    program.KeepSession();
    QTest::qWait(20);
  }
  WindowedSession program;
};

class SettingsOfWindow : public WindowTest {
 protected:
  QTemporaryDir folder_;
};

TEST_F(SettingsOfWindow, SizeAndPlaceReturn) {
  QRect kept;
  {
    Started first(folder_.path());
    auto& window = first.program.Window();
    window.move(60, 40);
    window.resize(1500, 950);
    QTest::qWait(20);
    kept = window.geometry();
    window.close();
    first.program.End();
  }
  Started next(folder_.path());
  EXPECT_EQ(next.program.Window().geometry().size(), kept.size());
  EXPECT_EQ(next.program.Window().geometry().topLeft(), kept.topLeft());
  // The first page fills the window that it is drawn in.
  const double width = next.program.Window().Surface().ScaleWidth();
  EXPECT_NEAR(next.program.Current().state.GraphRight, 0.97 * width, 1);
}

TEST_F(SettingsOfWindow, ADamagedPlaceLeavesTheWindowAsItIs) {
  const QSize size = [&] {
    Started plain(folder_.path());
    return plain.program.Window().size();
  }();
  for (const char* place : {"AAAA", "%%%", "AdnQywADAAA=", ""}) {
    std::filesystem::remove(folder_.filePath(iniName).toStdString());
    iniFileUpdate(folder_.filePath(iniName).toStdString(), [&](IniText& ini) { ini.Set("Window", "Place", place); });
    Started next(folder_.path());
    EXPECT_EQ(next.program.Window().size(), size) << place;
  }
}

TEST_F(SettingsOfWindow, ACrashIsFollowedByAQuestionAndYesContinues) {
  {
    Started crashed(folder_.path());
    auto& session = crashed.program.Current();
    session.settings.program.boot = "before the machine stopped";
    crashed.program.Gate().Do([&] {
      session.form1.txtRadius.Text = "7";
      session.events.Raise("cmdNewPlot_Click");
    });
  }
  ASSERT_TRUE(messages.empty());
  {
    Started next(folder_.path());
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0],
              "Continue last session: The last session did not end as it should.\n\nDo you want to continue it?");
    EXPECT_EQ(next.program.Current().form1.txtRadius.Text, "7");
    EXPECT_EQ(next.program.Current().state.LastResults->asked.particle.radius, 7);
    next.program.End();
  }
  Started last(folder_.path());
  EXPECT_EQ(messages.size(), 1U) << "an end as it should be asks nothing";
  EXPECT_EQ(last.program.Current().form1.txtRadius.Text, "10") << "the start stays as it is";
}

}  // namespace
}  // namespace lumivex
