#include "script/hot_key_run.h"

#include <gtest/gtest.h>

#include <fstream>

#include "cli/temp_folder_for_test.h"
#include "engine/table_for_test.h"
#include "script/text_form.h"
#include "store/bet_file.h"
#include "store/hot_keys_file.h"
#include "store/small_files.h"

namespace fs = std::filesystem;

namespace {

std::vector<ScriptLine> Read(const std::string& text) {
  std::vector<ScriptLine> lines;
  std::string error;
  EXPECT_TRUE(ReadScriptText(text, lines, error)) << error;
  return lines;
}

// A table in a data folder, playing a script of its own, with a Hot-Key to a
// file that bets the Pass Line and sets a flag of its own.
struct HotKeyTable : TestTable {
  TempFolder folder;
  HotKeyTable() {
    g.DataFolder = folder.path().string();
    Script bound;
    bound.Lines = Read("Do this\n  Bet $10 on Pass Line\n  Set flag \"hot\" to True\n");
    std::ofstream(folder.path() / "pass.bet", std::ios::binary) << EncodeBetFile(bound, false);
    g.HotKeys = {{'P', "pass.bet", "pass line"}, {'M', "missing.bet", ""}};

    g.AutoBet.Lines = Read("'mine\nWhen\n  Flag \"mine\" is True\nthen\n  Set flag \"mine\" to False\n");
    g.AutoBet.Lines[0].Spare1 = 12;
    g.AutoBet.Lines[1].Spare2 = -3;
    g.AutoBet.Lines[2].Selected = true;  // an editor mark comes back too
    RebuildFlags(g.AutoBet);
    g.AutoBet.Flags[0].FlagValue = -1;
    g.AutoBet.Flags[0].FlagPrevious = -1;
    g.AutoBet.FileName = "/somewhere/mine.bet";
    g.AutoBet.ChipStackNames[3] = "reserve";
    g.ScriptDirty = true;
    g.InitPending = false;
  }
};

void ExpectSameScript(const Script& a, const Script& b) {
  EXPECT_EQ(a.Lines, b.Lines);
  ASSERT_EQ(a.Flags.size(), b.Flags.size());
  for (size_t i = 0; i < a.Flags.size(); ++i) {
    EXPECT_EQ(a.Flags[i].FlagName, b.Flags[i].FlagName);
    EXPECT_EQ(a.Flags[i].FlagValue, b.Flags[i].FlagValue);
    EXPECT_EQ(a.Flags[i].FlagPrevious, b.Flags[i].FlagPrevious);
  }
  EXPECT_EQ(a.FileName, b.FileName);
  EXPECT_EQ(a.ChipStackNames, b.ChipStackNames);
}

}  // namespace

TEST(HotKeyRun, RunsTheBoundFileOnceAndTheScriptComesBack) {
  for (const bool withFolder : {true, false}) {
    SCOPED_TRACE(withFolder ? "from active.tmp" : "no folder: from memory");
    HotKeyTable t;
    if (!withFolder) {
      fs::rename(t.folder.path() / "pass.bet", t.folder.path() / "elsewhere.bet");
      t.g.HotKeys[0].File = (t.folder.path() / "elsewhere.bet").string();
      t.g.DataFolder.clear();
    }
    const Script before = t.g.AutoBet;
    EXPECT_EQ(RunHotKey(t.g, 'p'), HotKeyOutcome::Ran);
    EXPECT_EQ(t.g.BetAmount[bet::kPassLine], Currency(10));  // the bound file ran
    EXPECT_FALSE(t.g.HotKeyRun);
    EXPECT_FALSE(t.g.AutoBetRunning);
    ExpectSameScript(t.g.AutoBet, before);
    EXPECT_TRUE(t.g.ScriptDirty);
    EXPECT_FALSE(t.g.InitPending);
    EXPECT_TRUE(t.ui.messages.empty());
  }
}

TEST(HotKeyRun, UnboundKeysAndRefusedFilesLeaveTheScript) {
  HotKeyTable t;
  const Script before = t.g.AutoBet;
  EXPECT_EQ(RunHotKey(t.g, 'Q'), HotKeyOutcome::NotBound);
  EXPECT_EQ(RunHotKey(t.g, '%'), HotKeyOutcome::NotBound);
  EXPECT_EQ(RunHotKey(t.g, 'M'), HotKeyOutcome::NotOpened);
  ASSERT_EQ(t.ui.messages.size(), 1u);
  EXPECT_EQ(t.ui.messages[0].title, "Error");
  ExpectSameScript(t.g.AutoBet, before);
  EXPECT_FALSE(t.g.InitPending);

  t.g.AutoBetRunning = true;  // a key pressed while a pass is under way
  EXPECT_EQ(RunHotKey(t.g, 'P'), HotKeyOutcome::Busy);
  EXPECT_EQ(t.g.BetAmount[bet::kPassLine], Currency(0));
}
