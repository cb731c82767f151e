#include "stats/phantom_ledger.h"

#include <algorithm>
#include <bit>

#include "engine/phantom_payoff.h"
#include "engine/result_cells.h"
#include "engine/throw_plan.h"

using namespace results;

namespace {

// The rates the ledger counted on, not the game's: those may have changed.
PhantomRates LedgerRates(const PhantomLedger& l) {
  return {l.payoffRows.data(), l.fieldRows.data(), l.terms.layVigRate, l.terms.buyVigRate, l.terms.chargeAllLay,
          l.terms.chargeAllBuy};
}

PhantomTerms TermsOf(const Game& g) {
  return {g.Payoff.Version(), g.FieldPayoff.Version(), g.LayVigRate, g.BuyVigRate,
          g.ChargeAllLay,     g.ChargeAllBuy,          g.AllowPutBets, g.BarNumber};
}

bool IsNumberUnit(int id) { return id >= kFirstNumberUnit && id < kFirstNumberUnit + kNumberUnits; }

// The four units decided when number n comes: the Don't Come and its odds
// lose, the Come and its odds win.
uint32_t UnitsOfNumber(int n) {
  const int i = bet::NumberIndex(n);
  uint32_t bits = 0;
  for (int base : {bet::kDontComeBase, bet::kDontComeOddsBase, bet::kComeNumberBase, bet::kComeOddsBase})
    bits |= uint32_t{1} << (base + i - kFirstNumberUnit);
  return bits;
}
constexpr uint32_t kAllNumberUnits = (uint32_t{1} << kNumberUnits) - 1;
// The Come numbers and their odds, bets 19..30.
constexpr uint32_t kPutUnits = kAllNumberUnits & ~((uint32_t{1} << (bet::kComeNumberBase - kFirstNumberUnit)) - 1);

// How a number unit goes: on its number the Don't side loses, on the seven it wins.
Outcome NumberUnitOutcome(int id, bool seven) {
  const bool dontSide = bet::IsDontComeNumber(id) || bet::IsDontComeOdds(id);
  const bool odds = bet::IsDontComeOdds(id) || bet::IsComeOdds(id);
  const bool won = dontSide == seven;
  if (odds) return won ? Outcome::OddsWin : Outcome::OddsLoss;
  return won ? Outcome::Win : Outcome::Loss;
}

// `times` entries of one amount.
void BookTimes(Cell& cell, Currency amount, int32_t times) {
  cell[kCount] += Currency(times);
  cell[kTotal] += amount * times;
  if (amount > cell[kHigh]) cell[kHigh] = amount;
  if (cell[kLow] == 0 || amount < cell[kLow]) cell[kLow] = amount;
  cell[kLast] = amount;
}

void BookUnits(Game& g, int id, const PhantomFigure& f, int32_t times) {
  if (f.Net == 0 || times == 0) return;
  const bool won = f.Net > 0;
  BookTimes(g.BetWagers[kPhantom][id], f.Stake, times);
  BookTimes((won ? g.BetWins : g.BetLosses)[kPhantom][id], won ? f.Net : -f.Net, times);
}

// The last roll's measures of a unit the latest throw decided.
void MarkLastRoll(Game& g, int id, const PhantomFigure& f) {
  if (f.Net == 0) return;
  const bool won = f.Net > 0;
  Cell& wager = g.BetWagers[kPhantom][id];
  Cell& result = (won ? g.BetWins : g.BetLosses)[kPhantom][id];
  wager[kLastRollCount] = result[kLastRollCount] = Currency(1);
  wager[kLastRollAmount] = f.Stake;
  result[kLastRollAmount] = won ? f.Net : -f.Net;
  ListForNextRoll(g, kPhantom, id, won ? kInWins : kInLosses);
}

ThrowFacts FactsOfKey(const PhantomLedger& l, int key) {
  const int pair = key % 36;
  return {pair / 6 + 1, pair % 6 + 1, PointOfState(l.contextState[key / 36])};
}

// Calls book(id, figure) for each unit of the key's throw that stands apart
// from the numbers and works.
template <typename Book>
void ForEachThrowUnit(const Game& g, int key, Book book) {
  const ThrowFacts facts = FactsOfKey(g.Phantoms, key);
  const WorkingSet& working = g.Phantoms.contextWorking[key / 36];
  const ThrowPlan& plan = PlanFor(facts.die1, facts.die2, facts.pointBefore, g.Phantoms.terms.barNumber);
  const PhantomRates rates = LedgerRates(g.Phantoms);
  for (int i = 0; i < plan.count; ++i) {
    const ThrowStep& step = plan.steps[i];
    if (step.kind != StepKind::Settle || IsNumberUnit(step.bet) || !working.Has(step.bet)) continue;
    book(step.bet, FigurePhantom(rates, facts, step.bet, step.outcome));
  }
}

PhantomFigure NumberUnitFigure(const Game& g, int id, bool seven) {
  return FigurePhantom(LedgerRates(g.Phantoms), ThrowFacts{}, id, NumberUnitOutcome(id, seven));
}

// The number units standing now: those marked, and with Put bets the Come
// numbers and their odds, which may always be put.
uint32_t StandingUnits(Game& g) {
  PhantomLedger& l = g.Phantoms;
  if (!l.marksKnown) {
    l.marks = 0;
    for (int unit = 0; unit < kNumberUnits; ++unit)
      if (g.BetWagers[kPhantom][kFirstNumberUnit + unit][kMark] != 0) l.marks |= uint32_t{1} << unit;
    l.marksKnown = true;
  }
  return l.marks | (g.AllowPutBets ? kPutUnits : 0);
}

void StartLedger(Game& g) {
  PhantomLedger& l = g.Phantoms;
  l.open = true;
  l.terms = TermsOf(g);
  l.payoffRows = g.Payoff.Rows();
  l.fieldRows = g.FieldPayoff.Rows();
  l.contextCount = 0;
  l.lastContext = 0;
}

// The context of the throw now on the table, added if new; -1 when the
// ledger has no room for another.
int ContextOf(PhantomLedger& l, int state, const WorkingSet& working) {
  auto matches = [&](int c) { return l.contextState[c] == state && l.contextWorking[c] == working; };
  if (l.contextCount > 0 && matches(l.lastContext)) return l.lastContext;
  for (int c = 0; c < l.contextCount; ++c)
    if (matches(c)) return l.lastContext = c;
  if (l.contextCount == kLedgerContexts) return -1;
  const int c = l.contextCount++;
  l.contextState[c] = static_cast<int8_t>(state);
  l.contextWorking[c] = working;
  return l.lastContext = c;
}

}  // namespace

