#include "store/save_prompts.h"

#include <gtest/gtest.h>

#include <fstream>

#include "cli/temp_folder_for_test.h"
#include "engine/dice_roll_files.h"
#include "engine/table_commands.h"
#include "script/interpreter.h"
#include "script/text_form.h"
#include "store/bet_file.h"
#include "engine/file_errors.h"
#include "store/game_file.h"
#include "store/prompt_ui_for_test.h"
#include "store/small_files.h"

namespace fs = std::filesystem;

namespace {

struct Fixture {
  TempFolder folder;
  Game g;
  AnsweringUi ui;
  Fixture() {
    g.Ui = &ui;
    g.DataFolder = folder.path().string();
    ScriptLine comment;
    comment.Kind = line_kind::kComment;
    comment.Text = "'a comment";
    g.AutoBet.Lines = {comment};
  }
  std::string Path(const std::string& name) const { return (folder.path() / name).string(); }
};

// One pass of a script in its text form.
void Pass(TestTable& t, const std::string& text) {
  std::string error;
  ASSERT_TRUE(ReadScriptText(text, t.g.AutoBet, error)) << error;
  RunAutoBet(t.g);
}

struct PromptCase {
  const char* name;
  void (*query)(Game&);
  bool Game::*dirty;
  const char* title;
  const char* text;
  const char* dialogTitle;
  const char* pattern;
  std::string Game::*fileName;  // nullptr: the script's own
};

std::string& FileNameOf(Game& g, const PromptCase& c) { return c.fileName ? g.*c.fileName : g.AutoBet.FileName; }

const PromptCase kPrompts[] = {
    {"game", QuerySaveGame, &Game::GameChanged, "Save Game?",
     "Your current game has not been saved.\r\rDo you want to save it now?", "Save Game File As", "*.crp",
     &Game::GameFileName},
    {"script", QuerySaveAutoBets, &Game::ScriptDirty, "Save Auto-Bets?",
     "Your current logged Auto-Bets\rhave not been saved.\rDo you want to save them now?", "Save Auto-Bet File As",
     "*.bet", nullptr},
    {"script editor", QuerySaveAutoBetsInEditor, &Game::ScriptDirty, "Save Auto-Bets?",
     "Your current logged bets have not been saved.\rDo you want to save them now?", "Save Auto-Bet File As", "*.bet",
     nullptr},
    {"probabilities", QuerySaveProbability, &Game::ProbModified, "Save Probabilities?",
     "Your current probabilities (listed on the\rconfiguration screen) have not been saved.\rDo you want to save "
     "them now?",
     "Save Probability File As", "*.prb", &Game::ProbFileName},
};

}  // namespace

