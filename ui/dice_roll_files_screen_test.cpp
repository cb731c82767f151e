#include "ui/dice_roll_files_screen.h"

#include <QAction>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <fstream>
#include <gtest/gtest.h>

#include "engine/dice_roll_files.h"
#include "store/file_bytes_for_test.h"
#include "ui/dice_button.h"
#include "ui/roll_list_view.h"
#include "ui/screen_desk_for_test.h"

namespace {

struct RollFileDesk : ScreenDesk {
  DiceRollFilesScreen screen{table, dialogs};
  RollFileDesk() { screen.show(); }

  template <class T = QWidget>
  T* Control(const QString& name) {
    T* control = screen.findChild<T*>(name);
    EXPECT_TRUE(control) << name.toStdString();
    return control;
  }
  void Trigger(const QString& menu) { Control<QAction>(menu)->trigger(); }
  void Open(const char* name) {
    dialogs.files.push_back(PathOf(name));
    Trigger(QStringLiteral("mnuNewOpen"));
  }
  void ClickRoll(int64_t roll, Qt::KeyboardModifiers keys = {}) {
    RollListView* list = screen.List();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, keys, list->RowRect(roll).center());
  }
  void Enter(int die1, int die2) {
    QTest::mouseClick(Control(QStringLiteral("cmdRollNumbers%1").arg((die1 - 1) * 6 + die2 - 1)), Qt::LeftButton);
  }
  // The file's rolls as "12 66 ...": die 1 then die 2.
  std::string Rolls(const char* name) const {
    std::string words;
    for (char byte : ReadBytes(PathOf(name))) {
      if (!words.empty()) words += ' ';
      words += std::to_string(Die1Of(static_cast<uint8_t>(byte))) + std::to_string(Die2Of(static_cast<uint8_t>(byte)));
    }
    return words;
  }
};

TEST(DiceRollFilesScreen, RecordedRollsCopiedThreeToFiveAndPastedAtTheStart) {
  RollFileDesk d;
  EXPECT_EQ(d.screen.windowTitle(), QStringLiteral("Dice Roll Files"));
  d.Open("night.rol");
  EXPECT_EQ(d.screen.windowTitle(), QStringLiteral("Dice Roll Files (night.rol)"));
  d.Control<QRadioButton>(QStringLiteral("optRecorderStatus1"))->click();
  const std::pair<int, int> pairs[] = {{1, 1}, {1, 2}, {1, 3}, {1, 4}, {1, 5}, {1, 6}, {2, 1}, {2, 2}, {2, 3}, {2, 4}};
  for (const auto& [die1, die2] : pairs) d.table.PadRoll(die1, die2);
  EXPECT_EQ(d.Rolls("night.rol"), "11 12 13 14 15 16 21 22 23 24");
  EXPECT_EQ(d.Control<QLabel>(QStringLiteral("lblLastRollNum"))->text(), QStringLiteral("10"));
  d.Control<QRadioButton>(QStringLiteral("optRecorderStatus0"))->click();

  d.ClickRoll(3);
  d.ClickRoll(5, Qt::ShiftModifier);
  EXPECT_EQ(d.Control<QLabel>(QStringLiteral("lblSelectedRolls"))->text(), QStringLiteral("#3 to #5 (3 rolls)"));
  d.Trigger(QStringLiteral("mnuCopy"));
  d.ClickRoll(1);
  d.Trigger(QStringLiteral("mnuPaste"));
  EXPECT_EQ(d.Rolls("night.rol"), "13 14 15 11 12 13 14 15 16 21 22 23 24");
  EXPECT_EQ(d.Control<QLabel>(QStringLiteral("lblTotalNumRolls"))->text(), QStringLiteral("13"));

  d.Trigger(QStringLiteral("mnuClose"));
  EXPECT_EQ(d.screen.windowTitle(), QStringLiteral("Dice Roll Files"));
  EXPECT_FALSE(d.Control<QAction>(QStringLiteral("mnuPaste"))->isEnabled());
}

