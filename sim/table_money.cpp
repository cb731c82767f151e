// The table's money commands: checks, payoffs, the ATM, the seed and the
// simulated roll rate.

#include <string>

#include "engine/payoffs.h"
#include "dice/rng.h"
#include "engine/seed.h"
#include "engine/notices.h"
#include "sim/table_command.h"
#include "sim/table_limits.h"
#include "sim/table_listener.h"

using namespace table_limits;

namespace {

std::string Amount(Currency v) { return FormatNumberWithCommas(v); }

// The bounds of one record; the wording names the figure at fault.
std::optional<std::string> PayoffOutOfBounds(const PayoffRecord& p) {
  if (p.Per < kLeastUnit || p.Per > kMostPer) return "PER " + Amount(p.Per) + " must be from .01 to 1,000";
  if (Abs(p.Win) > p.Per * kMostRatio) return "WIN " + Amount(p.Win) + " is more than 1,000 times PER";
  if (p.Form != -1 && p.Form != 0) return "the form is -1 (to) or 0 (for)";
  return std::nullopt;
}

// The check of the configuration screen, told as a value instead of a
// message: the first check at fault.
std::optional<std::string> ChipsFault(const std::array<Currency, kChips>& values) {
  const std::string br = kBreak;
  for (int i = 0; i < kChips; ++i) {
    if (values[i] <= 0) return "Check values must be greater than zero.";
    if (i > 0 && values[i] < values[i - 1])
      return "Checks must be listed in ascending order with the " + br +
             "smallest valued check in the leftmost position.";
    if (values[i].raw % values[0].raw != 0) return "All checks must be wholly divisible by the smallest check.";
    if (values[i] < kLeastUnit || values[i] > kMostChip) return "Check values run from .01 to 100,000.";
  }
  return std::nullopt;
}

}  // namespace

TableResult Table::SetChip(int n, Currency value) {
  return Command([&](Game& g) {
    if (n < 1 || n > kChips) return TableResult::Fail(TableCode::Unknown, "there are checks 1 to 5");
    if (value < kLeastUnit || value > kMostChip)
      return TableResult::Fail(TableCode::OutOfRange, "VALUE " + Amount(value) + " must be from .01 to 100,000");
    g.BetAmount.Set(bet::kFirstChip + n - 1, value);
    return MarkUnsavedIf(true);
  });
}

TableResult Table::SetChips(const std::array<Currency, kChips>& values) {
  return Command([&](Game& g) {
    if (const auto fault = ChipsFault(values)) return TableResult::Fail(TableCode::OutOfRange, *fault, "Check Values");
    for (int n = 0; n < kChips; ++n) g.BetAmount.Set(bet::kFirstChip + n, values[static_cast<size_t>(n)]);
    return MarkUnsavedIf(true);
  });
}

TableResult Table::SetPayoff(int betId, const PayoffRecord& payoff) {
  return Command([&](Game& g) {
    if (!bet::IsTableBet(betId))
      return TableResult::Fail(TableCode::Unknown, "no table bet has the number " + std::to_string(betId));
    if (const auto fault = PayoffOutOfBounds(payoff)) return TableResult::Fail(TableCode::OutOfRange, *fault);
    // The payoff grid's own check: no bet of the grid pays nothing.
    bool inGrid = false;
    for (int row = 1; row <= kPayoffGridRows; ++row) inGrid = inGrid || PayoffGridBet(row) == betId;
    if (inGrid && payoff.Win == 0)
      return TableResult::Fail(TableCode::OutOfRange, "The payoff must be a positive amount.",
                               "Payoff ratio error on " + PayoffRowLabel(g, betId));
    g.Payoff.Set(betId, payoff);
    // The line odds records follow the odds rows of the point.
    if ((bet::IsComeOdds(betId) || bet::IsDontComeOdds(betId)) && g.Point != 0) SyncOddsPayoffs(g);
    return MarkUnsavedIf(true);
  });
}

TableResult Table::SetFieldPayoff(int row, const PayoffRecord& payoff) {
  return Command([&](Game& g) {
    if (row < 1 || row > kFieldRows) return TableResult::Fail(TableCode::Unknown, "the Field has rows 1 to 21");
    if (const auto fault = PayoffOutOfBounds(payoff)) return TableResult::Fail(TableCode::OutOfRange, *fault);
    if (payoff.Win < -payoff.Per)
      return TableResult::Fail(TableCode::OutOfRange, "The loss on any Field payoff cannot exceed the amount wagered.",
                               "Payoff ratio error on Field");
    // Worded as the configuration check words it, spelling and all.
    bool anyWins = payoff.Win > 0;
    for (int other = 1; other <= kFieldRows; ++other)
      anyWins = anyWins || (other != row && g.FieldPayoff[other].Win > 0);
    if (!anyWins)
      return TableResult::Fail(TableCode::OutOfRange, "At least one of the Field payoffs must be postiive.",
                               "Payoff error on Field");
    g.FieldPayoff.Set(row, payoff);
    return MarkUnsavedIf(true);
  });
}

AtmResult Table::Atm(AtmAction action, Currency amount) {
  return Command<AtmResult>([&](Game& g) {
    AtmResult r;
    if (amount < 0) {
      r.code = TableCode::OutOfRange;
      r.text = "the amount must not be negative";
      return r;
    }
    r.allowed = ::Atm(g, action, amount);
    if (r.allowed != amount) {
      // Masked notices are not composed: the cut is told in the notice's own first lines.
      const TableResult told =
          Told(*relay_, TableCode::Refused,
               "Requested amount:  " + Dollars(amount) + kBreak + "Allowed amount:  " + Dollars(r.allowed));
      static_cast<TableResult&>(r) = told;
    }
    return r;
  });
}

TableResult Table::Seed(Currency seed) {
  return Command([&](Game& g) {
    g.SeedRequest = seed;
    SeedRNG(g, true);
    return MarkUnsavedIf(true);
  });
}

TableResult Table::SetRollRate(Currency value, RateUnit unit) {
  return Command([&](Game& g) {
    const Currency before = g.SimRollRate;
    if (!SetRollsPerHour(g, value, unit)) return Told(*relay_, TableCode::OutOfRange, "the rate is out of limits");
    if (g.SimRollRate != before)
      for (TableListener* l : listeners_) l->SettingChanged("SimRollRate");
    return MarkUnsavedIf(g.SimRollRate != before);
  });
}
