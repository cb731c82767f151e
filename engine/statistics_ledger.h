#pragma once
// What the statistics count in bulk during a run, between the moments they
// bring the figures of the game up to date: the dice of every roll and the
// phantom one-unit wagers of every throw. Almost every statistic is a
// function of how often each pair of dice came with each point and when each
// last came, so a roll adds to a handful of counters here instead of to
// ninety roll counters and a hundred result cells; stats/ folds the counters
// into those figures when anything reads them or anything they depend on
// changes. Plain records: stats/ owns what they mean.

#include <array>
#include <cstdint>

#include "dice/money.h"
#include "engine/bet_status_table.h"
#include "engine/payoff_rows.h"

// Pairs of dice 0..35; 36 counts a roll whose dice were not on the table.
constexpr int kPairSlots = 37;
constexpr int kNoPair = 36;

struct RollTally {
  std::array<int32_t, kPairSlots> count{};  // rolls of each pair since the figures were written
  std::array<int32_t, kPairSlots> last{};   // the roll (1.. of the tally) each pair last came
  int32_t rolls = 0;
  int32_t latestPair = kNoPair;
  int32_t latestPairBefore = 0;  // last[latestPair] before the latest roll
  bool latestCounted = true;     // false: a roll started and threw no dice
};

// The terms a phantom unit's result is figured on: while they hold, each
// throw's units are a function of its dice and point.
struct PhantomTerms {
  uint32_t payoffVersion = 0;
  uint32_t fieldVersion = 0;
  Currency layVigRate, buyVigRate;
  bool chargeAllLay = false, chargeAllBuy = false, putBets = false;
  int32_t barNumber = 12;
  friend bool operator==(const PhantomTerms&, const PhantomTerms&) = default;
};

// A context: a point state with the bets that worked in it. A hand moves
// through a few (odds returned on the come-out work until the next one), so
// the ledger keeps several side by side before it must fold.
constexpr int kLedgerContexts = 64;
constexpr int kThrowKeys = kLedgerContexts * 36;
// The Come and Don't Come numbers and their odds, bets 7..30.
constexpr int kFirstNumberUnit = 7;
constexpr int kNumberUnits = 24;

struct PhantomLedger {
  bool open = false;
  PhantomTerms terms;
  // The rows the terms stand for, as they were: a fold after a change of
  // payoffs books what was counted before it on the old ones.
  std::array<PayoffRecord, 101> payoffRows{};
  std::array<PayoffRecord, 22> fieldRows{};
  std::array<int8_t, kLedgerContexts> contextState{};  // point state 0..6
  std::array<WorkingSet, kLedgerContexts> contextWorking{};
  int32_t contextCount = 0;
  int32_t lastContext = 0;
  // Throws by context x 36 + dice pair: how many, and the latest.
  std::array<int32_t, kThrowKeys> throws{};
  std::array<int32_t, kThrowKeys> lastThrow{};
  std::array<int16_t, kThrowKeys> touched{};
  int32_t touchedCount = 0;
  int32_t serial = 0;  // throws counted since the last fold
  // Units standing on a Come or Don't Come number (or its odds) when it was
  // decided: [bet - 7][context][0 the number came, 1 the seven].
  std::array<std::array<std::array<int32_t, 2>, kLedgerContexts>, kNumberUnits> numberUnits{};
  bool anyNumberUnits = false;
  // Which number units carry a phantom mark (bit bet - 7), mirrored from the
  // result cells so that a throw reads one word; worked out afresh when not
  // known (a new ledger, a game read from a file).
  uint32_t marks = 0;
  bool marksKnown = false;
  // The latest throw, whose units are the last roll's until the next roll.
  bool latestLive = false;
  int32_t latestKey = 0;
  uint32_t latestNumberUnits = 0;  // bit bet - 7
};
