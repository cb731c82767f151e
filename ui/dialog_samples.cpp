#include "ui/dialog_samples.h"

#include "engine/notices.h"
#include "engine/refusals.h"

MessageRequest SampleMessage() {
  return {"Place 6 Bet",
          limit_notice::MaximumBet(300) + kTwoBreaks + "$300 " + limit_notice::Ending(false, false),
          Buttons::Ok, true};
}

SettleNotice SampleWonNotice() {
  SettleNotice notice;
  notice.title = "* * * Winner * * *";
  notice.rows = {{"Place 6 bet:", "$6"}, {"Payoff at 7 to 6 for $6:", "$7"}, {"Net payoff:", "$7"}};
  notice.buttons = {"&Take Bet and Winnings",
                    "&Same Bet - Take Winnings",
                    "Press 1 &Unit - Add $6 to Bet",
                    "Press - Add Winnings to &Double Bet",
                    "Parlay - Add &All Winnings to Bet",
                    "Sa&me Bet:",
                    "&Bet:"};
  notice.sameBet = {0, 1, 2};
  notice.bet = {0, 12, -1};
  return notice;
}

SettleNotice SampleLostNotice() {
  SettleNotice notice;
  notice.won = false;
  notice.title = "Bet Lost";
  notice.rows = {{"Place 8 bet:", "$12"}, {"Loss at -1 to 1:", "$-12"}, {"Net loss: ", "$-12"}};
  notice.buttons = {"No Bet/Take Remainder", "Bet Remainder", "Same Bet", "Press 1 &Unit - Add $6 to Bet",
                    "Double Bet"};
  return notice;
}

NumberPromptSample SampleNumberPrompt() {
  return {"Set Beginning Bankroll", "Enter your beginning bankroll: ", 500};
}