void OpenThrow(Game& g) {
  g.PhantomsDeferred = false;
  if (g.StatisticsInFull) return;
  if (g.Die1 < 1 || g.Die1 > 6 || g.Die2 < 1 || g.Die2 > 6) return;
  PhantomLedger& l = g.Phantoms;
  if (!l.open || !(l.terms == TermsOf(g))) {
    FoldPhantoms(g);
    StartLedger(g);
  }
  const int state = PointState(g.PointBeforeRoll);
  if (ContextOf(l, state, g.BetStatus.Working()) < 0) {
    FoldPhantoms(g);
    StartLedger(g);
    ContextOf(l, state, g.BetStatus.Working());
  }
  g.PhantomsDeferred = true;
}

void CountThrow(Game& g) {
  if (!g.PhantomsDeferred) return;  // its units were booked as it settled
  g.PhantomsDeferred = false;
  PhantomLedger& l = g.Phantoms;
  const int context = l.lastContext;  // the throw's, found as it opened
  const int key = context * 36 + PairIndex(g.Die1, g.Die2);
  if (l.throws[key]++ == 0) l.touched[l.touchedCount++] = static_cast<int16_t>(key);
  l.lastThrow[key] = ++l.serial;

  const int total = g.DiceTotal;
  const bool seven = total == 7;
  const uint32_t decided = seven ? kAllNumberUnits : bet::IsPointNumber(total) ? UnitsOfNumber(total) : 0;
  const uint32_t standing = decided & StandingUnits(g);
  for (uint32_t units = standing; units != 0; units &= units - 1)
    ++l.numberUnits[std::countr_zero(units)][context][seven ? 1 : 0];
  l.anyNumberUnits = l.anyNumberUnits || standing != 0;
  l.latestLive = true;
  l.latestKey = key;
  l.latestNumberUnits = standing;
}

void AgeLatestThrow(Game& g) { g.Phantoms.latestLive = false; }

void FoldPhantoms(Game& g) {
  PhantomLedger& l = g.Phantoms;
  if (l.touchedCount == 0 && !l.anyNumberUnits) return;
  // In the order the throws last came, so that each cell's last amount is
  // the latest throw's.
  std::sort(l.touched.begin(), l.touched.begin() + l.touchedCount,
            [&l](int16_t a, int16_t b) { return l.lastThrow[a] < l.lastThrow[b]; });
  for (int k = 0; k < l.touchedCount; ++k) {
    const int key = l.touched[k];
    const int32_t times = l.throws[key];
    ForEachThrowUnit(g, key, [&](int id, const PhantomFigure& f) { BookUnits(g, id, f, times); });
  }
  // A number unit's amount is the same on every throw of one side, and each
  // side books into its own result cell: order does not matter here.
  if (l.anyNumberUnits) {
    for (int unit = 0; unit < kNumberUnits; ++unit) {
      const int id = kFirstNumberUnit + unit;
      for (int context = 0; context < l.contextCount; ++context) {
        if (!l.contextWorking[context].Has(id)) continue;
        for (int side = 0; side < 2; ++side)
          BookUnits(g, id, NumberUnitFigure(g, id, side == 1), l.numberUnits[unit][context][side]);
      }
    }
  }
  if (l.latestLive && l.touchedCount > 0) {
    ForEachThrowUnit(g, l.latestKey, [&](int id, const PhantomFigure& f) { MarkLastRoll(g, id, f); });
    const WorkingSet& working = l.contextWorking[l.latestKey / 36];
    const bool seven = FactsOfKey(l, l.latestKey).Total() == 7;
    for (uint32_t units = l.latestNumberUnits; units != 0; units &= units - 1) {
      const int id = kFirstNumberUnit + std::countr_zero(units);
      if (working.Has(id)) MarkLastRoll(g, id, NumberUnitFigure(g, id, seven));
    }
  }
  for (int k = 0; k < l.touchedCount; ++k) l.throws[l.touched[k]] = l.lastThrow[l.touched[k]] = 0;
  l.touchedCount = 0;
  l.serial = 0;
  if (l.anyNumberUnits) l.numberUnits = {};
  l.anyNumberUnits = false;
  l.latestLive = false;
}
