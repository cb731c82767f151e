// The phantom unit is figured as the settling figures a real bet of 1, and
// staked as the general booking stakes it, for every bet, roll and point.

#include "engine/phantom_payoff.h"

#include <gtest/gtest.h>

#include "engine/table_for_test.h"
#include "stats/bet_results.h"

using namespace results;

TEST(PhantomPayoff, FiguresAsTheSettlingAndStakesAsTheBooking) {
  const int points[] = {0, 4, 5, 6, 8, 9, 10};
  for (int variant = 0; variant < 4; ++variant) {
    TestTable t;
    if (variant > 0) {  // odd payoffs, Pers that divide, vig on every decision or none
      t.g.Payoff.Set(bet::kHard4, {Currency(15), -1, Currency(2)});
      t.g.Payoff.Set(bet::kTwo, {Currency::FromDouble(29.5), 0, Currency(1)});
      t.g.Payoff.Set(bet::Come(5), {Currency(7), -1, Currency(3)});
      t.g.Payoff.Set(bet::kEleven, {Currency(16), -1, Currency(3)});
      t.g.Payoff.Set(bet::Lay(9), {Currency(2), -1, Currency(7)});
      t.g.FieldPayoff.Set(4, {Currency(5), -1, Currency(3)});
      t.g.ChargeAllLay = t.g.ChargeAllBuy = variant == 2;
      t.g.LayVigRate = Currency::FromDouble(variant == 3 ? 0.0333 : 0.05);
      t.g.BuyVigRate = Currency::FromDouble(variant == 3 ? 0.0125 : 0.05);
    }
    for (int point : points)
      for (int d1 = 1; d1 <= 6; ++d1)
        for (int d2 = 1; d2 <= 6; ++d2) {
          t.Dice(d1, d2, point);
          for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id)
            for (Outcome outcome : {Outcome::Win, Outcome::OddsWin, Outcome::Loss, Outcome::OddsLoss}) {
              const PhantomFigure f = FigurePhantom(RatesOf(t.g), FactsOf(t.g), id, outcome);
              FigurePayoff(t.g, 0, id, outcome, 1);
              ASSERT_EQ(f.Net, t.g.RawPayoff) << "bet " << id << " outcome " << static_cast<int>(outcome) << " dice " << d1 << d2
                                              << " point " << point << " variant " << variant;
              Game::BetResultTable& wagers = t.g.BetWagers;
              wagers[kPhantom][id][kMark] = 1;  // let a Come or Don't Come unit stand
              const Currency before = wagers[kPhantom][id][kTotal];
              BookBetResult(t.g, kPhantom, id, 1, f.Net);
              if (f.Net != 0) {
                ASSERT_EQ(f.Stake, wagers[kPhantom][id][kTotal] - before) << "bet " << id;
              }
            }
        }
  }
}
