// The vig of Buy and Lay bets and its upkeep on the table.

#include "engine/rules.h"
#include "engine/game.h"

Currency RoundVig(Currency v, Currency chip, int32_t mode) {
  if (v.raw <= 0) return 0;
  if (chip.raw <= 0) return v;
  const int64_t whole = v.raw / chip.raw;  // Int(q): v is positive here
  const int64_t rest = v.raw % chip.raw;
  Currency rounded = v;
  switch (mode) {
    case 0:  // a fraction of exactly one half goes down, on purpose
      rounded = Currency::FromRaw((rest * 2 > chip.raw ? whole + 1 : whole) * chip.raw);
      break;
    case 1:
      rounded = Currency::FromRaw(whole * chip.raw);
      break;
    case 2:
      rounded = Currency::FromRaw((rest != 0 ? whole + 1 : whole) * chip.raw);
      break;
    default:  // unknown modes leave the vig as figured
      break;
  }
  // A vig that is charged at all is at least one check.
  return rounded < chip ? chip : rounded;
}

Currency FigureBuyVig(const Game& g, int betId, Currency amount) {
  if (!bet::IsBuy(betId) || amount == 0 || g.BuyVigRate == 0) return 0;
  return RoundVig(MulRatio(amount, g.BuyVigRate.ToDouble()), g.SmallestChip(), g.RoundBuyVig);
}

Currency FigureLayVig(const Game& g, int betId, Currency amount) {
  if (!bet::IsLay(betId) || amount == 0 || g.LayVigRate == 0) return 0;
  const PayoffRecord& p = g.Payoff[betId];
  if (p.Per.raw <= 0) return 0;
  // A percentage of what the Lay would win.
  Currency wins = MulRatio(amount, p.Win.ToDouble() / p.Per.ToDouble());
  return RoundVig(MulRatio(wins, g.LayVigRate.ToDouble()), g.SmallestChip(), g.RoundLayVig);
}

void RefigureVigs(Game& g) {
  Currency total;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) total += g.BetAmount[id];
  for (int i = 0; i < 6; ++i) {
    g.BuyVigOnBet[i] = FigureBuyVig(g, bet::kBuyBase + i, g.BetAmount[bet::kBuyBase + i]);
    g.LayVigOnBet[i] = FigureLayVig(g, bet::kLayBase + i, g.BetAmount[bet::kLayBase + i]);
    if (g.ChargeAllBuy) total += g.BuyVigOnBet[i];
    if (g.ChargeAllLay) total += g.LayVigOnBet[i];
  }
  g.TotalOnTable = total;
}
