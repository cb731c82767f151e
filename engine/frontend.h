#pragma once
// What the engine needs of a screen. The engine never calls a GUI toolkit; a
// desktop window, the headless `play` front end and tests all implement this.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "dice/money.h"
#include "engine/stop_reason.h"

enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Reply { Ok, Yes, No, Cancel };

// An answer the table keeps: the last save prompt's (MsgReply) and the
// script's last Yes/No question (LastAnswer). Game files keep the numbers.
enum class Answer : int32_t { None = 1, Cancel = 2, Yes = 6, No = 7 };

// How a "Same Bet:" or "Bet:" entry changes an amount: operator 0 "+",
// 1 "-", 2 "x", 3 "/"; units -1 "$", 0 "%", 2..6 checks 95..99.
struct AmountRule {
  int32_t op = 0;
  Currency amount;
  int32_t units = -1;
  bool operator==(const AmountRule&) const = default;
};

// The won and lost notices of settlement: rows of a left label and a right
// amount, a title and the buttons the player may answer with.
struct SettleNotice {
  std::string title;
  std::vector<std::pair<std::string, std::string>> rows;
  std::vector<std::string> buttons;  // captions, in button-index order
  bool won = true;
  // The entries beside the won notice's "Sa&me Bet:" and "&Bet:" buttons, as
  // the player last left them.
  AmountRule sameBet, bet;
};

// The button the player pressed, and the two entries as the notice closed
// (the player may edit them before pressing their button).
struct SettleReply {
  int button = 0;
  AmountRule sameBet, bet;
};

// Whether the player, reading a notice, asked not to see its kind again.
enum class NoticeReply { Seen, DontShowAgain };

// What the player chose on a step of the steps viewer.
enum class StepReply { Next, RunToEnd, Cancel };

class FrontEnd {
 public:
  virtual ~FrontEnd() = default;
  // Shows a message and returns the reply. Callers decide whether a message
  // may be shown at all (notice mask, Hyper-Drive).
  virtual Reply ShowMessage(const std::string& title, const std::string& text, Buttons buttons) = 0;
  // Asks for a number, offering `offered`; nullopt when the player cancels.
  virtual std::optional<Currency> AskNumber(const std::string& title, const std::string& text,
                                            Currency offered) = 0;
  // A notice governed by one switch of the notice mask (`noticeBits`); the
  // player may answer that such notices should no longer be shown.
  virtual NoticeReply ShowNotice(int /*noticeBits*/, const std::string& title, const std::string& text) {
    ShowMessage(title, text, Buttons::Ok);
    return NoticeReply::Seen;
  }
  // The won or lost dialog; returns the button chosen, or nullopt when the
  // player leaves the choice to the table's default.
  virtual std::optional<SettleReply> ShowSettleNotice(const SettleNotice& notice) = 0;
  // A visible throw has landed: the dice are drawn before anything is settled.
  virtual void ShowThrow(int /*die1*/, int /*die2*/, int /*pointAfter*/) {}
  // The last step of RollDice, before a visible table forgets StopReason:
  // the reason a run ended, or a start refused.
  virtual void RollFinished(StopReason /*reason*/) {}
  virtual void PlaySound(int /*slot*/) {}
  virtual void PlaySoundFile(const std::string& /*name*/) {}
  virtual void RedrawBet(int /*betId*/) {}
  virtual void RefreshTable() {}
  // Lets queued input run during a Hyper-Drive run or an Auto-Roll wait;
  // true when what ran may have changed the game.
  virtual bool LetInputRun() { return false; }
  virtual bool IsMinimised() const { return false; }
  // The steps viewer: a pass under way opens with a banner ("Auto-Betting" or
  // "Hot-Key"), then every step shows its line and status and waits until
  // the player goes on.
  virtual void ShowStepsBanner(const std::string& /*word*/) {}
  // The player's answer: the next step, the rest of this pass unseen, or no
  // more steps at all (until a "Show Steps" line asks again).
  virtual StepReply ShowStep(int /*lineNumber*/, const std::string& /*text*/, const std::string& /*status*/) {
    return StepReply::Next;
  }
  // The file dialog of a save: a path, or nullopt when the player cancels
  // (and on front ends that have no such dialog).
  virtual std::optional<std::string> AskFileName(const std::string& /*title*/, const std::string& /*pattern*/) {
    return std::nullopt;
  }
  // A pause a visible table makes so the player can follow (the script's
  // pass); front ends without a display go straight on.
  virtual void WaitSeconds(double /*seconds*/) {}
  // A window of the bankroll graph has just filled while Auto-Print is on:
  // a screen prints it before the run draws over it.
  virtual void GraphWindowFilled() {}
};

// A front end that shows nothing and takes every default: for batch runs and
// tests that do not care about messages.
class SilentFrontEnd : public FrontEnd {
 public:
  Reply ShowMessage(const std::string&, const std::string&, Buttons b) override {
    return b == Buttons::Ok ? Reply::Ok : b == Buttons::YesNoCancel ? Reply::Cancel : Reply::No;
  }
  std::optional<Currency> AskNumber(const std::string&, const std::string&, Currency offered) override {
    return offered;
  }
  std::optional<SettleReply> ShowSettleNotice(const SettleNotice&) override { return std::nullopt; }
};
