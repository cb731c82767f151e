// The play session's Hot-Keys and the questions of its stop.

#include <gtest/gtest.h>

#include <fstream>

#include "cli/session_for_test.h"
#include "store/hot_keys_file.h"
#include "store/small_files.h"

namespace fs = std::filesystem;

namespace {

// The titles and replies of the messages printed, in order.
std::vector<std::pair<std::string, std::string>> Asked(const std::vector<Json>& objects) {
  std::vector<std::pair<std::string, std::string>> asked;
  for (const Json& o : objects)
    if (o.contains("message")) asked.emplace_back(o["message"]["title"], o["message"]["reply"]);
  return asked;
}

using Asks = std::vector<std::pair<std::string, std::string>>;

}  // namespace

TEST(PromptCommands, HotKeysAreDefinedListedRunAndCleared) {
  Session s;
  std::ofstream(s.Path("press.txt")) << "Do this\n  Bet $10 on Pass Line\n";
  ASSERT_TRUE(s.Run("script \"" + s.Path("press.txt") + "\"").at(0).contains("script"));
  s.Run("hotkey set p \"" + s.Path("nothing.bet") + "\" \"not yet\"");
  EXPECT_EQ(s.Error("hotkey set 1 x.bet " + std::string(101, 'l')),
            "hotkey: FILE (as a path from the data folder, or whole) and LABEL take at most 100 characters each");
  EXPECT_EQ(s.Error("hotkey set ab x.bet"), "hotkey: 'ab' is no Hot-Key: A..Z or 0..9");
  EXPECT_EQ(s.Error("hotkey #"), "hotkey: '#' is no Hot-Key: A..Z or 0..9");
  EXPECT_EQ(s.Error("hotkey q"), "hotkey: Ctrl Q is not defined");
  EXPECT_EQ(s.Error("hotkey clear q"), "hotkey: Ctrl Q is not defined");
  EXPECT_EQ(s.Error("hotkey list now"), "hotkey: expected: hotkey K|list|set K FILE [LABEL]|clear K");

  const Json list = s.Only("hotkey list", "hotkeys");
  ASSERT_EQ(list.size(), 1u);
  EXPECT_EQ(list[0]["key"], "P");
  EXPECT_EQ(list[0]["label"], "not yet");
  EXPECT_TRUE(fs::exists(s.Path(kHotKeysFileName)));  // saved as defined

  // The bound file is refused in its own words; the script stays.
  auto objects = s.Run("hotkey P");
  ASSERT_EQ(objects.size(), 2u);
  EXPECT_EQ(objects[0]["message"]["title"], "Error");
  EXPECT_TRUE(objects[1].contains("error"));
  EXPECT_EQ(s.play.game().AutoBet.FileName, s.Path("press.txt"));

  // Bound to a real file, it runs once and the text-form script comes back.
  std::ofstream(s.Path("field.txt")) << "Do this\n  Bet $5 on Field\n";
  s.Run("script \"" + s.Path("field.txt") + "\"");
  ASSERT_TRUE(fs::exists(s.Path(kActiveScriptName)));
  fs::copy_file(s.Path(kActiveScriptName), s.Path("field.bet"));
  s.Run("script \"" + s.Path("press.txt") + "\"");
  s.Run("hotkey set P \"" + s.Path("field.bet") + "\"");
  objects = s.Run("hotkey p");
  ASSERT_EQ(objects.size(), 2u);
  EXPECT_EQ(objects[0]["steps"], "Hot-Key");  // a Hot-Key pass always opens with its banner
  EXPECT_EQ(objects[1]["hotkey"]["key"], "P");
  EXPECT_EQ(s.State()["bets"].size(), 1u);  // the Field bet, and no Pass Line
  EXPECT_EQ(s.play.game().AutoBet.FileName, s.Path("press.txt"));
  s.Run("hotkey clear p");
  EXPECT_TRUE(s.Only("hotkey list", "hotkeys").empty());

  // A relative path resolves from the working folder, as every other path does.
  const fs::path here = fs::current_path();
  fs::current_path(s.Path(""));
  s.Run("hotkey set f field.bet");
  fs::current_path("/");
  EXPECT_EQ(s.Run("hotkey f").back()["hotkey"]["file"], "field.bet");  // kept from the data folder
  fs::current_path(here);
}

