#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "dice/rng.h"
#include "engine/game.h"

namespace {

// A front end that answers prompts from a queue and remembers what it saw.
class ScriptedFrontEnd : public SilentFrontEnd {
 public:
  std::deque<std::optional<Currency>> answers;
  std::vector<std::string> promptTitles, promptTexts, messageTitles, messageTexts;
  std::vector<Currency> offered;

  std::optional<Currency> AskNumber(const std::string& title, const std::string& text, Currency def) override {
    promptTitles.push_back(title);
    promptTexts.push_back(text);
    offered.push_back(def);
    if (answers.empty()) return std::nullopt;
    auto a = answers.front();
    answers.pop_front();
    return a;
  }
  Reply ShowMessage(const std::string& title, const std::string& text, Buttons) override {
    messageTitles.push_back(title);
    messageTexts.push_back(text);
    return Reply::Ok;
  }
};

void SeedSilently(Game& g, int choice, Currency seed) {
  g.RngChoice = choice;
  g.SeedRequest = seed;
  SeedRNG(g, true);
}

}  // namespace

TEST(SeedRNG, LimitsAreTestedBeforeRounding) {
  Game g;
  SeedSilently(g, 2, 1'000'000);  // too big for #3: dropped without a word
  EXPECT_EQ(g.LastSeed, 0);
  EXPECT_EQ(g.ModSeed, 0);
  SeedSilently(g, 2, Currency::FromDouble(999'999.4));
  EXPECT_EQ(g.LastSeed, 0);
  SeedSilently(g, 2, 999'999);
  EXPECT_EQ(g.LastSeed, 999'999);
  EXPECT_EQ(g.ModSeed, (999'999 * 1366 + 150889) % 714025);

  SeedSilently(g, 0, 0);
  SeedSilently(g, 0, Currency::FromDouble(0.5));
  EXPECT_EQ(g.LastSeed, 999'999);
  EXPECT_EQ(g.Rng.mt.mti, 625);  // still unseeded

  SeedSilently(g, 0, Currency::FromDouble(2.5));  // ties to even
  EXPECT_EQ(g.LastSeed, 2);
  SeedSilently(g, 0, Currency::FromDouble(3.5001));
  EXPECT_EQ(g.LastSeed, 4);
  SeedSilently(g, 0, 2'147'483'647);
  EXPECT_EQ(g.LastSeed, 2'147'483'647);
}

TEST(SeedRNG, OverflowingSeedIsReportedAndSeedsWhatCameBefore) {
  Game g;
  ScriptedFrontEnd ui;
  g.Ui = &ui;
  SeedSilently(g, 5, 2'147'428'875);
  ASSERT_EQ(ui.messageTexts.size(), 1u);
  EXPECT_EQ(ui.messageTitles[0], "Dicemill");
  EXPECT_EQ(ui.messageTexts[0], "Overflow, Error #6 occurred, at: SeedRNG\r");
  EXPECT_EQ(g.Rng.mt.mti, 624);   // #1 half seeded
  EXPECT_EQ(g.Rng.ran1.iff, 0);   // #5 half not
  EXPECT_EQ(g.ModSeed, 2'147'428'875);
  EXPECT_EQ(g.LastSeed, 2'147'428'875);

  SeedSilently(g, 4, 2'147'428'874);
  EXPECT_EQ(g.Rng.ran1.iff, 1);
  EXPECT_EQ(ui.messageTexts.size(), 1u);

  SeedSilently(g, 6, 2'147'332'759);
  EXPECT_EQ(ui.messageTexts.size(), 2u);
  EXPECT_EQ(g.Rng.cokus.left, 0);
  EXPECT_EQ(g.Rng.ran2.iff, 0);
  SeedSilently(g, 3, 2'147'332'758);
  EXPECT_EQ(g.Rng.ran2.iff, 1);
  EXPECT_EQ(ui.messageTexts.size(), 2u);
}

TEST(SeedRNG, PromptAsksUntilTheSeedIsWithinLimits) {
  Game g;
  ScriptedFrontEnd ui;
  g.Ui = &ui;
  g.UserSeedMode = true;
  g.KeepRolling = true;
  g.RngChoice = 2;
  g.LastSeed = 12;
  ui.answers = {Currency(1'000'000), Currency(0), Currency(5)};
  SeedRNG(g, false);
  const std::string request = "Please enter a value between 1 and 999,999 to seed the random number generator:\r";
  ASSERT_EQ(ui.promptTexts.size(), 3u);
  EXPECT_EQ(ui.promptTitles[0], "RNG Seed");
  EXPECT_EQ(ui.promptTexts[0], request);
  EXPECT_EQ(ui.promptTexts[1], "Your seed value is out of limits.\r\r" + request);
  EXPECT_EQ(ui.offered[0], Currency(12));
  EXPECT_FALSE(g.KeepRolling);
  EXPECT_EQ(g.LastSeed, 5);
  EXPECT_EQ(g.SeedRequest, Currency(5));

  // A cancelled prompt seeds nothing.
  g.RngChoice = 0;
  ui.promptTexts.clear();
  SeedRNG(g, false);
  EXPECT_EQ(ui.promptTexts[0], "Please enter a value between 1 and 2,147,483,647 to seed the random number generator:\r");
  EXPECT_EQ(g.LastSeed, 5);
  EXPECT_EQ(g.Rng.mt.mti, 625);

  // A front end that only ever returns the default cannot trap the prompt.
  Game h;
  h.UserSeedMode = true;
  SeedRNG(h, false);  // silent front end, default LastSeed 0
  EXPECT_EQ(h.LastSeed, 0);
}

TEST(SeedRNG, StartUpSeedsEveryBaseGeneratorFromTheClock) {
  Game g;
  SeedAtStartUp(g);
  EXPECT_EQ(g.RngChoice, 0);
  EXPECT_EQ(g.Rng.mt.mti, 624);
  EXPECT_EQ(g.Rng.cokus.left, 0);
  EXPECT_EQ(g.Rng.ran1.iff, 1);
  EXPECT_EQ(g.Rng.ran2.iff, 1);
  EXPECT_GT(g.LastSeed, 0);
  EXPECT_EQ(g.SeedRequest, Currency(g.LastSeed));
}
