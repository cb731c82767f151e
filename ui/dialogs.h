#pragma once
// The one seam through which the desktop program asks the player anything.
// The program shows modal dialogs (ModalDialogs); tests answer from a queue
// (dialogs_for_test.h), so that no test ever waits in a modal loop.

#include <optional>
#include <string>
#include <utility>

#include "dice/money.h"
#include "engine/frontend.h"

class QPrinter;

// A message's answer, and whether the player ticked "Don't show this again".
struct MessageAnswer {
  Reply reply = Reply::Ok;
  bool dontShowAgain = false;
};

// A message as the table words it: lines broken by carriage returns.
struct MessageRequest {
  std::string title;
  std::string text;
  Buttons buttons = Buttons::Ok;
  // Offer "Don't show this again": the notice has a switch that silences it.
  bool offerDontShow = false;
};

// The prompt for two amounts, as the break-point of the games log asks.
struct TwoNumberRequest {
  std::string title;
  std::string text;  // above the fields; "\r" breaks a line
  std::string firstLabel, secondLabel;
  Currency first, second;
};

// One step of a script pass, as the steps viewer shows it.
struct StepRequest {
  int line = 0;
  std::string text, status;
};

// Open wants a file that exists; Save asks before replacing one; OpenOrCreate
// takes any name, since the table creates a file that is not there yet.
enum class FileMode { Open, Save, OpenOrCreate };

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual MessageAnswer Message(const MessageRequest& request) = 0;
  // nullopt when the player cancels.
  virtual std::optional<Currency> Number(const std::string& title, const std::string& text, Currency offered) = 0;
  virtual std::optional<std::pair<Currency, Currency>> TwoNumbers(const TwoNumberRequest& request) = 0;
  // The won, pushed, returned and lost notices; nullopt leaves the choice to
  // the table's default (the window was closed).
  virtual std::optional<SettleReply> Settle(const SettleNotice& notice) = 0;
  // `pattern` as the table gives it ("*.crp"); nullopt when cancelled.
  virtual std::optional<std::string> FileName(const std::string& title, const std::string& pattern, FileMode mode) = 0;
  // Lets the player pick and set up the printer the caller prepared; false
  // when cancelled.
  virtual bool ChoosePrinter(QPrinter& printer, const std::string& title) = 0;
  // The steps viewer: waits for the player's Next, "Run to end" or Cancel.
  virtual StepReply Step(const StepRequest& step) = 0;
};
