#pragma once
// The won and lost notices of settlement, built from the figures that
// SettleBet has just left in the table state.

#include "engine/frontend.h"
#include "dice/money.h"

struct Game;

// Button indexes of the won notice.
enum WonButton {
  kTakeBetAndWinnings, kSameBetTakeWinnings, kPressOneUnit, kPressDouble, kParlay,
  kSameBetModified, kBetModified,
};
// Button indexes of the lost notice.
enum LostButton { kNoBetTakeRemainder, kBetRemainder, kSameBetAgain, kPressUnitAfterLoss, kDoubleBet };

// "* * * Winner * * *" or "Push", with the rows of the payoff and the won
// buttons; the press caption offers PressUnit. A bet that must come down
// is offered no choice but to be taken.
SettleNotice WonNotice(const Game& g, int betId);
// Odds that were off and have been given back on their parent's decision.
SettleNotice OddsReturnedNotice(const Game& g, int betId);
// "Bet Lost": the loss, any vig, the net and what remains of the bet; the
// press caption offers `unit`. A bet that must come down offers no choice.
SettleNotice LostNotice(const Game& g, int betId, Currency unit);