// Each case starts from the rolls 11 12 13 14 15, entered by hand, and acts
// as the player would: "at N" clicks roll N, "to N" shift-clicks it, "key"
// presses a key on the list, "enter" clicks a pair, "menu" chooses an item.
TEST(DiceRollFilesScreen, EditsByMouseKeysAndMenusGiveTheFileExpected) {
  struct Case {
    std::vector<std::string> steps;
    const char* rolls;
  };
  const Case cases[] = {
      {{"at 2", "enter 66"}, "11 66 13 14 15"},
      {{"option optInsertRolls1", "at 2", "enter 66"}, "11 66 12 13 14 15"},
      {{"at 6", "enter 66"}, "11 12 13 14 15 66"},
      {{"at 2", "to 3", "menu mnuDelete"}, "11 14 15"},
      {{"at 5", "to 4", "menu mnuCut", "at 1", "menu mnuPaste"}, "14 15 11 12 13"},
      {{"at 1", "key Down", "key Down", "key Shift+Down", "menu mnuDelete"}, "11 12 14 15"},
      {{"key End", "key Shift+Up", "key Shift+Up", "menu mnuCut", "key Home", "menu mnuPaste"}, "14 15 11 12 13"},
      {{"at 2", "import 1 2 x 3 4 5"}, "11 12 34 12 13 14 15"},
      {{"menu mnuSelectAll", "menu mnuDelete"}, ""},
  };
  for (const Case& c : cases) {
    RollFileDesk d;
    d.Open("edit.rol");
    for (int die2 = 1; die2 <= 5; ++die2) d.Enter(1, die2);
    for (const std::string& step : c.steps) {
      const std::string verb = step.substr(0, step.find(' '));
      const std::string rest = step.substr(step.find(' ') + 1);
      const QString arg = QString::fromStdString(rest);
      if (verb == "at" || verb == "to") {
        d.ClickRoll(std::stoll(rest), verb == "to" ? Qt::ShiftModifier : Qt::NoModifier);
      } else if (verb == "key") {
        const QKeySequence key(arg);
        QTest::keyClick(d.screen.List(), key[0].key(), key[0].keyboardModifiers());
      } else if (verb == "enter") {
        d.Enter(rest[0] - '0', rest[1] - '0');
      } else if (verb == "option") {
        d.Control<QRadioButton>(arg)->click();
      } else if (verb == "menu") {
        d.Trigger(arg);
      } else if (verb == "import") {
        WriteBytes(d.PathOf("dice.txt"), rest);
        d.dialogs.files.push_back(d.PathOf("dice.txt"));
        d.Trigger(QStringLiteral("mnuPasteFromTextFile"));
      }
    }
    EXPECT_EQ(d.Rolls("edit.rol"), c.rolls) << ::testing::PrintToString(c.steps);
    EXPECT_TRUE(d.dialogs.messages.empty()) << d.dialogs.messages.front().text;
  }
}

// The pages of a PDF file, as its page objects.
int PdfPages(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return -1;
  const QByteArray pdf = file.readAll();
  if (!pdf.startsWith("%PDF")) return -1;
  return static_cast<int>(pdf.count("/Type /Page\n") + pdf.count("/Type /Page\r"));
}

TEST(DiceRollFilesScreen, PrintsAllOrSelectedRollsInTheFontSizeAfterSayingHowManyPages) {
  struct Case {
    const char* name;
    int rolls;
    bool selectedOnly;
    int fontSize;
    Reply ready;
    std::string count;  // as announced; empty when there is nothing to print
    int pages;          // announced and printed; 0 when nothing is printed
  };
  const Case cases[] = {
      {"empty file", 0, false, 10, Reply::Yes, "", 0},
      {"all", 240, false, 10, Reply::Yes, "240", 1},
      {"selected", 240, true, 10, Reply::Yes, "3", 1},
      {"large type", 2400, false, 36, Reply::Yes, "2,400", 0},
      {"not ready", 240, false, 10, Reply::No, "240", 0},
  };
  for (const Case& c : cases) {
    RollFileDesk d;
    d.Open("print.rol");
    for (int roll = 0; roll < c.rolls; ++roll) d.table.EnterRoll(roll % 6 + 1, roll / 6 % 6 + 1);
    d.table.SetRollPosition(4, 7);
    d.Control<QCheckBox>(QStringLiteral("chkPrintSelectedRolls"))->setChecked(c.selectedOnly);
    d.Control<QLineEdit>(QStringLiteral("txtFontSize"))->setText(QString::number(c.fontSize));
    const QString pdf = d.folder.filePath(QStringLiteral("rolls.pdf"));
    d.dialogs.printFiles.push_back(pdf.toStdString());
    d.dialogs.replies.push_back(c.ready);
    d.Control<QPushButton>(QStringLiteral("cmdPrint"))->click();

    ASSERT_FALSE(d.dialogs.messages.empty()) << c.name;
    const std::string said = d.dialogs.messages.back().text;
    if (c.count.empty()) {
      EXPECT_EQ(said, "There are no dice rolls to print.") << c.name;
      EXPECT_TRUE(d.dialogs.printersAsked.empty()) << c.name;
      continue;
    }
    EXPECT_EQ(said.rfind("Number of rolls to be printed: " + c.count + "\r\r", 0), 0u) << said;
    const size_t at = said.find("should result in ") + 17;
    const int announced = std::stoi(said.substr(at));
    const int printed = PdfPages(pdf);
    if (c.ready == Reply::No) {
      EXPECT_EQ(printed, -1) << c.name;
    } else {
      // Large type takes more than one page, and the count said is the count printed.
      EXPECT_EQ(printed, announced) << c.name;
      EXPECT_TRUE(c.pages == 0 ? announced > 1 : announced == c.pages) << c.name << " " << announced;
    }
  }
}

