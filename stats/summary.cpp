#include "stats/summary.h"

#include <cmath>

#include "engine/notices.h"
#include "stats/bet_results.h"
#include "stats/comps.h"
#include "stats/game_measures.h"
#include "stats/number_formats.h"

using namespace results;

namespace {

std::string Count(int64_t n) { return FormatWithCommas(n); }
std::string Count(Currency n) { return FormatWithCommas(Floor(n)); }

// Counter `num` over the hands completed, 0 before the first hand ends.
std::string PerHand(const Game& g, hand::Stat num) {
  const int32_t hands = g.HandStats[hand::kHands];
  return FormatUpToTwoDecimals(hands < 1 ? 0 : static_cast<double>(g.HandStats[num]) / hands);
}

// The "$" form of the money format, "#,#" whole and "#,#.00##" otherwise.
std::string Money(Currency c) { return Dollars(c); }

}  // namespace

std::vector<SummaryRow> ShowSummary(Game& g) {
  FillTotalsCell(g, kActual);
  const auto& wagers = g.BetWagers[kActual][0];
  const auto& wins = g.BetWins[kActual][0];
  const auto& losses = g.BetLosses[kActual][0];
  const Currency net = wins[kTotal] - losses[kTotal];
  const double decided = wagers[kTotal].ToDouble();
  const auto& h = g.HandStats;
  auto count = [&](hand::Stat i) { return Count(int64_t{h[i]}); };

  return {
      {"Total rolls:", Count(int64_t{g.RollCounts[0]}), ""},
      {"Total comp value:", Money(comps::CompValue(g)), ""},
      {"Rolls/hr:", RollsPerHourText(g.SimRollRate), ""},
      {"Sim hrs:", SimHoursText(SimHours(g)), ""},
      {"Bankroll:", "", ""},
      {"High:", Money(g.HighBankroll), ""},
      {"Current:", Money(g.Bankroll()), ""},
      {"Low:", Money(g.LowBankroll), ""},
      {"Average:", Money(AverageBankroll(g)), ""},
      {"Total number of:", "", ""},
      {"Bets decided:", Count(wagers[kCount]), ""},
      {"Bets won:", Count(wins[kCount]), ""},
      {"Bets lost:", Count(losses[kCount]), ""},
      {"Total $ amount of:", "", ""},
      {"Bets decided:", Money(wagers[kTotal]), ""},
      {"Bets won:", Money(wins[kTotal]), ""},
      {"Bets lost:", Money(losses[kTotal]), ""},
      {net < 0 ? "Net loss:" : "Net win:", Money(net), FormatPercent(decided != 0 ? net.ToDouble() / decided : 0)},
      {"Hands:", "", ""},
      {"# of rolls (current Hand):", count(hand::kRolls), ""},
      {"# of Passes (current Hand):", count(hand::kWins), ""},
      {"Total completed:", count(hand::kHands), ""},
      {"Longest # of rolls:", count(hand::kMostRolls), ""},
      {"Average # of rolls:", PerHand(g, hand::kRollsOfHands), ""},
      {"Most Passes:", count(hand::kMostWins), ""},
      {"Average # of Passes:", PerHand(g, hand::kWinsOfHands), ""},
      {"# of Come-out rolls:", count(hand::kComeOutRolls), ""},
      {"# that Passed (7, 11):", count(hand::kComeOutWins), ""},
      {"# that Missed (2, 3, 12):", count(hand::kComeOutLosses), ""},
      {"# of Points established:", count(hand::kPointsEstablished), ""},
      {"# that Passed (rolled point):", count(hand::kPointsMade), ""},
      {"# that Missed (Seven-out):", count(hand::kSevenOuts), ""},
      {"Total Passes:", count(hand::kAllWins), ""},
      {"Total Misses:", count(hand::kAllLosses), ""},
  };
}

std::vector<BetTrendRow> BetTrendRows(const Game& g) {
  std::vector<BetTrendRow> rows;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    const BetTrend& t = g.BetTrends[id];
    if (t.Count() == 0) continue;
    BetTrendRow row{id, g.BetName[id], "", ""};
    for (int i = 0; i < t.Count(); ++i) {
      if (i > 0) row.Results += "|";
      row.Results += FormatWithCommas(std::llround(t.Net(i).ToDouble()));
    }
    row.Span = FormatWithCommas(int64_t{g.RollCounts[0]} - t.Roll(0) + 1) + " rolls";
    rows.push_back(row);
  }
  return rows;
}
