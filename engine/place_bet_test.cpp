#include "engine/place_bet.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <vector>

#include "engine/notices.h"
#include "engine/table_for_test.h"

namespace {

Currency Money(double v) { return Currency::FromDouble(v); }

const Currency kStackLimit = Currency::FromRaw(999'999'999'999'999'999);
const std::string kPutTail = "(Unless you check \"Allow Put Bets\" on\rthe Configuration screen.)";

TEST(PlaceBet, ChangesMoveInWholeChips) {
  TestTable t;
  EXPECT_EQ(t.Place(bet::Place(6), Money(7.5)), 8);
  EXPECT_EQ(t.Place(bet::Place(6), Money(-7.5)), -8);
  t.g.BetAmount.Set(bet::kFirstChip, 5);
  const std::pair<Currency, Currency> steps[] = {{7, 10}, {-3, -5}, {-20, -5}, {Currency::FromRaw(INT64_MAX), 1000},
                                                 {Currency::FromRaw(INT64_MIN), -1000}};
  for (const auto& [asked, made] : steps) EXPECT_EQ(t.Place(bet::Place(6), asked), made) << asked.raw;
  EXPECT_EQ(t.Place(150, Currency::FromRaw(INT64_MIN)), -kStackLimit);  // no overflow on a Chip-Stack either
  EXPECT_EQ(t.g.TotalOnTable, 0);
  t.ui.messages.clear();
  t.g.Bankroll() = 0;  // the rack may go negative
  EXPECT_EQ(t.Place(bet::Place(6), 10), 10);
  EXPECT_TRUE(t.ui.messages.empty());
  EXPECT_TRUE(t.g.MsgText.empty());
  // Taking a bet down puts its status back to the default.
  t.g.BetStatus.Set(bet::Place(6), 2);
  t.Place(bet::Place(6), -10);
  EXPECT_EQ(t.g.BetStatus[bet::Place(6)], 0);

  // Chip-Stacks take any amount within their limit; other slots take any change.
  EXPECT_EQ(t.Place(101, Money(2.5)), Money(2.5));
  t.g.TableMaximum = 5;
  EXPECT_EQ(t.Place(bet::kBankroll, Money(7.25)), Money(7.25));
  EXPECT_EQ(t.Place(96, 10), 10);
  EXPECT_EQ(t.Place(bet::kRail, -3), -3);
  EXPECT_EQ(t.Place(-1, 5), 0);
  EXPECT_EQ(t.Place(201, 5), 0);
  EXPECT_EQ(t.g.TotalOnTable, 0);
  EXPECT_TRUE(t.ui.messages.empty());
}

TEST(PlaceBet, EveryRefusalWordForWord) {
  const struct { int betId, point, standing, parent, change; std::string title, text; } cases[] = {
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
    TestTable t;
    t.SetPoint(c.point);
    t.g.BetAmount.Set(c.betId, c.standing);
    if (c.parent) t.g.BetAmount.Set(bet::ParentOf(c.betId), c.parent);
    t.Commit();
    EXPECT_EQ(t.Place(c.betId, c.change), 0) << c.text;
    EXPECT_EQ(t.g.BetAmount[c.betId], c.standing) << c.text;
    ASSERT_EQ(t.ui.messages.size(), 1u) << c.text;
    EXPECT_EQ(t.Last(), (RecordedMessage{c.title, c.text}));
    EXPECT_EQ(t.g.MsgText, c.text);  // left for the roll to see
  }
}

TEST(PlaceBet, LimitsCutTheChangeAndSayWhy) {
  const std::string max = "Maximum bet here is $1,000\r\r", short_ = "You don't have enough bankroll remaining to bet "
      "the full amount requested.\r\rYour options are: \r", others = "      - Bet less on other bets.\r",
      atm = "      - Make a withdrawal from the ATM.\r      - Allow negative bankroll amounts.\r\r";
  // The minimum is 5; `field` stands beside the bet; a bankroll of -1 may go negative.
  const struct { int id; Currency standing, field, bankroll, change, made; std::string title, text; } cases[] = {
      {bet::Place(6), 0, 0, -1, 2, 5, "Place 6 Bet", "Minimum bet here is $5\r\rwhich is being bet."},
      {bet::Place(6), 5, 0, -1, -2, -5, "", ""},  // a fall below the minimum takes it all
      {bet::kHard6, 0, 0, -1, 1, 1, "", ""},      // the one-check minimum of the propositions
      {bet::Place(8), 990, 0, -1, 20, 10, "Place 8 Bet", max + "which is being bet."},
      {bet::Place(8), 1000, 0, -1, 6, 0, "Place 8 Bet", max + "which is already bet."},
      // $6 left in the rack: 5 and its vig of 1 fit; 6 and 1 do not.
      {bet::Buy(4), 0, 14, 20, 10, 5, "Buy 4 Bet", short_ + others + atm + "which is being bet."},
      {bet::Place(6), 0, 0, 0, 6, 0, "Place 6 Bet", short_ + atm + "which is already bet."},
      {bet::Place(6), 0, 0, 3, 10, 0, "Place 6 Bet", short_ + atm + "which is already bet."},  // nor the minimum
      {bet::Place(6), 5, 0, 5, 10, 0, "Place 6 Bet", short_ + atm + "which is already bet."},  // no other bet
      {bet::Place(6), 0, 0, 5, 10, 5, "Place 6 Bet", short_ + atm + "which is being bet."},    // the minimum fits
      {bet::Place(6), 0, 1500, 2000, 1200, 500, "Place 6 Bet", max + short_ + others + atm + "which is being bet."},
      {bet::Place(6), 500, 0, 0, -100, -100, "", ""},  // taking away is never cut
      {101, kStackLimit, 0, -1, 1, 0, "Chip-Stack # 1",
       "Maximum Chip-Stack value is: $99,999,999,999,999.9999\r\rwhich is already stacked."},
      {150, -5, 0, -1, -kStackLimit, -kStackLimit + 5, "Chip-Stack # 50",
       "Minimum Chip-Stack value is: $-99,999,999,999,999.9999\r\rwhich is being stacked."},
  };
  for (const auto& c : cases) {
    TestTable t;
    t.g.TableMinimum = 5;
    t.g.BetAmount.Set(c.id, c.standing);
    t.g.BetAmount.Set(bet::kField, c.field);
    if (bet::IsTableBet(c.id)) t.g.TotalOnTable = c.standing + c.field;
    t.g.AllowNegativeBankroll = c.bankroll < 0;
    if (c.bankroll >= 0) t.g.Bankroll() = c.bankroll;
    EXPECT_EQ(t.Place(c.id, c.change), c.made) << c.title << " " << c.text;
    EXPECT_EQ(t.ui.messages.empty() ? RecordedMessage{} : t.ui.messages[0], (RecordedMessage{c.title, c.text}));
  }
  // A maximum lowered below an ordinary bet cuts it when it is touched.
  TestTable t;
  t.g.BetAmount.Set(bet::Place(8), 1000);
  t.g.TableMaximum = 500;
  EXPECT_EQ(t.Place(bet::Place(8), 5), -500);
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
    TestTable t;
    t.g.TableMinimum = 5;
    t.g.NoticeMask = c.mask;
    t.g.HyperDriveOn = c.hyper;
    EXPECT_EQ(t.Place(c.betId, c.change), c.betId == bet::kCome ? 0 : c.change < 5 ? 5 : c.change);
    EXPECT_EQ(t.ui.messages.size(), c.shown ? 1u : 0u) << c.betId << " mask " << c.mask << " hyper " << c.hyper;
    EXPECT_EQ(t.g.MsgText.empty(), c.betId == bet::Buy(10));  // composed all the same
  }
}

TEST(PlaceBet, ContractBetsPutBetsAndBetsOnTheMove) {
  // Put bets may be taken back to what was committed, and no further.
  TestTable t;
  t.g.AllowPutBets = true;
  t.SetPoint(6);
  t.g.BetAmount.Set(bet::kPassLine, 50);
  t.g.TotalOnTable = 50;
  t.Commit();
  EXPECT_EQ(t.Place(bet::kPassLine, 15), 15);
  EXPECT_EQ(t.Place(bet::kPassLine, -20), -15);
  EXPECT_TRUE(t.ui.messages.empty());
  EXPECT_EQ(t.Place(bet::kPassLine, -5), 0);
  EXPECT_EQ(t.Last().title, "Pass Line");
  // A maximum lowered below it leaves it as it is, with the long notice; either
  // bit 1 or bit 2 shows it, the vig bit alone does not.
  t.g.TableMaximum = 20;
  EXPECT_EQ(t.Place(bet::kPassLine, 5), 0);
  EXPECT_EQ(t.g.BetAmount[bet::kPassLine], 50);
  EXPECT_EQ(t.Last().title, "Pass Line Bet");
  EXPECT_EQ(t.Last().text, "Maximum bet here is $20\r\rHowever, because the Pass Line is a contract bet and it was "
                           "established at $50 before the maximum allowed was lowered on the Configuration screen, "
                           "it must remain unchanged until it resolves.");
  EXPECT_EQ(t.g.MsgText, t.Last().text);
  for (int mask : {kNoticeRefusals, kNoticeCharges}) {
    t.g.NoticeMask = mask;
    t.Place(bet::kPassLine, 5);
  }
  EXPECT_EQ(t.ui.messages.size(), 3u);

  // A Don't Pass bet may be made on the come-out and lowered at any time, but
  // with a point on it only goes back up to what was committed.
  TestTable d;
  EXPECT_EQ(d.Place(bet::kDontPass, 10), 10);
  d.Commit();
  d.SetPoint(4);
  EXPECT_EQ(d.Place(bet::kDontPass, -5), -5);
  EXPECT_EQ(d.Place(bet::kDontPass, 10), 5);
  EXPECT_EQ(d.Last().title, "Don't Pass Bet");

  // A Come bet travelling to its number is taken whole, within the limits.
  TestTable u;
  u.SetPoint(8);
  u.g.MovingBet = true;
  EXPECT_EQ(u.Place(bet::Come(6), 10), 10);
  u.g.MovingBet = false;
  EXPECT_TRUE(u.ui.messages.empty());
  // Committed is 0 until the next roll: adding is refused, taking down is free.
  EXPECT_EQ(u.Place(bet::Come(6), 5), 0);
  EXPECT_EQ(u.Place(bet::Come(6), -10), -10);
  u.g.TableMaximum = 5;
  u.g.MovingBet = true;
  EXPECT_EQ(u.Place(bet::Come(6), 10), 5);
  u.g.AllowNegativeBankroll = false;
  u.g.Bankroll() = 7;
  EXPECT_EQ(u.Place(bet::Come(5), 10), 2);
}

TEST(PlaceBet, VigNoticesAndTheTotalOnTable) {
  TestTable t;
  const struct { int change, total; const char* text; } buys[] = {
      {20, 21, "Total \"Vig\" charge $1"},
      {20, 42, "\"Vig\" increased by $1\r\rTotal \"Vig\" charge $2"},
      {-10, 31, "\"Vig\" decreased by $1\r\rTotal \"Vig\" charge $1"},  // 1.50 goes down
      {-30, 0, "\"Vig\" charge returned $1"}};
  for (const auto& b : buys) {
    EXPECT_EQ(t.Place(bet::Buy(4), b.change), b.change);
    EXPECT_EQ(t.Last(), (RecordedMessage{"Buy 4 Bet", b.text}));
    EXPECT_EQ(t.g.TotalOnTable, b.total);
  }
  t.g.ChargeAllLay = false;
  t.Place(bet::Lay(4), 40);
  EXPECT_EQ(t.Last().text, "If you win, the \"Vig\" charge will be $1");
  EXPECT_EQ(t.g.TotalOnTable, 40);
  t.Place(bet::Lay(4), -40);  // nothing was charged, nothing to say
  EXPECT_EQ(t.ui.messages.size(), 5u);
  EXPECT_EQ(t.g.LayVigOnBet[0], 0);
}

TEST(PlaceBetOnTable, AutomaticOddsAndSetBetToMaximum) {
  TestTable t;
  t.g.AllowPutBets = t.g.AutoTakeFullOdds = true;
  t.SetPoint(6);
  t.g.BetChange = 10;
  PlaceBetOnTable(t.g, bet::kPassLine);
  EXPECT_EQ(t.g.BetChangeAllowed, 10);
  EXPECT_EQ(t.g.BetAmount[bet::kPassOdds], 25);
  EXPECT_EQ(t.g.TotalOnTable, 35);
  // Odds left above a lowered flat bet come down to the new maximum.
  t.g.BetAmount.Set(bet::DontCome(6), 10);
  t.g.BetAmount.Set(bet::DontComeOdds(6), 30);
  t.g.TotalOnTable += 40;
  t.g.BetChange = -5;
  PlaceBetOnTable(t.g, bet::DontCome(6));
  EXPECT_EQ(t.g.BetChangeAllowed, -5);
  EXPECT_EQ(t.g.BetAmount[bet::DontComeOdds(6)], 12);  // take 10 at 6 to 5, lay 12 to win 10
  EXPECT_EQ(t.g.TotalOnTable, 52);
  EXPECT_TRUE(t.ui.messages.empty());
  EXPECT_FALSE(t.ui.redrawn.empty());

  // Setting a maximum is silent and leaves the pending message as it was.
  TestTable u;
  u.SetPoint(4);
  u.Place(bet::kPassLine, 10);  // refused with the point on
  const std::string refusal = u.g.MsgText;
  u.g.BetAmount.Set(bet::kPassLine, 10);
  u.g.TotalOnTable = 10;
  SetBetToMaximum(u.g, bet::kPassOdds);
  EXPECT_EQ(u.g.BetAmount[bet::kPassOdds], 20);
  EXPECT_EQ(u.g.BetChangeAllowed, 20);
  EXPECT_EQ(u.g.NoticeMask, kNoticeDefault);
  EXPECT_EQ(u.g.MsgText, refusal);
  u.g.AllowNegativeBankroll = false;
  u.g.Bankroll() = 22;
  SetBetToMaximum(u.g, bet::kPassOdds);
  EXPECT_EQ(u.g.BetAmount[bet::kPassOdds], 12);
  EXPECT_EQ(u.ui.messages.size(), 1u);
  TakeDownBet(u.g, bet::kPassOdds);
  EXPECT_EQ(u.g.BetAmount[bet::kPassOdds], 0);
  EXPECT_EQ(u.g.TotalOnTable, 10);
}

// What a placement may leave behind, for comparing two ways of making it.
struct PlacementTrace {
  std::array<Currency, bet::kSlots> amounts;
  std::array<int32_t, bet::kLastTableBet + 1> status;
  Currency total, change, allowed;
  std::string text, title;
  bool changed;
  std::vector<int> redrawn;
  std::vector<RecordedMessage> messages;
  bool operator==(const PlacementTrace&) const = default;
};

PlacementTrace Trace(const TestTable& t) {
  PlacementTrace r{{}, {}, t.g.TotalOnTable, t.g.BetChange, t.g.BetChangeAllowed, t.g.MsgText, t.g.MsgTitle,
                   t.g.GameChanged, t.ui.redrawn, t.ui.messages};
  for (int id = 0; id < bet::kSlots; ++id) r.amounts[static_cast<size_t>(id)] = t.g.BetAmount[id];
  for (int id = 0; id <= bet::kLastTableBet; ++id) r.status[static_cast<size_t>(id)] = t.g.BetStatus[id];
  return r;
}

TEST(RestateBet, EndsAsTakingDownAndPuttingBackWould) {
  const struct {
    int betId, point;
    double amount;
    int adjustMode;
    double maximum, bankroll;
    bool restated;
  } cases[] = {
      {bet::Place(6), 6, 12, 0, 1000, 500, true},      // an Off bet comes back working
      {bet::Place(6), 0, 12, 1, 1000, 500, true},      // back to its come-out default
      {bet::kField, 8, 10, 1, 1000, 500, true},
      {bet::kPassLine, 0, 10, 0, 1000, 500, true},
      {bet::kHard4, 5, 50, 0, 1000, 500, true},        // above what the payoff limit allows
      {bet::Place(6), 6, 7.5, 0, 1000, 500, true},     // not whole chips
      {bet::Place(5), 6, 7, 1, 1000, 500, true},       // does not pay whole
      {bet::Place(6), 6, 3, 0, 1000, 500, true},       // below the table minimum
      {bet::Place(6), 6, 12, 0, 10, 500, true},        // above a lowered maximum
      {bet::Place(6), 6, 12, 0, 1000, 5, true},        // more than the bankroll holds
      {bet::kPassLine, 6, 10, 0, 1000, 500, false},    // held by its contract
      {bet::kDontPass, 6, 10, 0, 1000, 500, false},
      {bet::Buy(4), 6, 20, 0, 1000, 500, false},       // vig
      {bet::ComeOdds(6), 6, 10, 0, 1000, 500, false},  // odds
      {bet::kField, 6, 0, 0, 1000, 500, false},        // nothing up
  };
  for (const auto& c : cases) {
    TestTable t, twin;
    for (TestTable* table : {&t, &twin}) {
      table->SetPoint(c.point);
      Game& g = table->g;
      g.AllowNegativeBankroll = false;
      g.AutoAdjustMode = c.adjustMode;
      g.MaxPropBetPayoff = 1000;
      g.TableMinimum = 5;
      table->Stand(c.betId, Currency::FromDouble(c.amount));
      g.BetStatus.Set(c.betId, 2);
      g.TableMaximum = Currency::FromDouble(c.maximum);
      g.Bankroll() = Currency::FromDouble(c.bankroll);
      g.MsgText = "left over";
    }
    EXPECT_EQ(RestateBet(t.g, c.betId), c.restated) << c.betId;
    if (c.restated) {
      for (const Currency change : {-twin.g.BetAmount[c.betId], twin.g.BetAmount[c.betId]}) {
        twin.g.BetChange = change;
        PlaceBetOnTable(twin.g, c.betId);
      }
    }
    EXPECT_EQ(Trace(t), Trace(twin)) << c.betId << " " << c.amount;
  }
}

// Random tables, random bets and random changes: the shortcuts of PlaceBet
// must end every placement as the full walk of the rules does, notice and
// message included.
TEST(PlaceBet, ShortcutsEndAsEveryRuleWould) {
  std::mt19937 rng(20261124);
  auto pick = [&](auto... options) {
    const std::array values{options...};
    return values[std::uniform_int_distribution<size_t>(0, values.size() - 1)(rng)];
  };
  int shortcutsTaken = 0;
  for (int round = 0; round < 4000; ++round) {
    TestTable t, twin;
    const int point = pick(0, 4, 6, 9, 10);
    const std::array<int, 5> standing{pick(bet::kPassLine, bet::kDontPass, bet::kField),
                                      pick(bet::Come(6), bet::DontCome(9), bet::Place(8)),
                                      pick(bet::kCome, bet::kHard4, bet::Buy(4), bet::Lay(10)),
                                      pick(bet::ComeOdds(6), bet::kPassOdds, bet::kHorn), pick(0, bet::kBig6)};
    const std::array<double, 5> amounts{pick(5.0, 10.0, 12.0, 7.5), pick(6.0, 25.0, 3.0), pick(1.0, 20.0, 40.0),
                                        pick(10.0, 30.0, 0.5), pick(5.0, 12.0)};
    const bool putBets = pick(false, true), moving = pick(false, true), negative = pick(false, true);
    const int adjust = pick(0, 1, 2);
    const double minimum = pick(1.0, 5.0), maximum = pick(20.0, 1000.0), bankroll = pick(30.0, 500.0);
    const double chip = pick(1.0, 0.25, 5.0);
    const bool leftOver = pick(false, true), decided = pick(false, true);
    for (TestTable* table : {&t, &twin}) {
      Game& g = table->g;
      table->SetPoint(point);
      g.AllowPutBets = putBets;
      g.AutoAdjustMode = adjust;
      g.TableMinimum = Money(minimum);
      g.BetAmount.Set(bet::kFirstChip, Money(chip));
      for (size_t i = 0; i < standing.size(); ++i)
        if (standing[i] != 0) table->Stand(standing[i], Money(amounts[i]));
      if (decided)  // as a settled contract bet leaves its commitment
        for (int id : standing) g.SetCommitted(id, 0);
      g.TableMaximum = Money(maximum);
      g.AllowNegativeBankroll = negative;
      g.Bankroll() = Money(bankroll);
      g.MovingBet = moving;
      if (leftOver) g.MsgText = "left over";
    }
    const int id = pick(standing[0], standing[1], standing[2], standing[3], bet::kField, bet::kHard8, bet::Place(6),
                        bet::kPassOdds, bet::kDontPassOdds, bet::DontComeOdds(9), bet::kCome, bet::kDontCome,
                        bet::kTwelve, bet::kCandE, bet::Come(6));
    const Currency up = t.g.BetAmount[id];
    const Currency change = pick(-up, -up - Money(1), Money(-1), Money(1), Money(5), Money(6), Money(12),
                                 Money(2.5), Money(100), kStackLimit + Money(1));
    t.g.BetChange = twin.g.BetChange = change;
    const Currency totalBefore = t.g.TotalOnTable;
    PlaceBet(t.g, id);
    PlaceBetThroughEveryRule(twin.g, id);
    ASSERT_EQ(Trace(t), Trace(twin)) << "round " << round << " bet " << id << " change " << change.ToDouble();
    if (t.g.BetChangeAllowed == change && t.g.MsgText.empty() && t.g.TotalOnTable - totalBefore == change)
      ++shortcutsTaken;
  }
  EXPECT_GT(shortcutsTaken, 800);  // the draw reaches the shortcuts, not only the rules
}

}  // namespace