TEST(SavePrompts, EveryButtonOfEveryPrompt) {
  for (const PromptCase& c : kPrompts) {
    SCOPED_TRACE(c.name);
    const std::string ext = std::string(c.pattern).substr(1);
    {  // Nothing to save: a go-ahead, nothing asked.
      Fixture f;
      f.g.MsgReply = Answer::Cancel;
      c.query(f.g);
      EXPECT_EQ(f.g.MsgReply, Answer::None);
      EXPECT_TRUE(f.ui.messages.empty());
    }
    for (const Reply reply : {Reply::No, Reply::Cancel}) {
      Fixture f;
      f.g.*c.dirty = true;
      f.ui.replies = {reply};
      c.query(f.g);
      EXPECT_EQ(f.g.MsgReply, reply == Reply::No ? Answer::No : Answer::Cancel);
      EXPECT_TRUE(f.g.*c.dirty);
      ASSERT_EQ(f.ui.messages.size(), 1u);
      EXPECT_EQ(f.ui.messages[0], (RecordedMessage{c.title, c.text}));
      EXPECT_TRUE(f.ui.dialogs.empty());
    }
    for (const std::string& name : {std::string(), std::string("default") + ext, std::string("untitled")}) {
      // No name of its own: the file dialog, whose Cancel is the prompt's.
      Fixture f;
      f.g.*c.dirty = true;
      FileNameOf(f.g, c) = name.empty() ? "" : f.Path(name);
      f.ui.replies = {Reply::Yes};
      c.query(f.g);
      EXPECT_EQ(f.g.MsgReply, Answer::Cancel) << name;
      EXPECT_TRUE(f.g.*c.dirty);
      EXPECT_EQ(f.ui.dialogs, (std::vector<RecordedMessage>{{c.dialogTitle, c.pattern}}));
    }
    {  // A save that fails says so, keeps the work unsaved and holds up what follows.
      Fixture f;
      f.g.*c.dirty = true;
      FileNameOf(f.g, c) = f.Path("no such folder/x" + ext);
      f.ui.replies = {Reply::Yes};
      c.query(f.g);
      EXPECT_EQ(f.g.MsgReply, Answer::Cancel);
      EXPECT_TRUE(f.g.*c.dirty);
      EXPECT_FALSE(fs::exists(FileNameOf(f.g, c)));
      EXPECT_EQ(f.ui.messages.back(),
                (RecordedMessage{"Error", FileErrorText(FileNameOf(f.g, c), "could not be written: no such file or directory")}));
    }
    {  // Yes with a name of its own saves there.
      Fixture f;
      f.g.*c.dirty = true;
      FileNameOf(f.g, c) = f.Path("mine" + ext);
      f.ui.replies = {Reply::Yes};
      c.query(f.g);
      EXPECT_EQ(f.g.MsgReply, Answer::Yes);
      EXPECT_FALSE(f.g.*c.dirty);
      EXPECT_TRUE(fs::exists(f.Path("mine" + ext)));
      EXPECT_TRUE(f.ui.dialogs.empty());
    }
    {  // Yes through the dialog saves under the chosen name.
      Fixture f;
      f.g.*c.dirty = true;
      FileNameOf(f.g, c) = "";
      f.ui.replies = {Reply::Yes};
      f.ui.names = {f.Path("chosen" + ext)};
      c.query(f.g);
      EXPECT_EQ(f.g.MsgReply, Answer::Yes);
      EXPECT_FALSE(f.g.*c.dirty);
      EXPECT_EQ(FileNameOf(f.g, c), f.Path("chosen" + ext));
      EXPECT_TRUE(fs::exists(f.Path("chosen" + ext)));
    }
  }
}

TEST(SavePrompts, StopAsksGameScriptProbabilitiesThenRemovesWorkFiles) {
  Fixture f;
  f.g.GameChanged = f.g.ScriptDirty = f.g.ProbModified = true;
  ASSERT_TRUE(WriteActiveScript(f.g));
  std::ofstream(f.Path(kClipboardName)) << "xx";

  f.ui.replies = {Reply::No, Reply::Cancel};  // the script's Cancel stops the stop
  EXPECT_FALSE(StopProgram(f.g));
  EXPECT_EQ(f.ui.messages.size(), 2u);
  EXPECT_TRUE(fs::exists(f.Path(kActiveScriptName)));
  EXPECT_TRUE(fs::exists(f.Path(kClipboardName)));

  f.ui.messages.clear();
  f.ui.replies = {Reply::Cancel};  // with no way back, every question is still asked
  EXPECT_TRUE(StopProgram(f.g, false));
  ASSERT_EQ(f.ui.messages.size(), 3u);
  EXPECT_EQ(f.ui.messages[0].title, "Save Game?");
  EXPECT_EQ(f.ui.messages[1].title, "Save Auto-Bets?");
  EXPECT_EQ(f.ui.messages[2].title, "Save Probabilities?");
  EXPECT_FALSE(fs::exists(f.Path(kActiveScriptName)));
  EXPECT_FALSE(fs::exists(f.Path(kClipboardName)));

  Fixture clean;  // nothing unsaved: nothing asked
  EXPECT_TRUE(QuerySaveAll(clean.g));
  EXPECT_TRUE(clean.ui.messages.empty());
}

