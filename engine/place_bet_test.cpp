#include "engine/place_bet.h"

#include <gtest/gtest.h>

#include "engine/notices.h"
#include "engine/test_support.h"

namespace {

Currency Money(double v) { return Currency::FromDouble(v); }

const std::string kPutTail = "(Unless you check \"Allow Put Bets\" on\rthe Configuration screen.)";
const std::string kNoBankroll = "You don't have enough bankroll remaining to bet the full amount requested.\r\r"
                                "Your options are: \r";

TEST(PlaceBet, ChangesMoveInWholeChips) {
  Table t;
  EXPECT_EQ(t.Place(bet::Place(6), Money(7.5)), 8);
  EXPECT_EQ(t.Place(bet::Place(6), Money(-7.5)), -8);
  t.g.BetAmount[bet::kFirstChip] = 5;
  EXPECT_EQ(t.Place(bet::Place(6), 7), 10);
  EXPECT_EQ(t.Place(bet::Place(6), -3), -5);
  EXPECT_EQ(t.Place(bet::Place(6), -20), -5);  // no more than the bet
  EXPECT_EQ(t.Place(bet::Place(6), Currency::FromRaw(INT64_MAX)), 1000);
  EXPECT_EQ(t.Place(bet::Place(6), Currency::FromRaw(INT64_MIN)), -1000);
  EXPECT_EQ(t.g.TotalOnTable, 0);
  t.ui.messages.clear();
  t.g.Bankroll() = 0;  // the rack may go negative
  EXPECT_EQ(t.Place(bet::Place(6), 10), 10);
  EXPECT_TRUE(t.ui.messages.empty());
  EXPECT_TRUE(t.g.MsgText.empty());

  // Taking a bet down puts its status back to the default.
  t.g.BetStatus[bet::Place(6)] = 2;
  t.Place(bet::Place(6), -10);
  EXPECT_EQ(t.g.BetStatus[bet::Place(6)], 0);
}

TEST(PlaceBet, EveryRefusalWordForWord) {
  const struct {
    int betId, point, standing, parent, change;
    std::string title, text;
  } cases[] = {
      {bet::kPassLine, 6, 10, 0, 5, "Pass Line",
       "You may not make or increase a Pass Line bet\rwhile a point is established.\r\r" + kPutTail},
      {bet::kPassLine, 6, 10, 0, -5, "Pass Line",
       "You may not decrease or remove your Pass Line bet \rwhile a point is established."},
      {bet::kCome, 0, 0, 0, 5, "Come Bet", "You may not make a Come bet until \ra point is established."},
      {bet::kDontPass, 6, 10, 0, 5, "Don't Pass Bet",
       "You may not make or increase a Don't Pass bet\rwhile a point is established."},
      {bet::kDontCome, 0, 0, 0, 5, "Don't Come Bet",
       "You may not make a Don't Come bet until\ra point is established."},
      {bet::kPassOdds, 6, 0, 0, 5, "Pass Line Odds Bet",
       "You may not make a Pass Line Odds Bet unless \ryou also have a Pass Line bet and a point is established."},
      {bet::kPassOdds, 0, 0, 10, 5, "Pass Line Odds Bet",
       "You may not make a Pass Line Odds Bet unless \ryou also have a Pass Line bet and a point is established."},
      {bet::kDontPassOdds, 6, 0, 0, 5, "Don't Pass Odds Bet",
       "You may not make a Don't Pass Odds bet unless \ryou also have a Don't Pass bet and a point is established."},
      {bet::Come(6), 8, 10, 0, -5, "Come 6 Bet",
       "You may not decrease or remove a Come bet \rwhich is established on a point."},
      {bet::Come(6), 8, 10, 0, 5, "Come 6 Bet",
       "You may not make or increase a Come bet\rdirectly on a point number.\r\r" + kPutTail},
      {bet::ComeOdds(6), 8, 0, 0, 5, "Come 6 Odds Bet",
       "You may not make an odds bet here until \ryou've established a Come 6 bet."},
      {bet::DontComeOdds(9), 8, 0, 0, 5, "Don't Come 9 Odds Bet",
       "You may not make an odds bet here until \ryou've established a Don't Come 9 bet."},
      {bet::DontCome(6), 8, 10, 0, 5, "Don't Come 6 Bet",
       "You may not make or increase a Don't Come bet\rdirectly on a point number."},
  };
  for (const auto& c : cases) {
    Table t;
    t.SetPoint(c.point);
    t.g.BetAmount[c.betId] = c.standing;
    if (c.parent) t.g.BetAmount[bet::ParentOf(c.betId)] = c.parent;
    t.Commit();
    EXPECT_EQ(t.Place(c.betId, c.change), 0) << c.text;
    EXPECT_EQ(t.g.BetAmount[c.betId], c.standing) << c.text;
    ASSERT_EQ(t.ui.messages.size(), 1u) << c.text;
    EXPECT_EQ(t.Last().title, c.title);
    EXPECT_EQ(t.Last().text, c.text);
    EXPECT_EQ(t.g.MsgText, c.text);  // left for the roll to see
  }
}

TEST(PlaceBet, NoticesNeedTheirBitAndAVisibleTable) {
  // Refusals are bit 1, limits bit 2, vig bit 4; none shows under Hyper-Drive.
  const struct { int betId, change, mask; bool hyper, shown; } cases[] = {
      {bet::kCome, 5, kNoticeLimits | kNoticeCharges, false, false},
      {bet::kCome, 5, 15, true, false},
      {bet::kCome, 5, kNoticeRefusals, false, true},
      {bet::Place(6), 2, kNoticeRefusals | kNoticeCharges, false, false},
      {bet::Place(6), 2, 15, true, false},
      {bet::Place(6), 2, kNoticeLimits, false, true},
      {bet::Buy(10), 20, kNoticeRefusals | kNoticeLimits, false, false},
      {bet::Buy(10), 20, 15, true, false},
      {bet::Buy(10), 20, kNoticeCharges, false, true},
  };
  for (const auto& c : cases) {
    Table t;
    t.g.TableMinimum = 5;
    t.g.NoticeMask = c.mask;
    t.g.HyperDriveOn = c.hyper;
    EXPECT_EQ(t.Place(c.betId, c.change), c.betId == bet::kCome ? 0 : c.change < 5 ? 5 : c.change);
    EXPECT_EQ(t.ui.messages.size(), c.shown ? 1u : 0u) << c.betId << " mask " << c.mask << " hyper " << c.hyper;
    EXPECT_EQ(t.g.MsgText.empty(), c.betId == bet::Buy(10));  // composed all the same
  }
}

TEST(PlaceBet, PutBetsMayBeTakenBackToCommittedAndNoFurther) {
  Table t;
  t.g.AllowPutBets = true;
  t.SetPoint(6);
  t.g.BetAmount[bet::kPassLine] = t.g.TotalOnTable = 10;
  t.Commit();
  EXPECT_EQ(t.Place(bet::kPassLine, 15), 15);
  EXPECT_EQ(t.Place(bet::kPassLine, -20), -15);
  EXPECT_TRUE(t.ui.messages.empty());
  EXPECT_EQ(t.Place(bet::kPassLine, -5), 0);
  EXPECT_EQ(t.Last().title, "Pass Line");
  EXPECT_EQ(t.g.TotalOnTable, 10);
}

TEST(PlaceBet, ComeBetsMovedThisRoll) {
  Table t;
  t.SetPoint(8);
  t.g.MovingBet = true;
  EXPECT_EQ(t.Place(bet::Come(6), 10), 10);  // the rules of adding are lifted
  t.g.MovingBet = false;
  EXPECT_TRUE(t.ui.messages.empty());
  // Committed is 0 until the next roll: adding is refused, taking down is free.
  EXPECT_EQ(t.Place(bet::Come(6), 5), 0);
  EXPECT_EQ(t.g.BetAmount[bet::Come(6)], 10);
  EXPECT_EQ(t.Place(bet::Come(6), -10), -10);

  // Limits still hold for a travelling bet.
  t.g.TableMaximum = 5;
  t.g.MovingBet = true;
  EXPECT_EQ(t.Place(bet::Come(6), 10), 5);
  EXPECT_EQ(t.Last().text, "Maximum bet here is $5\r\rwhich is being bet.");
  t.g.AllowNegativeBankroll = false;
  t.g.Bankroll() = 7;
  EXPECT_EQ(t.Place(bet::Come(5), 10), 2);
}

TEST(PlaceBet, LimitNoticesCarryTheirEnding) {
  Table t;
  t.g.TableMinimum = 5;
  EXPECT_EQ(t.Place(bet::Place(6), 2), 5);
  EXPECT_EQ(t.Last().title, "Place 6 Bet");
  EXPECT_EQ(t.Last().text, "Minimum bet here is $5\r\rwhich is being bet.");
  EXPECT_EQ(t.Place(bet::Place(6), -2), -5);  // a fall below the minimum takes it all
  EXPECT_EQ(t.ui.messages.size(), 1u);
  EXPECT_EQ(t.Place(bet::kHard6, 1), 1);  // the one-check minimum of the propositions

  t.g.BetAmount[bet::Place(8)] = 990;
  EXPECT_EQ(t.Place(bet::Place(8), 20), 10);
  EXPECT_EQ(t.Last().text, "Maximum bet here is $1,000\r\rwhich is being bet.");
  EXPECT_EQ(t.Place(bet::Place(8), 6), 0);
  EXPECT_EQ(t.Last().text, "Maximum bet here is $1,000\r\rwhich is already bet.");
  EXPECT_EQ(t.g.MsgText, t.Last().text);
  // A maximum lowered below an ordinary bet cuts it when it is touched.
  t.g.TableMaximum = 500;
  EXPECT_EQ(t.Place(bet::Place(8), 5), -500);
}

TEST(PlaceBet, ContractBetAboveALoweredMaximumStaysWithTheLongNotice) {
  const std::string notice =
      "Maximum bet here is $20\r\rHowever, because the Pass Line is a contract bet and it was established at $50 "
      "before the maximum allowed was lowered on the Configuration screen, it must remain unchanged until it "
      "resolves.";
  Table t;
  t.g.AllowPutBets = true;
  t.SetPoint(6);
  t.g.BetAmount[bet::kPassLine] = 50;
  t.Commit();
  t.g.TableMaximum = 20;
  EXPECT_EQ(t.Place(bet::kPassLine, 5), 0);
  EXPECT_EQ(t.g.BetAmount[bet::kPassLine], 50);
  ASSERT_EQ(t.ui.messages.size(), 1u);
  EXPECT_EQ(t.Last().title, "Pass Line Bet");
  EXPECT_EQ(t.Last().text, notice);
  EXPECT_EQ(t.g.MsgText, notice);
  // Either bit 1 or bit 2 shows it; the vig bit alone does not.
  for (int mask : {kNoticeRefusals, kNoticeCharges}) {
    t.g.NoticeMask = mask;
    t.Place(bet::kPassLine, 5);
  }
  EXPECT_EQ(t.ui.messages.size(), 2u);
}

TEST(PlaceBet, BankrollCutsToWhatBetAndVigAllow) {
  Table t;
  t.g.AllowNegativeBankroll = false;
  t.g.Bankroll() = 20;
  t.Place(bet::kField, 14);                 // $6 left in the rack
  EXPECT_EQ(t.Place(bet::Buy(4), 10), 5);  // 5 and its vig of 1 fit; 6 and 1 do not
  EXPECT_EQ(t.g.BuyVigOnBet[0], 1);
  EXPECT_EQ(t.g.TotalOnTable, 20);
  ASSERT_EQ(t.ui.messages.size(), 2u);
  EXPECT_EQ(t.ui.messages[0].title, "Buy 4 Bet");
  EXPECT_EQ(t.ui.messages[0].text, kNoBankroll + "      - Bet less on other bets.\r"
                                   "      - Make a withdrawal from the ATM.\r"
                                   "      - Allow negative bankroll amounts.\r\rwhich is being bet.");
  EXPECT_EQ(t.ui.messages[1].text, "Total \"Vig\" charge $1");

  // Alone on the table, with nothing left: no other bets to mention, nothing bet.
  Table u;
  u.g.AllowNegativeBankroll = false;
  u.g.Bankroll() = 0;
  EXPECT_EQ(u.Place(bet::Place(6), 6), 0);
  EXPECT_EQ(u.Last().text, kNoBankroll + "      - Make a withdrawal from the ATM.\r"
                           "      - Allow negative bankroll amounts.\r\rwhich is already bet.");
  // The minimum is tried again, and given up when it does not fit either.
  u.g.TableMinimum = 5;
  u.g.Bankroll() = 3;
  EXPECT_EQ(u.Place(bet::Place(6), 10), 0);
  u.g.Bankroll() = 5;
  EXPECT_EQ(u.Place(bet::Place(6), 10), 5);
  // A limit notice before it stays in front.
  u.g.Bankroll() = 2000;
  u.g.BetAmount[bet::Place(6)] = 0;
  u.g.TotalOnTable = 1500;
  EXPECT_EQ(u.Place(bet::Place(6), 1200), 500);
  EXPECT_EQ(u.Last().text.rfind("Maximum bet here is $1,000\r\rYou don't have enough", 0), 0u);
  EXPECT_EQ(u.Place(bet::Place(6), -100), -100);  // taking away is never cut
}

TEST(PlaceBet, VigNoticesAndTheTotalOnTable) {
  Table t;
  const struct { int change, total; const char* text; } buys[] = {
      {20, 21, "Total \"Vig\" charge $1"},
      {20, 42, "\"Vig\" increased by $1\r\rTotal \"Vig\" charge $2"},
      {-10, 31, "\"Vig\" decreased by $1\r\rTotal \"Vig\" charge $1"},  // 1.50 goes down
      {-30, 0, "\"Vig\" charge returned $1"}};
  for (const auto& b : buys) {
    EXPECT_EQ(t.Place(bet::Buy(4), b.change), b.change);
    EXPECT_EQ(t.Last().title, "Buy 4 Bet");
    EXPECT_EQ(t.Last().text, b.text);
    EXPECT_EQ(t.g.TotalOnTable, b.total);
  }
  t.g.ChargeAllLay = false;
  t.Place(bet::Lay(4), 40);
  EXPECT_EQ(t.Last().text, "If you win, the \"Vig\" charge will be $1");
  EXPECT_EQ(t.g.TotalOnTable, 40);
  const size_t shown = t.ui.messages.size();
  t.Place(bet::Lay(4), -40);  // nothing was charged, nothing to say
  EXPECT_EQ(t.ui.messages.size(), shown);
  EXPECT_EQ(t.g.LayVigOnBet[0], 0);
}

TEST(PlaceBet, ChipStacksKeepWithinTheirLimitOnly) {
  const Currency limit = Currency::FromRaw(999'999'999'999'999'999);
  Table t;
  EXPECT_EQ(t.Place(101, Money(2.5)), Money(2.5));  // no chip rounding, no table limits
  EXPECT_EQ(t.g.TotalOnTable, 0);
  t.g.BetAmount[101] = 0;
  t.Place(101, limit);
  EXPECT_EQ(t.Place(101, 1), 0);
  EXPECT_EQ(t.Last().title, "Chip-Stack # 1");
  EXPECT_EQ(t.Last().text, "Maximum Chip-Stack value is: $99,999,999,999,999.9999\r\rwhich is already stacked.");
  t.g.BetAmount[150] = -5;
  EXPECT_EQ(t.Place(150, -limit), -limit + 5);
  EXPECT_EQ(t.Last().title, "Chip-Stack # 50");
  EXPECT_EQ(t.Last().text, "Minimum Chip-Stack value is: $-99,999,999,999,999.9999\r\rwhich is being stacked.");
  t.g.BetAmount[150] = 0;
  EXPECT_EQ(t.Place(150, Currency::FromRaw(INT64_MIN)), -limit);  // no overflow
}

TEST(PlaceBet, OtherSlotsPassThrough) {
  Table t;
  t.g.TableMaximum = 5;
  EXPECT_EQ(t.Place(bet::kBankroll, Money(7.25)), Money(7.25));
  EXPECT_EQ(t.g.Bankroll(), Money(507.25));
  EXPECT_EQ(t.Place(96, 10), 10);
  EXPECT_EQ(t.Place(bet::kRail, -3), -3);
  EXPECT_EQ(t.Place(-1, 5), 0);
  EXPECT_EQ(t.Place(201, 5), 0);
  EXPECT_EQ(t.g.TotalOnTable, 0);
  EXPECT_TRUE(t.ui.messages.empty());
}

TEST(PlaceBetOnTable, ReappliesAutomaticOdds) {
  Table t;
  t.g.AllowPutBets = true;
  t.g.AutoTakeFullOdds = true;
  t.SetPoint(6);
  t.g.BetChange = 10;
  PlaceBetOnTable(t.g, bet::kPassLine);
  EXPECT_EQ(t.g.BetChangeAllowed, 10);
  EXPECT_EQ(t.g.BetAmount[bet::kPassOdds], 25);
  EXPECT_EQ(t.g.TotalOnTable, 35);

  // Odds left above a lowered flat bet come down to the new maximum.
  t.g.BetAmount[bet::DontCome(6)] = 10;
  t.g.BetAmount[bet::DontComeOdds(6)] = 30;
  t.g.TotalOnTable += 40;
  t.g.BetChange = -5;
  PlaceBetOnTable(t.g, bet::DontCome(6));
  EXPECT_EQ(t.g.BetChangeAllowed, -5);
  EXPECT_EQ(t.g.BetAmount[bet::DontComeOdds(6)], 12);  // take 10 at 6 to 5, lay 12 to win 10
  EXPECT_EQ(t.g.TotalOnTable, 52);
  EXPECT_TRUE(t.ui.messages.empty());
  EXPECT_FALSE(t.ui.redrawn.empty());
}

TEST(PlaceBetOnTable, SetBetToMaximumIsSilentAndLeavesTheMessage) {
  Table t;
  t.SetPoint(4);
  t.Place(bet::kPassLine, 10);  // not allowed with the point on
  const std::string refusal = t.g.MsgText;
  const size_t shown = t.ui.messages.size();
  t.g.BetAmount[bet::kPassLine] = t.g.TotalOnTable = 10;
  SetBetToMaximum(t.g, bet::kPassOdds);
  EXPECT_EQ(t.g.BetAmount[bet::kPassOdds], 20);
  EXPECT_EQ(t.g.BetChangeAllowed, 20);
  EXPECT_EQ(t.g.NoticeMask, 15);
  EXPECT_EQ(t.g.MsgText, refusal);
  t.g.AllowNegativeBankroll = false;
  t.g.Bankroll() = 22;
  SetBetToMaximum(t.g, bet::kPassOdds);
  EXPECT_EQ(t.g.BetAmount[bet::kPassOdds], 12);
  EXPECT_EQ(t.ui.messages.size(), shown);
  TakeDownBet(t.g, bet::kPassOdds);
  EXPECT_EQ(t.g.BetAmount[bet::kPassOdds], 0);
  EXPECT_EQ(t.g.TotalOnTable, 10);
}

}  // namespace
