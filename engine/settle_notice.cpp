#include "engine/settle_notice.h"

#include <cmath>

#include "engine/payoffs.h"
#include "engine/game.h"
#include "engine/notices.h"
#include "engine/settle.h"

namespace {

using Row = std::pair<std::string, std::string>;

std::string PressCaption(Currency unit) { return "Press 1 &Unit - Add $" + FormatNumberWithCommas(unit) + " to Bet"; }

std::vector<std::string> WonButtons(const Game& g, int betId) {
  if (g.BetComesDown) return {"&Take Bet and Winnings"};
  return {"&Take Bet and Winnings",
          "&Same Bet - Take Winnings",
          PressCaption(PressUnit(g, betId)),
          "Press - Add Winnings to &Double Bet",
          "Parlay - Add &All Winnings to Bet",
          "Sa&me Bet:",
          "&Bet:"};
}

Row BetRow(const Game& g, int betId) { return {g.BetName[betId] + " bet:", Dollars(g.BetAmount[betId])}; }

// "-5% vig:" for a 5% rate: the rate as the vig's share of the payoff.
std::string VigLabel(Currency rate, const char* tail) { return FormatNumberWithCommas(MulRatio(rate, -100)) + tail; }

Currency VigRate(const Game& g, int betId) { return bet::IsLay(betId) ? g.LayVigRate : g.BuyVigRate; }

bool HasVig(int betId) { return bet::IsLay(betId) || bet::IsBuy(betId); }

Row NetRow(const Game& g, const char* rounded, const char* exact) {
  return {g.NetPayoff != g.RawPayoff ? rounded : exact, Dollars(g.NetPayoff)};
}

// The split props show the winning part, what it paid, and the parts that lost.
struct SplitLabels {
  int parts;
  const char* part;
  const char* rest;
};
SplitLabels LabelsOf(int betId) {
  if (betId == bet::kCandE) return {2, "1/2 of bet:", "Less 1/2 of bet:"};
  if (betId == bet::kHorn) return {4, "1/4 of bet:", "Less 3/4 of bet:"};
  return {5, "1/5 of bet:", "Less 4/5 of bet:"};
}

Currency Fraction(Currency amount, int numerator, int denominator) {
  return Currency::FromRaw(
      static_cast<int64_t>(std::nearbyint(static_cast<double>(amount.raw) * numerator / denominator)));
}

std::vector<Row> SplitRows(const Game& g, int betId) {
  SplitLabels labels = LabelsOf(betId);
  Currency amount = g.BetAmount[betId];
  Currency rest = Fraction(amount, labels.parts - 1, labels.parts);
  return {{labels.part, Dollars(Fraction(amount, 1, labels.parts))},
          {PayoffWording("Payoff at ", g.Payoff[0]), Dollars(g.RawPayoff + rest)},
          {labels.rest, Dollars(-rest)},
          NetRow(g, "Net payoff (rounded): ", "Net payoff: ")};
}

}  // namespace

SettleNotice WonNotice(const Game& g, int betId) {
  SettleNotice n;
  n.title = g.NetPayoff > 0 ? "* * * Winner * * *" : "Push";
  const PayoffRecord& paid = g.Payoff[0];
  if (betId == bet::kCandE || betId == bet::kHorn || betId == bet::kWorld) {
    n.rows = SplitRows(g, betId);
  } else if (HasVig(betId)) {
    Currency vig = VigTaken(g, betId);
    n.rows = {BetRow(g, betId),
              {PayoffWording("Payoff at ", paid), Dollars(g.RawPayoff + vig)},
              {VigLabel(VigRate(g, betId), "% vig:"), Dollars(-vig)},
              NetRow(g, "Net payoff (rounded): ", "Net payoff: ")};
  } else {
    n.rows = {BetRow(g, betId), {PayoffWording("Payoff at ", paid), Dollars(g.RawPayoff)}};
    if (g.NetPayoff != g.RawPayoff) n.rows.push_back({"Net payoff (rounded): ", Dollars(g.NetPayoff)});
  }
  n.buttons = WonButtons(g, betId);
  return n;
}

SettleNotice OddsReturnedNotice(const Game& g, int betId) {
  SettleNotice n;
  n.title = "Odds Bet Returned";
  n.rows = {BetRow(g, betId), {"wasn't working!", ""}};
  n.buttons = WonButtons(g, betId);
  return n;
}

SettleNotice LostNotice(const Game& g, int betId, Currency unit) {
  SettleNotice n;
  n.won = false;
  n.title = "Bet Lost";
  const PayoffRecord& paid = g.Payoff[0];
  bool paysOut = paid.Win > 0 && paid.Per > 0;
  Currency vig = VigTaken(g, betId);
  n.rows = {BetRow(g, betId), {PayoffWording(paysOut ? "Payoff at " : "Loss at ", paid), Dollars(g.RawPayoff + vig)}};
  if (HasVig(betId)) n.rows.push_back({VigLabel(VigRate(g, betId), "& vig:"), Dollars(-vig)});
  n.rows.push_back(NetRow(g, "Net loss (rounded): ", "Net loss: "));
  Currency remainder = g.BetAmount[betId] + g.NetPayoff;
  if (remainder > 0) n.rows.push_back({"Remainder: ", Dollars(remainder)});
  if (g.BetComesDown)
    n.buttons = {"No Bet/Take Remainder"};
  else
    n.buttons = {"No Bet/Take Remainder", "Bet Remainder", "Same Bet", PressCaption(unit), "Double Bet"};
  return n;
}
