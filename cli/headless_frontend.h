#pragma once
// The screen of the `play` session: every message becomes a JSON line, and
// questions take their replies from a queue that `answer` fills.

#include <deque>
#include <optional>
#include <ostream>
#include <string>

#include "engine/frontend.h"

class Table;

class HeadlessFrontEnd : public FrontEnd {
 public:
  explicit HeadlessFrontEnd(std::ostream& out) : out_(out) {}

  // True for a word that `answer` may queue: yes, no, cancel, a settle
  // button word, or an amount.
  static bool IsAnswerWord(const std::string& word);
  // "file:" and a path: the reply to a file dialog.
  static bool IsFileAnswer(const std::string& word) { return word.size() > 5 && word.compare(0, 5, "file:") == 0; }
  void QueueAnswer(const std::string& word) { answers_.push_back(word); }
  size_t PendingAnswers() const { return answers_.size(); }

  // The reason the last roll reported through RollFinished.
  ::StopReason LastStop() const { return stopReason_; }
  void ClearStopReason() { stopReason_ = ::StopReason::None; }

  Reply ShowMessage(const std::string& title, const std::string& text, Buttons buttons) override;
  std::optional<Currency> AskNumber(const std::string& title, const std::string& text, Currency offered) override;
  std::optional<SettleReply> ShowSettleNotice(const SettleNotice& notice) override;
  void ShowThrow(int die1, int die2, int pointAfter) override;
  void RollFinished(::StopReason reason) override { stopReason_ = reason; }
  // Steps are printed and go straight on: a script's trace, not a wait.
  void ShowStepsBanner(const std::string& word) override;
  // A script read on a pipe has no one to stop for: every step goes on.
  StepReply ShowStep(int lineNumber, const std::string& text, const std::string& status) override;
  // The file dialog is a message whose reply is the path of a queued
  // "file:PATH", or "cancel" for anything else.
  std::optional<std::string> AskFileName(const std::string& title, const std::string& pattern) override;
  // A roll or script pass under way stops at its next chance once `stop`
  // says so (Ctrl-C while a command runs).
  void StopWhen(Table* table, bool (*stop)()) {
    table_ = table;
    stop_ = stop;
  }
  bool LetInputRun() override;

 private:
  // The next queued reply; every dialog that asks consumes one, fitting or not.
  std::optional<std::string> TakeAnswer();

  std::ostream& out_;
  std::deque<std::string> answers_;
  ::StopReason stopReason_ = ::StopReason::None;
  Table* table_ = nullptr;
  bool (*stop_)() = nullptr;
};
