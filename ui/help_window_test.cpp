#include "ui/help_window.h"

#include <QFile>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace {

void Write(const QString& path, const char* text) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text);
}

class HelpWindowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(folder.isValid());
    Write(folder.filePath("odds.md"), "# Odds and limits\n\n## Lay bets\n\nThe vig is paid up front.\n");
    Write(folder.filePath("table.md"), "# The table\n\nEvery bet on the layout.\n");
    Write(folder.filePath("README.md"), "# Dicemill\n\nStart here with the dice.\n");
  }
  QStringList Contents(HelpWindow& help) {
    QStringList titles;
    auto* list = help.findChild<QListWidget*>("lstContents");
    for (int i = 0; i < list->count(); ++i) titles << list->item(i)->text();
    return titles;
  }
  QTemporaryDir folder;
};

TEST_F(HelpWindowTest, ListsEachDocumentByItsHeadingWithTheKeyboardLast) {
  HelpWindow help(folder.path(), folder.filePath("README.md"));
  help.SetShortcuts({{"Space", "Roll the dice"}});
  // The start page in the same folder is not listed a second time by its heading.
  EXPECT_EQ(Contents(help), QStringList({"Getting started", "Odds and limits", "The table", "Keyboard"}));
  help.SetShortcuts({{"F1", "Help"}});
  EXPECT_EQ(Contents(help).count("Keyboard"), 1);
}

TEST_F(HelpWindowTest, SearchListsTheDocumentsAndShowsTheWord) {
  HelpWindow help(folder.path());
  help.SetShortcuts({{"Ctrl+Shift+S", "Save the game"}});
  auto* results = help.findChild<QTreeWidget*>("lstSearchResults");
  const std::pair<const char*, QStringList> cases[] = {
      {"VIG", {"Odds and limits (1)"}},
      {"the", {"Dicemill (1)", "Odds and limits (1)", "The table (2)", "Keyboard (1)"}},
      {"roulette", {}},
  };
  for (const auto& [word, documents] : cases) {
    help.Search(word);
    QStringList found;
    for (int i = 0; i < results->topLevelItemCount(); ++i) found << results->topLevelItem(i)->text(0);
    EXPECT_EQ(found, documents) << word;
  }

  help.Search("vig");
  QTreeWidgetItem* line = results->topLevelItem(0)->child(0);
  EXPECT_EQ(line->text(0), "Lay bets: The vig is paid up front.");
  results->setCurrentItem(line);
  auto* browser = help.findChild<QTextBrowser*>("txtHelp");
  EXPECT_EQ(browser->textCursor().selectedText(), "vig");
  EXPECT_TRUE(browser->toPlainText().startsWith("Odds and limits"));
}

}  // namespace
