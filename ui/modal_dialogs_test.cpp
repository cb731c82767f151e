#include "ui/modal_dialogs.h"

#include <QApplication>
#include <QFileDialog>
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
  ModalDialogs dialogs(QString(), &window);
  // The modal loop runs until the queued click closes the dialog.
  QTimer::singleShot(0, [] {
    QWidget* shown = QApplication::activeModalWidget();
    ASSERT_NE(shown, nullptr);
    shown->findChild<QPushButton*>("cmdNo")->click();
  });
  EXPECT_EQ(dialogs.Message({"Save Game?", "Save?", Buttons::YesNoCancel, false}).reply, Reply::No);
}

TEST(ModalDialogs, FileDialogsAcceptAsTheModeAsks) {
  struct Case {
    FileMode mode;
    QFileDialog::AcceptMode accept;
    QFileDialog::FileMode files;
  };
  // Open-or-create takes any name yet accepts as Open does: no "replace?" question.
  const Case cases[] = {
      {FileMode::Open, QFileDialog::AcceptOpen, QFileDialog::ExistingFile},
      {FileMode::Save, QFileDialog::AcceptSave, QFileDialog::AnyFile},
      {FileMode::OpenOrCreate, QFileDialog::AcceptOpen, QFileDialog::AnyFile},
  };
  ModalDialogs dialogs{QString()};
  for (const Case& c : cases) {
    QTimer::singleShot(0, [&c] {
      auto* shown = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(shown, nullptr);
      EXPECT_EQ(shown->acceptMode(), c.accept);
      EXPECT_EQ(shown->fileMode(), c.files);
      shown->reject();
    });
    EXPECT_EQ(dialogs.FileName("Roll file", "*.rol", c.mode), std::nullopt);
  }
}

TEST(QueuedDialogs, AnswersQuestionsFromTheQueueThenAsASilentScreen) {
  QueuedDialogs dialogs;
  dialogs.replies.push_back(Reply::Yes);
  dialogs.dontShowAgain.push_back(true);
  dialogs.numbers.push_back(std::nullopt);
  const MessageRequest notice{"Place 6 Bet", "Maximum", Buttons::Ok, true};
  const MessageRequest question{"Auto-Bet", "Go on?", Buttons::YesNo, false};
  // The OK notice takes no reply from the queue, only its tick.
  const std::vector<std::pair<MessageRequest, MessageAnswer>> cases = {
      {notice, {Reply::Ok, true}},
      {question, {Reply::Yes, false}},
      {question, {Reply::No, false}},
      {{"Save Game?", "", Buttons::YesNoCancel, false}, {Reply::Cancel, false}},
      {notice, {Reply::Ok, false}},
  };
  for (const auto& [request, answer] : cases) {
    const MessageAnswer got = dialogs.Message(request);
    EXPECT_EQ(got.reply, answer.reply) << request.title;
    EXPECT_EQ(got.dontShowAgain, answer.dontShowAgain) << request.title;
  }
  EXPECT_EQ(dialogs.Number("RNG Seed", "", 7), std::nullopt);
  EXPECT_EQ(dialogs.Number("RNG Seed", "", 7), Currency(7));
  EXPECT_EQ(dialogs.Settle(SettleNotice{}), std::nullopt);
  EXPECT_EQ(dialogs.FileName("Save Game File As", "*.crp", FileMode::Save), std::nullopt);
  EXPECT_EQ(dialogs.messages.size(), cases.size() + 2);
  EXPECT_EQ(dialogs.filesAsked.at(0).pattern, "*.crp");
}

}  // namespace
