#pragma once
// Test helpers shared by the engine's tests: a front end that records what
// the engine shows and answers from queues.

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "engine/frontend.h"

struct RecordedMessage {
  std::string title;
  std::string text;
  Buttons buttons = Buttons::Ok;
};

// Records every message and settle notice. Replies come from the queues in
// order; an empty queue answers as SilentFrontEnd does.
class RecordingFrontEnd : public FrontEnd {
 public:
  std::vector<RecordedMessage> messages;
  std::vector<SettleNotice> notices;
  std::vector<std::string> asked;  // titles of AskNumber calls
  std::vector<int> redrawn;

  std::deque<Reply> replies;
  std::deque<std::optional<int>> settleReplies;
  std::deque<std::optional<Currency>> numberReplies;

  Reply ShowMessage(const std::string& title, const std::string& text, Buttons buttons) override {
    messages.push_back({title, text, buttons});
    if (!replies.empty()) return Pop(replies);
    return buttons == Buttons::Ok ? Reply::Ok : buttons == Buttons::YesNoCancel ? Reply::Cancel : Reply::No;
  }
  std::optional<Currency> AskNumber(const std::string& title, const std::string&, Currency offered) override {
    asked.push_back(title);
    if (!numberReplies.empty()) return Pop(numberReplies);
    return offered;
  }
  std::optional<int> ShowSettleNotice(const SettleNotice& notice) override {
    notices.push_back(notice);
    if (!settleReplies.empty()) return Pop(settleReplies);
    return std::nullopt;
  }
  void RedrawBet(int betId) override { redrawn.push_back(betId); }

 private:
  template <typename T>
  static T Pop(std::deque<T>& queue) {
    T front = queue.front();
    queue.pop_front();
    return front;
  }
};
