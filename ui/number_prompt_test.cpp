#include "ui/number_prompt.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

#include "ui/two_number_prompt.h"

namespace {

TEST(ParseAmount, ReadsWhatPlayersType) {
  const std::pair<const char*, std::optional<Currency>> cases[] = {
      {"$1,000", Currency(1000)},
      {" 1000.50 ", Currency::FromDouble(1000.5)},
      {"-$7.5", Currency::FromDouble(-7.5)},
      {"0", Currency(0)},
      {"", std::nullopt},
      {"$", std::nullopt},
      {"ten", std::nullopt},
      {"12abc", std::nullopt},
  };
  for (const auto& [text, amount] : cases) EXPECT_EQ(ParseAmount(text), amount) << text;
}

void Type(QDialog& dialog, const char* entry, const char* text) {
  dialog.findChild<QLineEdit*>(entry)->setText(text);
  dialog.findChild<QPushButton*>("cmdOk")->click();
}

TEST(NumberPrompt, KeepsAWrongAmountOpenAndTakesARightOne) {
  NumberPrompt prompt("Set Beginning Bankroll", "Enter your beginning bankroll: ", 500);
  prompt.show();
  EXPECT_EQ(prompt.findChild<QLineEdit*>("txtAmount")->text(), "500");
  Type(prompt, "txtAmount", "lots");
  EXPECT_TRUE(prompt.isVisible());
  EXPECT_TRUE(prompt.findChild<QLabel*>("lblError")->isVisible());
  EXPECT_EQ(prompt.Answer(), std::nullopt);
  Type(prompt, "txtAmount", "$1,000");
  EXPECT_FALSE(prompt.isVisible());
  EXPECT_EQ(prompt.Answer(), Currency(1000));
}

TEST(NumberPrompt, CancelAnswersNothing) {
  NumberPrompt prompt("RNG Seed", "Seed:", 7);
  prompt.show();
  prompt.findChild<QPushButton*>("cmdCancel")->click();
  EXPECT_EQ(prompt.Answer(), std::nullopt);
}

TEST(TwoNumberPrompt, NeedsBothAmounts) {
  TwoNumberPrompt prompt({"Set Break-point", "Enter the break-point or range that you'd \rlike to use to sort this data:",
                          "", "", 100, 2000});
  prompt.show();
  Type(prompt, "txtSecondAmount", "");
  EXPECT_TRUE(prompt.isVisible());
  Type(prompt, "txtSecondAmount", "2,500");
  EXPECT_EQ(prompt.Answer(), std::make_pair(Currency(100), Currency(2500)));
}

}  // namespace
