#include "engine/new_game.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "engine/game.h"

namespace {

// Answers every bankroll prompt with the next queued number.
struct PromptAnswers : SilentFrontEnd {
  std::vector<Currency> answers;
  std::vector<std::string> asked;
  std::optional<Currency> AskNumber(const std::string& title, const std::string& text, Currency offered) override {
    asked.push_back(title + "|" + text + "|" + FormatNumberWithCommas(offered));
    if (answers.empty()) return offered;
    Currency a = answers.front();
    answers.erase(answers.begin());
    return a;
  }
};

struct NewGameTest : ::testing::Test {
  NewGameTest() {
    g.Ui = &ui;
    g.ReSeedNewGames = false;
    FillDefaults(g);
    NewGame(g, false);
  }
  Game g;
  PromptAnswers ui;
};

TEST_F(NewGameTest, ClearsTheTableAndKeepsTheSettings) {
  g.BetAmount[bet::kPassLine] = 10;
  g.TotalOnTable = 10;
  g.BetAmount[101] = 7;
  g.BetName[101] = "Press fund";
  g.HandStats[3] = 9;
  g.RollCounts[0] = 40;
  g.Point = 6;
  g.WorkOnComeOut[bet::Place(6)] = 1;
  g.TableMinimum = 5;
  g.Payoff[bet::Place(6)].Win = 8;
  g.Bankroll() = 612;
  g.BankrollInitType = 2;  // carry the bankroll forward

  NewGame(g, true);
  EXPECT_EQ(g.BetAmount[bet::kPassLine], 0);
  EXPECT_EQ(g.TotalOnTable, 0);
  EXPECT_EQ(g.BetAmount[101], 7);  // kept stacks keep their money and names
  EXPECT_EQ(g.BetName[101], "Press fund");
  EXPECT_EQ(g.HandStats[3], 0);
  EXPECT_EQ(g.RollCounts[0], 0);
  EXPECT_EQ(g.Point, 0);
  EXPECT_EQ(g.BetStatus[bet::Place(6)], 1);  // from the edited WorkOnComeOut
  EXPECT_EQ(g.TableMinimum, 5);
  EXPECT_EQ(g.Payoff[bet::Place(6)].Win, 8);
  EXPECT_EQ(g.Bankroll(), 612);
  EXPECT_EQ(g.AmountInvested, 612);
  EXPECT_EQ(g.HighBankroll, 612);
  EXPECT_EQ(g.BetAtRollStart[bet::kBankroll], 612);

  NewGame(g, false);
  EXPECT_EQ(g.BetAmount[101], 0);
  EXPECT_EQ(g.BetName[101], "Chip-Stack # 1");
}

TEST_F(NewGameTest, BankrollByEachInitType) {
  // 0: the set amount.
  g.BankrollInitAmount = 300;
  g.Bankroll() = 50;
  NewGame(g, false);
  EXPECT_EQ(g.Bankroll(), 300);
  EXPECT_TRUE(ui.asked.empty());

  // 1: asked for, offering the set amount; the answer becomes the set amount.
  g.BankrollInitType = 1;
  ui.answers = {Currency(750)};
  NewGame(g, false);
  ASSERT_EQ(ui.asked.size(), 1u);
  EXPECT_EQ(ui.asked[0], "Set Beginning Bankroll|Enter your beginning bankroll: |300");
  EXPECT_EQ(g.Bankroll(), 750);
  EXPECT_EQ(g.BankrollInitAmount, 750);
  EXPECT_EQ(g.AmountInvested, 750);

  // 3: carried with the net: what was invested stays from the first start.
  g.BankrollInitType = 3;
  g.Bankroll() = 900;
  NewGame(g, false);
  EXPECT_EQ(g.Bankroll(), 900);
  EXPECT_EQ(g.AmountInvested, 750);
  EXPECT_EQ(ui.asked.size(), 1u);
}

TEST_F(NewGameTest, CarriedBankrollOutOfBoundsIsAskedFor) {
  g.BankrollInitType = 2;
  g.Bankroll() = 9'999'999;  // exactly the limit is asked about
  ui.answers = {Currency(1000)};
  NewGame(g, false);
  EXPECT_EQ(ui.asked.size(), 1u);
  EXPECT_EQ(g.Bankroll(), 1000);

  // A negative bankroll is asked about too; a negative answer turns negative
  // bankrolls on instead of refusing.
  g.AllowNegativeBankroll = false;
  g.Bankroll() = -20;
  ui.answers = {Currency(-40)};
  NewGame(g, false);
  EXPECT_EQ(ui.asked.size(), 2u);
  EXPECT_EQ(g.Bankroll(), -40);
  EXPECT_TRUE(g.AllowNegativeBankroll);
}

TEST(StartUp, EndsWithANewGameOnGeneratorOne) {
  Game g;
  StartUp(g, "");
  EXPECT_EQ(g.RngChoice, 0);
  EXPECT_EQ(g.Bankroll(), 500);
  EXPECT_EQ(g.AmountInvested, 500);
  EXPECT_EQ(g.SmallestChip(), 1);
  EXPECT_EQ(g.BetName[bet::kPassLine], "Pass Line");
  EXPECT_EQ(g.BetName[bet::kRail], "Rail");
  EXPECT_EQ(g.BetStatus[bet::Place(6)], 0);  // off on the come-out
  EXPECT_EQ(g.Payoff[bet::Place(6)].Win, 7);
  EXPECT_GT(g.SpeedUnit, 0);
}

}  // namespace
