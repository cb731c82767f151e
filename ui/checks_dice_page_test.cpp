#include "ui/checks_dice_page.h"

#include <QComboBox>
#include <QLabel>
#include <gtest/gtest.h>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "ui/config_page_for_test.h"
#include "ui/screen_desk_for_test.h"
#include "ui/table_look.h"

namespace {

Currency Check(const ScreenDesk& desk, int i) { return desk.table.State().BetAmount[bet::kFirstChip + i]; }

// The order and divisibility of the checks wait for the window's closing
// check, so every value goes in as typed, even one out of order.
TEST(ChecksDicePage, EachCheckReachesTheGameAsTyped) {
  ScreenDesk desk;
  ChecksDicePage page(desk.table, desk.dialogs);
  const char* typed[] = {"1", "5", "4", "100", "500"};
  const Currency want[] = {1, 5, 4, 100, 500};
  for (int i = 0; i < 5; ++i) Type(page, ("txtDenomination" + std::to_string(i)).c_str(), typed[i]);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(Check(desk, i), want[i]) << i;
  EXPECT_TRUE(desk.dialogs.messages.empty());
  EXPECT_EQ(Control<QLineEdit>(page, "txtDenomination2")->text(), "4");
}

TEST(ChecksDicePage, AValueNoCheckCanHaveIsRefusedAndSnapsBack) {
  const struct {
    const char* typed;
    const char* told;
  } cases[] = {
      {"0", "Check values must be greater than zero."},
      {"200000", "Check values run from .01 to 100,000."},
      {"five", "Please enter an amount, such as 25 or 0.50."},
  };
  for (const auto& c : cases) {
    ScreenDesk desk;
    ChecksDicePage page(desk.table, desk.dialogs);
    Type(page, "txtDenomination1", c.typed);
    ASSERT_EQ(desk.dialogs.messages.size(), 1u) << c.typed;
    EXPECT_EQ(desk.dialogs.messages[0].title, "Check Values");
    EXPECT_EQ(desk.dialogs.messages[0].text, c.told);
    EXPECT_EQ(Check(desk, 1), 5) << c.typed;
    EXPECT_EQ(Control<QLineEdit>(page, "txtDenomination1")->text(), "5") << c.typed;
  }
}

TEST(ChecksDicePage, GeneratorChoicesGoToTheGameWithoutSeeding) {
  ScreenDesk desk;
  ChecksDicePage page(desk.table, desk.dialogs);
  auto* rng = Control<QComboBox>(page, "cmbRNG");
  const QStringList names = {"RNG #1", "RNG #2", "RNG #3", "RNG #4", "RNG #5",
                             "RNG #6 (#1 and #5)", "RNG #7 (#2 and #4)", "RNG #8 (#1 single call)"};
  ASSERT_EQ(rng->count(), names.size());
  for (int i = 0; i < rng->count(); ++i) EXPECT_EQ(rng->itemText(i), names[i]);

  const int32_t lastSeed = desk.table.State().LastSeed;
  rng->setCurrentIndex(5);
  emit rng->activated(5);
  Click(page, "optSeedRNG1");
  const bool reSeed = desk.table.State().ReSeedNewGames;
  Click(page, "chkReSeed");
  auto* chips = Control<QComboBox>(page, "cmbChipStyle");
  emit chips->activated(1);
  emit Control<QComboBox>(page, "cmbDiceStyle")->activated(2);

  const Game& g = desk.table.State();
  EXPECT_EQ(g.RngChoice, 5);
  EXPECT_EQ(g.LastSeed, lastSeed);
  EXPECT_TRUE(g.UserSeedMode);
  EXPECT_EQ(g.ReSeedNewGames, !reSeed);
  EXPECT_EQ(g.ChipStyle, 1);
  // The table draws what was chosen.
  EXPECT_EQ(LookOf(g).chipStyle, ChipStyle::Plain);
  EXPECT_EQ(LookOf(g).diceStyle, DiceStyle::Translucent);
  EXPECT_TRUE(desk.dialogs.messages.empty());
}

// "Seed RNG now" with a user seed: asked until the answer is within the
// generator's limits, seeded, and told once.
TEST(ChecksDicePage, SeedNowAsksUntilTheSeedIsWithinLimits) {
  const std::string tooHigh = "Your seed value is out of limits.\r\r";
  const struct {
    int rng;
    std::vector<std::optional<Currency>> answers;
    int32_t seeded;  // 0: cancelled, nothing seeded
  } cases[] = {
      {2, {1'000'000, 999'999}, 999'999},
      {0, {0, 1'000'000}, 1'000'000},
      {4, {std::nullopt}, 0},
  };
  for (const auto& c : cases) {
    ScreenDesk desk;
    desk.table.Set("RngChoice", c.rng);
    desk.table.Set("UserSeedMode", 1);
    ChecksDicePage page(desk.table, desk.dialogs);
    const int32_t before = desk.table.State().LastSeed;
    desk.dialogs.numbers.assign(c.answers.begin(), c.answers.end());
    Click(page, "cmdSeedRNG");

    const auto& asked = desk.dialogs.messages;
    const size_t prompts = c.answers.size();
    ASSERT_EQ(asked.size(), prompts + (c.seeded ? 1 : 0)) << c.rng;
    const std::string limit = c.rng == 2 ? "999,999" : "2,147,483,647";
    EXPECT_EQ(asked[0].title, "RNG Seed");
    EXPECT_EQ(asked[0].text, "Please enter a value between 1 and " + limit + " to seed the random number generator:\r");
    EXPECT_EQ(desk.dialogs.offered[0], Currency(before));
    if (prompts > 1) {
      EXPECT_EQ(asked[1].text, tooHigh + asked[0].text);
    }
    const int32_t last = desk.table.State().LastSeed;
    if (c.seeded) {
      EXPECT_EQ(asked.back().title, "RNG Seeded");
      EXPECT_EQ(asked.back().text, "The random number generator has now been seeded.");
      EXPECT_EQ(last, c.seeded);
    } else {
      EXPECT_EQ(last, before);
    }
    EXPECT_EQ(Control<QLabel>(page, "lblLastSeed")->text().toStdString(), FormatWithCommas(last));
  }
}

TEST(ChecksDicePage, SeedNowNormallyTakesTheClockWithinTheLimits) {
  for (int rng : {0, 2}) {
    ScreenDesk desk;
    desk.table.Set("RngChoice", rng);
    ChecksDicePage page(desk.table, desk.dialogs);
    desk.table.Set("LastSeed", 0);
    Click(page, "cmdSeedRNG");
    ASSERT_EQ(desk.dialogs.messages.size(), 1u);  // no prompt, the one notice
    EXPECT_EQ(desk.dialogs.messages[0].title, "RNG Seeded");
    EXPECT_GE(desk.table.State().LastSeed, 1);
    if (rng == 2) {
      EXPECT_LE(desk.table.State().LastSeed, 999'999);
    }
  }
}

}  // namespace
