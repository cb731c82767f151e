#include "ui/table_look.h"

#include <algorithm>

#include "engine/game.h"
#include "engine/payoffs.h"
#include "ui/table_schemes.h"

namespace {

QString Money(Currency c) { return QString::fromStdString(FormatNumberWithCommas(c)); }

QString PayoffText(const PayoffRecord& p) {
  if (p.Win.raw <= 0) return {};
  return Money(PayoffShownAmount(p)) + QLatin1Char(' ') + QLatin1String(PayoffFormWord(p)) + QLatin1Char(' ') +
         Money(p.Per);
}

// The Field prints the totals it wins on; those paying other than even
// money get a note, in the words a real layout uses for 2 and 3 to 1.
FieldPrint FieldOf(const Game& g) {
  FieldPrint print;
  for (int total = 2; total <= 12; ++total) {
    const int low = std::max(1, total - 6);
    const PayoffRecord& p = g.FieldPayoff[bet::FieldRow(low, total - low)];
    if (p.Win.raw <= 0) continue;
    print.numbers << QString::number(total);
    if (p.Win == p.Per && p.Form != 0) continue;  // even money needs no note
    const bool per1 = p.Per == Currency(1) && p.Form != 0;
    const QString pays = per1 && p.Win == Currency(2)   ? QStringLiteral("DOUBLE")
                         : per1 && p.Win == Currency(3) ? QStringLiteral("TRIPLE")
                                                        : PayoffText(p).toUpper();
    print.notes << QStringLiteral("%1 PAYS %2").arg(total).arg(pays);
  }
  return print;
}

// The payoff row a bet is paid from: the line bets share the rows of their
// come-out and odds families.
int PayoffRowOf(int id) {
  if (id == bet::kPassLine) return bet::kCome;
  if (id == bet::kDontPass) return bet::kDontCome;
  return id;
}

}  // namespace

TableLook LookOf(const Game& g) {
  TableLook look;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    look.amounts[id] = g.BetAmount[id];
    look.statuses[id] = g.BetStatus[id];
    // The split props (C and E, Horn, World) pay by the props they split into.
    const bool split = id == bet::kCandE || id == bet::kHorn || id == bet::kWorld || id == bet::kField;
    const bool odds = id == bet::kPassOdds || id == bet::kDontPassOdds;
    if (!split && (!odds || g.Point != 0)) look.payoffs[id] = PayoffText(g.Payoff[PayoffRowOf(id)]);
  }
  look.point = g.Point;
  look.die1 = g.Die1;
  look.die2 = g.Die2;
  for (int colour = 1; colour <= bet::kChipColours; ++colour) look.checks[colour - 1] = g.BetAmount[bet::ChipSlot(colour)];
  for (int i = 0; i < 4; ++i) {
    const int slot = g.TrayStack[i + 1];
    if (!bet::IsStack(slot)) continue;
    look.stacks[i] = {QString::fromStdString(g.BetName[slot]), g.BetAmount[slot]};
  }
  look.tool = g.ClickTool;
  look.barNumber = g.BarNumber;
  look.field = FieldOf(g);
  look.scheme = g.TableScheme;
  look.colours = SchemeColours(g.TableScheme);
  look.chipStyle = ChipStyleOf(g.ChipStyle);
  look.diceStyle = DiceStyleOf(g.DiceStyle);
  return look;
}
