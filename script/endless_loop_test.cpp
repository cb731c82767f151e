// Scripts that loop: ended by the pass limit with the lines named, and found
// by the check where no condition can leave them.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "engine/roll.h"
#include "engine/table_for_test.h"
#include "script/interpreter.h"
#include "script/loop_check.h"
#include "script/text_form.h"
#include "script/script_file.h"
#include "test_paths.h"

namespace {

Script FromText(const std::string& text) {
  Script s;
  std::string error;
  EXPECT_TRUE(ReadScriptText(text, s, error)) << error;
  return s;
}

TEST(EndlessLoop, APassThatLoopsIsAbortedNamingItsLines) {
  const std::filesystem::path cases = DICEMILL_SOURCE_DIR "/tests/reliability";
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(cases)) {
    const std::string name = entry.path().filename().string();
    const bool loops = name.find("loop") != std::string::npos || name.find("hang") != std::string::npos;
    if (entry.path().extension() != ".txt" || !loops)
      continue;
    ++files;
    TestTable t;
    const FileStatus loaded = LoadScriptFile(entry.path().string(), t.g.AutoBet);
    ASSERT_TRUE(loaded) << loaded.FirstMessage();
    t.g.HyperDriveOn = true;
    t.g.KeepRolling = true;
    t.g.AutoBetActivated = true;
    t.g.Die1 = 3, t.g.Die2 = 4;
    RollDice(t.g);
    const auto abort = std::find_if(t.ui.messages.begin(), t.ui.messages.end(),
                                    [](const RecordedMessage& m) { return m.title == "Auto-Bet Abort"; });
    ASSERT_NE(abort, t.ui.messages.end()) << name;
    EXPECT_NE(abort->text.find("This pass ran more than 1,000,000 lines without ending: it keeps running line"),
              std::string::npos)
        << name << ": " << abort->text;
    EXPECT_FALSE(t.g.AutoBetRunning);
  }
  EXPECT_EQ(files, 14);

  TestTable t;
  t.g.AutoBet = FromText("Label \"A\"\nWhen\n  On each roll\nthen\n  Go to \"A\"\n");
  t.g.HyperDriveOn = true;
  t.g.RollCounts[0] = 1;  // a roll since the last pass
  RunAutoBet(t.g);
  ASSERT_EQ(t.ui.messages.size(), 1u);
  EXPECT_EQ(t.ui.messages[0].text,
            "The following error has caused Auto-Betting to abort at line #5:\r\rThis pass ran more than 1,000,000 "
            "lines without ending: it keeps running lines 1 to 5.\r\rPress help for more information.");
  EXPECT_EQ(t.g.StopReason, StopReason::ScriptError);
}

TEST(EndlessLoop, LineListsReadAsPhrases) {
  const struct {
    std::vector<int> lines;
    const char* text;
  } cases[] = {
      {{4}, "line 4"},
      {{1, 2, 3}, "lines 1 to 3"},
      {{1, 3}, "lines 1 and 3"},
      {{1, 2, 5, 7, 8, 9}, "lines 1 to 2, 5 and 7 to 9"},
  };
  for (const auto& c : cases) EXPECT_EQ(LineListText(c.lines), c.text);
}

TEST(EndlessLoop, TheCheckFindsLoopsNoConditionCanLeave) {
  const struct {
    const char* script;
    int warnedLine;  // 0: no warning
  } cases[] = {
      {"Label \"A\"\nDo this\n  Bet $5 on Field\n  Go to \"A\"\n", 4},  // unconditional
      {"Label \"A\"\nWhen\n  On each roll\nthen\n  Gosub \"A\"\n", 5},  // nothing between changes the table
      {"Label \"A\"\nWhile\n  Bankroll is less than $100\nthen\n  Bet $5 on Field\n  Go to \"A\"\n", 0},
      {"Label \"A\"\nWhile\n  Bankroll is less than $100\nthen\n  Go to \"B\"\nDo this\n  Go to \"A\"\nLabel \"B\"\n"
       "Do this\n  Bet $5 on Field\n", 0},  // a way out before the jump back
      {"Do this\n  Go to \"A\"\nLabel \"A\"\nDo this\n  Bet $5 on Field\n", 0},  // forward
  };
  for (const auto& c : cases) {
    const std::optional<ScriptFault> loop = FindEndlessLoop(FromText(c.script));
    EXPECT_EQ(loop ? loop->Line : 0, c.warnedLine) << c.script;
    if (loop) {
      EXPECT_EQ(loop->Title, "Endless Loop");
    }
  }
}

}  // namespace
