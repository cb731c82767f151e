#include "ui/modal_dialogs.h"

#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

#include "ui/dialogs_for_test.h"

namespace {

TEST(FileNames, FilterAndExtensionFollowThePattern) {
  struct Case {
    const char* pattern;
    const char* filter;
    const char* typed;
    const char* saved;
  };
  const Case cases[] = {
      {"*.crp", "Game files (*.crp);;All files (*)", "/d/game", "/d/game.crp"},
      {"*.bet", "Auto-Bet files (*.bet);;All files (*)", "/d/my.strategy", "/d/my.strategy"},
      {"*.xyz", "XYZ files (*.xyz);;All files (*)", "/d/a.xyz", "/d/a.xyz"},
      {"*.*", "All files (*)", "/d/notes", "/d/notes"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(FileFilter(c.pattern), c.filter) << c.pattern;
    EXPECT_EQ(WithExtension(c.typed, c.pattern), c.saved) << c.pattern;
  }
}

TEST(ModalDialogs, ShowsAMessageModallyAndReturnsTheClick) {
  QWidget window;
  ModalDialogs dialogs(&window, QString());
  // The modal loop runs until the queued click closes the dialog.
  QTimer::singleShot(0, [] {
    QWidget* shown = QApplication::activeModalWidget();
    ASSERT_NE(shown, nullptr);
    shown->findChild<QPushButton*>("cmdNo")->click();
  });
  EXPECT_EQ(dialogs.Message({"Save Game?", "Save?", Buttons::YesNoCancel, false}).reply, Reply::No);
}

TEST(QueuedDialogs, AnswersFromTheQueueThenAsAPlayerWhoClosesEverything) {
  QueuedDialogs dialogs;
  dialogs.answers.push_back({Reply::Yes, true});
  dialogs.numbers.push_back(std::nullopt);
  const MessageRequest asked{"Auto-Bet", "Go on?", Buttons::YesNo, true};
  EXPECT_EQ(dialogs.Message(asked).reply, Reply::Yes);
  EXPECT_EQ(dialogs.Message(asked).reply, Reply::No);
  EXPECT_EQ(dialogs.Message({"Save Game?", "", Buttons::YesNoCancel, false}).reply, Reply::Cancel);
  EXPECT_EQ(dialogs.Number("RNG Seed", "", 7), std::nullopt);
  EXPECT_EQ(dialogs.Number("RNG Seed", "", 7), Currency(7));
  EXPECT_EQ(dialogs.Settle(SettleNotice{}), std::nullopt);
  EXPECT_EQ(dialogs.FileName("Save Game File As", "*.crp", FileMode::Save), std::nullopt);
  EXPECT_EQ(dialogs.messages.size(), 3u);
  EXPECT_TRUE(dialogs.messages[0].offerDontShow);
  EXPECT_EQ(dialogs.numbersAsked.size(), 2u);
  EXPECT_EQ(dialogs.filesAsked.at(0).pattern, "*.crp");
}

}  // namespace
