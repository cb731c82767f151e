#pragma once
// Realistic contents for pictures of the dialogs, without a game behind them.

#include <string>

#include "ui/dialogs.h"

struct NumberPromptSample {
  std::string title, text;
  Currency offered;
};

// A limit notice of a place bet, which a switch can silence.
MessageRequest SampleMessage();
// A place 6 bet of $6 paid 7 to 6, and the buttons of a winner.
SettleNotice SampleWonNotice();
// A place 8 bet lost, and the buttons of a loss.
SettleNotice SampleLostNotice();
// The new game's bankroll prompt.
NumberPromptSample SampleNumberPrompt();