TEST(SavePrompts, AStopDuringARunAsksToEndItFirst) {
  const struct {
    bool script, hyper;
    std::vector<Reply> replies;
    bool stops;
    std::vector<std::string> titles;
  } cases[] = {
      {true, false, {Reply::No}, false, {"Auto-Bet Active"}},
      {true, false, {Reply::Yes}, true, {"Auto-Bet Active"}},
      {false, true, {Reply::No}, false, {"Hyper-Drive Active"}},
      {true, true, {Reply::Yes, Reply::Yes}, true, {"Auto-Bet Active", "Hyper-Drive Active"}},
      {true, true, {Reply::Yes, Reply::No}, false, {"Auto-Bet Active", "Hyper-Drive Active"}},
  };
  for (const auto& c : cases) {
    Fixture f;
    f.g.AutoBetRunning = c.script;
    f.g.HyperDriveOn = c.hyper;
    f.g.KeepRolling = true;
    f.ui.replies.assign(c.replies.begin(), c.replies.end());
    EXPECT_EQ(StopProgram(f.g), c.stops);
    EXPECT_EQ(f.g.KeepRolling, !c.stops);
    std::vector<std::string> titles;
    for (const RecordedMessage& m : f.ui.messages) titles.push_back(m.title);
    EXPECT_EQ(titles, c.titles);
  }
  Fixture f;
  EXPECT_TRUE(StopProgram(f.g));  // the texts, once
  f.g.AutoBetRunning = f.g.HyperDriveOn = true;
  f.ui.replies = {Reply::Yes, Reply::Yes};
  StopProgram(f.g);
  EXPECT_EQ(f.ui.messages[0].text, "Do you want to interrupt Auto-Betting? ");
  EXPECT_EQ(f.ui.messages[1].text, "Do you want to stop Hyper-Drive?");
}

TEST(SavePrompts, DirtyFlagsFollowTheChanges) {
  TestTable t;
  EXPECT_FALSE(t.g.GameChanged);
  const struct {
    const char* what;
    std::function<void(TestTable&)> change;
    bool dirties;
  } cases[] = {
      {"a bet placed", [](TestTable& table) { table.Place(bet::kPassLine, 5); }, true},
      {"nothing to take down", [](TestTable& table) { table.Place(bet::kPlaceBase + 3, -5); }, false},
      {"a Chip-Stack", [](TestTable& table) { table.Place(101, 5); }, true},
      {"a bet called off", [](TestTable& table) { table.Stand(bet::kPlaceBase + 2, 6); table.g.GameChanged = false; CallBet(table.g, bet::kPlaceBase + 2, kToolCallOff); }, true},
      {"a roll", [](TestTable& table) { table.Roll(2, 3); }, true},
      {"a script's setting", [](TestTable& table) { Pass(table, "Do this\n  Set Auto-Take Full Odds on\n"); }, true},
      {"a script's comment", [](TestTable& table) { Pass(table, "'nothing\n"); }, false},
  };
  for (const auto& c : cases) {
    t.g.GameChanged = false;
    c.change(t);
    EXPECT_EQ(t.g.GameChanged, c.dirties) << c.what;
  }
  NewGame(t.g, false);
  EXPECT_FALSE(t.g.GameChanged);

  // The script: a save clears its flag, a failed one keeps it.
  TempFolder folder;
  t.g.ScriptDirty = true;
  EXPECT_FALSE(SaveAutoBetFile(t.g, (folder.path() / "none" / "x.bet").string()));
  EXPECT_TRUE(t.g.ScriptDirty);
  EXPECT_TRUE(SaveAutoBetFile(t.g, (folder.path() / "x.bet").string(), true));  // a copy is no save
  EXPECT_TRUE(t.g.ScriptDirty);
  EXPECT_TRUE(SaveAutoBetFile(t.g, (folder.path() / "y.bet").string()));
  EXPECT_FALSE(t.g.ScriptDirty);
}