TEST(PromptCommands, QuitAsksAboutUnsavedWork) {
  {  // Nothing unsaved: quit goes at once.
    Session s;
    EXPECT_FALSE(s.play.RunLine("quit"));
    EXPECT_TRUE(s.out.str().empty());
    EXPECT_FALSE(fs::exists(s.Path(kActiveScriptName)));
  }
  Session s;
  ASSERT_TRUE(fs::exists(s.Path(kActiveScriptName)));  // written at start-up
  s.Run("bet 43 5\nprob set 1 1 3");
  EXPECT_TRUE(s.play.game().GameChanged);

  // No reply queued: the game's question takes Cancel and the session goes on.
  EXPECT_EQ(Asked(s.Run("quit")), (Asks{{"Save Game?", "cancel"}}));
  EXPECT_FALSE(s.play.Over());

  // Yes on a game with no name of its own opens the file dialog; its Cancel
  // (or a reply that is no file) keeps the session going too.
  EXPECT_EQ(Asked(s.Run("answer yes\nquit")), (Asks{{"Save Game?", "yes"}, {"Save Game File As", "cancel"}}));
  EXPECT_EQ(Asked(s.Run("answer yes no\nquit")), (Asks{{"Save Game?", "yes"}, {"Save Game File As", "cancel"}}));
  EXPECT_FALSE(s.play.Over());
  EXPECT_EQ(s.Error("answer file:"), "answer: 'file:' is not a reply: yes, no, cancel, an amount, take, same, press, "
                                     "double, parlay, samebet, bet, none, remainder or file:PATH");

  // The probabilities come last; their dialog takes the path as typed.
  const std::string prob = s.Path("Mine Table.prb");
  EXPECT_EQ(Asked(s.Run("answer no yes \"FILE:" + prob + "\"\nquit")),
            (Asks{{"Save Game?", "no"}, {"Save Probabilities?", "yes"}, {"Save Probability File As", prob}}));
  EXPECT_TRUE(s.play.Over());
  EXPECT_TRUE(fs::exists(prob));
  EXPECT_EQ(s.play.game().ProbFileName, prob);
  EXPECT_FALSE(fs::exists(s.Path(kActiveScriptName)));
  s.play.EndOfInput();  // the stop ran once
  EXPECT_TRUE(s.Run("").empty());
}

TEST(PromptCommands, EndOfInputAsksEveryQuestionOnce) {
  Session s;
  s.Run("set TableMinimum 1");  // no change: nothing to save
  EXPECT_FALSE(s.play.game().GameChanged);
  const std::string roll = "\"" + s.Path("r.rol") + "\"";
  for (const std::string& line : std::vector<std::string>{"set TableMinimum 5", "chip 1 2", "payoff 4 1 1", "field 3 2 1", "seed 7",
                                  "bet 33 6", "call off all", "roll 3 4", "atm withdraw 10", "autobet on",
                                  "dicefile open " + roll, "dicefile status record", "dicefile close",
                                  "prob reset"}) {
    s.Staged().GameChanged = false;
    s.Run(line);
    EXPECT_TRUE(s.play.game().GameChanged) << line;
  }
  s.Staged().ScriptDirty = true;
  s.Run("answer cancel");
  s.out.str("");
  s.play.EndOfInput();
  const std::string printed = s.out.str();
  EXPECT_NE(printed.find("Save Game?"), std::string::npos);
  EXPECT_NE(printed.find("Save Auto-Bets?"), std::string::npos);  // a Cancel can't hold up the end
  EXPECT_FALSE(fs::exists(s.Path(kActiveScriptName)));
}

TEST(PromptCommands, NewAsksAboutAnUnsavedGameFirst) {
  Session s;
  EXPECT_TRUE(Asked(s.Run("new")).empty());  // nothing to save yet
  s.Run("bet 49 5\nroll 3 4");
  // Cancel (nothing queued) keeps the game as it is.
  EXPECT_EQ(Asked(s.Run("new")), (Asks{{"Save Game?", "cancel"}}));
  EXPECT_EQ(s.State()["rollCount"], 1);
  EXPECT_EQ(Asked(s.Run("answer no\nnew")), (Asks{{"Save Game?", "no"}}));
  EXPECT_EQ(s.State()["rollCount"], 0);
}
