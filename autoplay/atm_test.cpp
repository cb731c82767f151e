#include "autoplay/atm.h"

#include <gtest/gtest.h>

#include "engine/table_for_test.h"

TEST(Atm, LimitsAndNotices) {
  const std::string cut = "The full amount of this transaction was not allowed since it would have ";
  const std::string more = "You can deposit more by checking the box marked, \"Allow negative bankroll amounts\"";
  const struct {
    int action;
    Currency bankroll, onTable, amount;
    bool allowNegative, config;
    int32_t mask;
    Currency moved;
    std::string said;  // empty: no notice
  } cases[] = {
      {kAtmWithdraw, 500, 0, 9'999'499, true, false, kNoticeDefault, 9'999'499, ""},  // lands exactly on the limit
      {kAtmWithdraw, 500, 0, 9'999'500, true, false, kNoticeDefault, 9'999'499,
       "Requested amount:  $9,999,500\rAllowed amount:  $9,999,499\r\r" + cut +
           "caused the current bankroll to exceed the bank limit of $9,999,999"},
      {kAtmDeposit, 100, 60, 50, false, false, kNoticeDefault, 40,
       "Requested amount:  $50\rAllowed amount:  $40\r\r" + cut +
           "caused your current bankroll to drop below the amount of your current bets.\r\r" + more +
           " on the Configuration screen, and/or by reducing the amount of your current bets."},
      {kAtmDeposit, 100, 0, 150, false, true, 0, 100,
       "Requested amount:  $150\rAllowed amount:  $100\r\r" + cut + "resulted in a negative current bankroll.\r\r" +
           more + "."},
      {kAtmDeposit, 100, 60, 50, false, false, kNoticeDefault & ~kNoticeRefusals, 40, ""},  // cut silently
      {kAtmDeposit, 100, 60, 50, true, false, kNoticeDefault, 50, ""},
      {kAtmDeposit, -9'999'000, 0, 1'000, true, false, kNoticeDefault, 999,
       "Requested amount:  $1,000\rAllowed amount:  $999\r\r" + cut +
           "caused your current bankroll to exceed the bank limit of $-9,999,999"},
      {kAtmDeposit, 100, 0, -5, true, false, kNoticeDefault, 0, ""},
  };
  for (const auto& c : cases) {
    TestTable t;
    t.g.Bankroll() = t.g.AmountInvested = c.bankroll;
    t.g.TotalOnTable = c.onTable;
    t.g.AllowNegativeBankroll = c.allowNegative;
    t.g.ConfigScreenActive = c.config;
    t.g.NoticeMask = c.mask;
    EXPECT_EQ(Atm(t.g, c.action, c.amount), c.moved) << c.said;
    EXPECT_EQ(t.g.Bankroll(), c.action == kAtmWithdraw ? c.bankroll + c.moved : c.bankroll - c.moved);
    EXPECT_EQ(t.g.AmountInvested, t.g.Bankroll());
    EXPECT_EQ(NetResult(t.g), Currency(0));
    if (c.said.empty()) {
      EXPECT_TRUE(t.ui.messages.empty());
    } else {
      EXPECT_EQ(t.ui.messages, (std::vector<RecordedMessage>{{"Dicemill", c.said}}));
    }
  }
}
