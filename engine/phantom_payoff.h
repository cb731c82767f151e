#pragma once
// The phantom one-unit wager of every working spot, figured as the settling
// figures FigurePayoff (0, BetId, Outcome, 1), but without touching the
// payoff scratch of the real bet and without its rounding to checks, which
// the phantom does not use. It runs for every working spot on every
// decision, so the common cases are inline and worked straight from the
// payoff rows.

#include "engine/game.h"
#include "engine/result_cells.h"
#include "engine/settle.h"

// The throw a phantom unit is figured for.
struct ThrowFacts {
  int die1 = 1, die2 = 1;
  int pointBefore = 0;
  int Total() const { return die1 + die2; }
};
inline ThrowFacts FactsOf(const Game& g) { return {g.Die1, g.Die2, g.PointBeforeRoll}; }

// The terms a unit is paid on: the payoff rows, the Field's rows and the vig.
struct PhantomRates {
  const PayoffRecord* payoff;  // rows 0..100
  const PayoffRecord* field;   // rows 0..21
  Currency layVigRate, buyVigRate;
  bool chargeAllLay, chargeAllBuy;
};
inline PhantomRates RatesOf(const Game& g) {
  return {g.Payoff.Rows().data(), g.FieldPayoff.Rows().data(), g.LayVigRate, g.BuyVigRate, g.ChargeAllLay,
          g.ChargeAllBuy};
}

struct PhantomFigure {
  Currency Stake;  // 1, plus the vig where it is paid
  Currency Net;    // the raw payoff
};

// Win x 1 / Per; a Per of 1 needs no division.
inline Currency UnitShare(const PayoffRecord& record) {
  if (record.Per.raw == Currency::kScale) return record.Win;
  if (record.Per.raw == 0) return Currency{};  // validation keeps Per above zero
  return MulDiv(Currency(1), record.Win, record.Per);
}

// The rarer cases: a Lay or Buy, and a won line or split bet.
PhantomFigure FigurePhantomInFull(const PhantomRates& r, const ThrowFacts& t, int betId, Outcome outcome);

inline PhantomFigure FigurePhantom(const PhantomRates& r, const ThrowFacts& t, int betId, Outcome outcome) {
  const Currency unit = 1;
  if (betId == bet::kField) return {unit, UnitShare(r.field[bet::FieldRow(t.die1, t.die2)])};
  if (betId <= bet::kBuyBase + 5) {
    if (bet::IsLay(betId) || bet::IsBuy(betId)) return FigurePhantomInFull(r, t, betId, outcome);
  }
  if (!IsWin(outcome)) return {unit, -unit};
  switch (betId) {
    case bet::kPassLine:
    case bet::kPassOdds:
    case bet::kDontPass:
    case bet::kDontPassOdds:
    case bet::kCandE:
    case bet::kHorn:
    case bet::kWorld: return FigurePhantomInFull(r, t, betId, outcome);
    default: return {unit, UnitShare(r.payoff[betId])};
  }
}

// Figures and books the phantom unit of betId, when one stands there.
inline void BookPhantomResult(Game& g, int betId, Outcome outcome) {
  if (!results::PhantomStands(g, betId)) return;
  const PhantomFigure f = FigurePhantom(RatesOf(g), FactsOf(g), betId, outcome);
  results::BookEntry(g, results::kPhantom, betId, f.Stake, f.Net);
}
