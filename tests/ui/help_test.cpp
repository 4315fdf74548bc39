/// The guide as a user looks things up in it.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeWidget>
#include <set>

#include "record/catalogue/graph_texts.h"
#include "record/catalogue/method_texts.h"
#include "ui/help/help_window.h"
#include "ui/look.h"

namespace lumivex {
namespace {

TEST(HelpTopics, AreTheHeadingsOfAPageWithWhatStandsUnderThem) {
  const auto topics = TopicsOf(
      "No topic yet\n# A *page*\nIts [first](other.md#x) words\n![picture](a.png)\n\n## Q \\| p\n| a | **b** "
      "|\n|---|---|\n"
      "    # no heading\n#no heading either\n",
      "page.md");
  ASSERT_EQ(topics.size(), 2U);
  EXPECT_EQ(topics[0].title, "A page");
  EXPECT_EQ(topics[0].text, "Its first words\n\n");
  EXPECT_EQ(topics[1].title, "Q | p");
  EXPECT_EQ(topics[1].level, 2);
  EXPECT_EQ(topics[1].number, 1);
  EXPECT_NE(topics[1].text.find(" a   b "), std::string::npos) << topics[1].text;
  EXPECT_EQ(AnchorOf("Qext/Qsca v. size x"), "qextqsca-v-size-x");
}

TEST(HelpTopics, AreFoundByTheBeginningsOfAllWords) {
  const std::vector<HelpTopic> topics = {{"a.md", 1, "Rainbows", 0, "Light of polarised rays"},
                                         {"a.md", 2, "Polarisation", 1, "Of a rainbow it is strong, of rainbows all"},
                                         {"a.md", 2, "Coronae", 2, "Rings"}};
  EXPECT_EQ(SearchTopics(topics, "POLAR rainb"), (std::vector<std::size_t>{1, 0})) << "both words in its text";
  EXPECT_EQ(SearchTopics(topics, "polarisation"), (std::vector<std::size_t>{1}));
  EXPECT_TRUE(SearchTopics(topics, "rainbow ring").empty());
  EXPECT_TRUE(SearchTopics(topics, " .,").empty());
}

class HelpWindowTest : public testing::Test {
 protected:
  QString PageTitle() { return window_.windowTitle().mid(QString("Lumivex - ").size()); }
  template <class Widget>
  Widget* Named(const char* name) {
    for (auto* widget : window_.findChildren<Widget*>())
      if (widget->accessibleName() == name) return widget;
    return nullptr;
  }
  /// What stands at the top of the page.
  QString TopLine() {
    auto* page = window_.findChild<QTextBrowser*>();
    return page->cursorForPosition({30, 8}).block().text();
  }
  HelpWindow window_{nullptr};
};

TEST_F(HelpWindowTest, EveryMethodAndGraphHasItsPage) {
  const auto& topics = window_.Topics();
  std::vector<std::string_view> names;
  for (const auto& row : MethodTable())
    if (IsAvailable(row.feature)) names.push_back(row.text);
  for (const auto& row : GraphTable())
    if (IsAvailable(row.feature)) names.push_back(row.text);
  for (const auto name : names) EXPECT_LT(TopicNamed(topics, name), topics.size()) << name;
  const std::size_t back = TopicNamed(topics, "Qback v. size x");
  ASSERT_LT(back, topics.size());
  EXPECT_EQ(topics[back].title, "Qback v. radius");
}

TEST_F(HelpWindowTest, LinksLeadToHeadings) {
  // What pages link to, as it stands in their sources.
  std::set<std::string> known;
  for (const auto& topic : window_.Topics()) {
    known.insert(topic.file);
    known.insert(topic.file + "#" + AnchorOf(topic.title));
  }
  int links = 0;
  for (const auto& page : known) {
    if (page.find('#') != std::string::npos) continue;
    QFile file(HelpWindow::Folder() + "/" + ToQString(page));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << page;
    const std::string text = file.readAll().toStdString();
    for (std::size_t at = text.find("]("); at != std::string::npos; at = text.find("](", at + 1)) {
      std::string target = text.substr(at + 2, text.find(')', at) - at - 2);
      if (target.find(".md") == std::string::npos && !target.starts_with('#')) continue;
      if (target.find("../") != std::string::npos) continue;
      if (target.starts_with('#')) target = page + target;
      EXPECT_TRUE(known.contains(target)) << page << " links to " << target;
      ++links;
    }
  }
  EXPECT_GT(links, 20);
}

TEST_F(HelpWindowTest, ShowsTopicsAndGoesBackToThem) {
  window_.ShowTopic("");
  EXPECT_EQ(PageTitle(), "Lumivex user guide");
  auto* back = Named<QToolButton>("Back");
  auto* forward = Named<QToolButton>("Forward");
  EXPECT_FALSE(back->isEnabled());
  window_.ShowTopic("Airy");
  EXPECT_EQ(PageTitle(), "Airy");
  EXPECT_EQ(TopLine(), "Airy");
  back->click();
  EXPECT_EQ(PageTitle(), "Lumivex user guide");
  EXPECT_TRUE(forward->isEnabled());
  forward->click();
  EXPECT_EQ(PageTitle(), "Airy");
  // A way taken from the middle is the new end.
  back->click();
  window_.ShowTopic("Mie");
  EXPECT_FALSE(forward->isEnabled());
}

TEST_F(HelpWindowTest, ASearchListsWhatItFindsAndNoneIsTheContents) {
  window_.ShowTopic("");
  auto* search = Named<QLineEdit>("Search the guide");
  auto* list = Named<QTreeWidget>("Contents");
  const int pages = list->topLevelItemCount();
  QTest::keyClicks(search, "wavefront");
  ASSERT_GT(list->topLevelItemCount(), 0);
  QTest::keyClick(search, Qt::Key_Return);
  EXPECT_EQ(PageTitle(), list->topLevelItem(0)->text(0));
  EXPECT_NE(PageTitle(), "Lumivex user guide");
  search->clear();
  EXPECT_EQ(list->topLevelItemCount(), pages);
  QTest::keyClicks(search, "xyzzy");
  EXPECT_EQ(list->topLevelItemCount(), 0);
}

}  // namespace
}  // namespace lumivex
