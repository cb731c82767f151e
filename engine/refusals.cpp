#include "engine/refusals.h"

#include "engine/notices.h"

namespace refusal {
namespace {
const std::string kBr = kBreak;
const std::string kBrBr = kTwoBreaks;

std::string PutBetsTail() {
  return "(Unless you check \"Allow Put Bets\" on" + kBr + "the Configuration screen.)";
}
}  // namespace

std::string PassLineDecrease() {
  return "You may not decrease or remove your Pass Line bet " + kBr + "while a point is established.";
}
std::string PassLineIncrease() {
  return "You may not make or increase a Pass Line bet" + kBr + "while a point is established." + kBrBr +
         PutBetsTail();
}
std::string ComeNoPoint() { return "You may not make a Come bet until " + kBr + "a point is established."; }
std::string DontPassIncrease() {
  return "You may not make or increase a Don't Pass bet" + kBr + "while a point is established.";
}
std::string DontComeNoPoint() { return "You may not make a Don't Come bet until" + kBr + "a point is established."; }
std::string PassOddsNeedLine() {
  return "You may not make a Pass Line Odds Bet unless " + kBr + "you also have a Pass Line bet and " +
         "a point is established.";
}
std::string DontOddsNeedLine() {
  return "You may not make a Don't Pass Odds bet unless " + kBr + "you also have a Don't Pass bet and " +
         "a point is established.";
}
std::string ComeDecrease() { return "You may not decrease or remove a Come bet " + kBr + "which is established on a point."; }
std::string ComeIncrease() {
  return "You may not make or increase a Come bet" + kBr + "directly on a point number." + kBrBr + PutBetsTail();
}
std::string OddsNeedBet(const std::string& parentName) {
  return "You may not make an odds bet here until " + kBr + "you've established a " + parentName + " bet.";
}
std::string DontComeIncrease() {
  return "You may not make or increase a Don't Come bet" + kBr + "directly on a point number.";
}
}  // namespace refusal

namespace limit_notice {
namespace {
const std::string kBr = kBreak;
const std::string kBrBr = kTwoBreaks;
}  // namespace

std::string MinimumBet(Currency minimum) { return "Minimum bet here is " + Dollars(minimum); }
std::string MaximumBet(Currency maximum) { return "Maximum bet here is " + Dollars(maximum); }

std::string ContractAboveMaximum(const std::string& betName, Currency committed) {
  return "However, because the " + betName + " is a contract bet and it " + "was established at " +
         Dollars(committed) + " before the maximum allowed was lowered " +
         "on the Configuration screen, it must remain unchanged until it resolves.";
}

std::string NotEnoughBankroll(bool anyOtherBet) {
  std::string text = "You don't have enough bankroll remaining to bet the full amount requested." + kBrBr +
                     "Your options are: " + kBr;
  if (anyOtherBet) text += "      - Bet less on other bets." + kBr;
  return text + "      - Make a withdrawal from the ATM." + kBr + "      - Allow negative bankroll amounts.";
}

std::string MinimumStack(Currency minimum) { return "Minimum Chip-Stack value is: " + Dollars(minimum); }
std::string MaximumStack(Currency maximum) { return "Maximum Chip-Stack value is: " + Dollars(maximum); }

std::string Ending(bool stack, bool nothingChanged) {
  if (stack) return nothingChanged ? "which is already stacked." : "which is being stacked.";
  return nothingChanged ? "which is already bet." : "which is being bet.";
}
}  // namespace limit_notice
