#include "ui/hot_keys_screen.h"

#include <QApplication>
#include <QPushButton>
#include <QTableWidget>
#include <gtest/gtest.h>

#include "engine/game.h"
#include "store/file_bytes_for_test.h"
#include "store/hot_keys_file.h"
#include "ui/screen_desk_for_test.h"

namespace {

// The bindings that "HotKeys.dta" of the desk's folder holds, as "key=file|label".
std::vector<std::string> SavedBindings(const ScreenDesk& desk) {
  std::vector<HotKeyBinding> keys;
  EXPECT_EQ(DecodeHotKeys(ReadBytes(desk.PathOf(kHotKeysFileName)), keys), HotKeysStatus::Ok);
  std::vector<std::string> words;
  for (const HotKeyBinding& k : keys) words.push_back(std::string(1, k.Key) + "=" + k.File + "|" + k.Label);
  return words;
}

QString Shown(const HotKeysScreen& screen, char key, int column) {
  const auto* list = screen.findChild<QTableWidget*>(QStringLiteral("picHotKeys"));
  const int row = key >= 'A' ? key - 'A' : 26 + key - '0';
  return list->item(row, column)->text();
}

TEST(HotKeysScreen, BindingCtrl1WritesTheFileTheStoreReadsBack) {
  ScreenDesk desk;
  const std::string bet = desk.PathOf("molly.bet");
  {
    HotKeysScreen screen(desk.table, desk.dialogs);
    screen.SelectKey('1');
    desk.dialogs.files.push_back(bet);
    screen.findChild<QPushButton*>(QStringLiteral("cmdDefine"))->click();
    ASSERT_EQ(desk.dialogs.filesAsked.size(), 1u);
    EXPECT_EQ(desk.dialogs.filesAsked[0].title, "Select Auto-Bet File for Hot-Key");
    EXPECT_EQ(desk.dialogs.filesAsked[0].pattern, "*.bet");
    EXPECT_EQ(Shown(screen, '1', 0), QStringLiteral("Ctrl 1"));
    EXPECT_EQ(Shown(screen, '1', 1), QStringLiteral("molly.bet"));
    screen.close();
  }
  EXPECT_EQ(SavedBindings(desk), std::vector<std::string>{"1=" + bet + "|"});
}

// Each step acts on the chosen key; the file on disk must follow every one.
TEST(HotKeysScreen, DefineRelabelAndClearAreSavedAsTheyHappen) {
  ScreenDesk desk;
  const std::string a = desk.PathOf("a.bet"), b = desk.PathOf("b.bet");
  const std::string tooLong(kHotKeyFieldBytes + 1, 'x');
  enum class Act { Define, Label, Clear };
  struct Step {
    char key;
    Act act;
    std::optional<std::string> answer;  // the file chosen, or the label typed
    std::vector<std::string> saved;
    const char* message;  // the title of a message the step shows, if any
  };
  const Step steps[] = {
      {'Z', Act::Define, a, {"Z=" + a + "|"}, nullptr},
      {'Z', Act::Label, "Press it", {"Z=" + a + "|Press it"}, nullptr},
      {'Z', Act::Define, b, {"Z=" + b + "|Press it"}, nullptr},  // a new file keeps the note
      {'0', Act::Define, std::nullopt, {"Z=" + b + "|Press it"}, nullptr},  // cancelled
      {'0', Act::Define, std::string(), {"Z=" + b + "|Press it"}, "Hot-Key"},  // no name
      {'0', Act::Define, tooLong, {"Z=" + b + "|Press it"}, "Hot-Key"},
      {'9', Act::Define, a, {"Z=" + b + "|Press it", "9=" + a + "|"}, nullptr},
      {'Z', Act::Clear, std::nullopt, {"9=" + a + "|"}, nullptr},
  };
  HotKeysScreen screen(desk.table, desk.dialogs);
  auto* list = screen.findChild<QTableWidget*>(QStringLiteral("picHotKeys"));
  for (const Step& s : steps) {
    SCOPED_TRACE(std::string(1, s.key) + (s.answer ? " " + s.answer->substr(0, 20) : ""));
    desk.dialogs.messages.clear();
    screen.SelectKey(s.key);
    if (s.act == Act::Define) {
      desk.dialogs.files.push_back(s.answer);
      screen.DefineChosen();
    } else if (s.act == Act::Label) {
      list->item(s.key - 'A', 2)->setText(QString::fromStdString(*s.answer));
      QApplication::processEvents();
    } else {
      screen.findChild<QPushButton*>(QStringLiteral("cmdClear"))->click();
    }
    EXPECT_EQ(SavedBindings(desk), s.saved);
    EXPECT_EQ(desk.dialogs.messages.empty() ? "" : desk.dialogs.messages.front().title,
              s.message ? s.message : "");
  }
  EXPECT_EQ(Shown(screen, 'Z', 1), QString());
  EXPECT_EQ(Shown(screen, '9', 1), QStringLiteral("a.bet"));
}

}  // namespace