TEST(DiceRollFilesScreen, NewOpenAndCopyToAcceptAnyNameWithoutAskingToReplace) {
  RollFileDesk d;
  d.Open("new.rol");
  d.dialogs.files.push_back(d.PathOf("copy.rol"));
  d.Trigger(QStringLiteral("mnuCopyToRollFile"));
  ASSERT_EQ(d.dialogs.filesAsked.size(), 2u);
  for (const auto& asked : d.dialogs.filesAsked) EXPECT_EQ(asked.mode, FileMode::OpenOrCreate) << asked.title;
}

TEST(DiceRollFilesScreen, WithoutAFileEntriesAndTheRecorderSaySoAndStayOff) {
  const std::pair<const char*, const char*> cases[] = {
      {"cmdRollNumbers0", "Record Dice Rolls"},
      {"cmdRandomNum", "Record Dice Rolls"},
      {"optRecorderStatus1", "Record Dice Rolls During Game Play"},
      {"optRecorderStatus2", "Playback Dice Rolls During Game Play"},
  };
  RollFileDesk d;
  for (const auto& [control, title] : cases) {
    d.dialogs.messages.clear();
    QTest::mouseClick(d.Control(QString::fromLatin1(control)), Qt::LeftButton);
    ASSERT_EQ(d.dialogs.messages.size(), 1u) << control;
    EXPECT_EQ(d.dialogs.messages[0].title, title);
    EXPECT_EQ(d.dialogs.messages[0].text, "You need to open a file first.");
    EXPECT_TRUE(d.Control<QRadioButton>(QStringLiteral("optRecorderStatus0"))->isChecked()) << control;
  }
}

TEST(DiceRollFilesScreen, AHundredMillionRollsOpenAndScrollToTheEndReadingOnlyTheRowsInView) {
  constexpr int64_t kRolls = 100'000'000;
  RollFileDesk d;
  {
    std::ofstream out(d.PathOf("huge.rol"), std::ios::binary);
    const std::string block(1 << 20, static_cast<char>(RollByte(1, 1)));
    for (int64_t written = 0; written < kRolls; written += static_cast<int64_t>(block.size()))
      out.write(block.data(), static_cast<std::streamsize>(std::min<int64_t>(block.size(), kRolls - written)));
  }
  QElapsedTimer clock;
  clock.start();
  d.Open("huge.rol");
  RollListView* list = d.screen.List();
  QTest::keyClick(list, Qt::Key_End);
  d.Trigger(QStringLiteral("mnuAll2"));
  list->viewport()->repaint();
  EXPECT_LT(clock.elapsed(), 2000);
  EXPECT_EQ(d.Control<QLineEdit>(QStringLiteral("txtNextRollNum"))->text(), QStringLiteral("100000001"));
  EXPECT_GE(list->TopRoll() + list->VisibleRows() - 1, kRolls + 1);  // the row past the end is in view
  EXPECT_LT(list->BytesRead(), 1000);
}

}  // namespace
