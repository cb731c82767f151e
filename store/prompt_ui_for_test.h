#pragma once
// A test front end that answers questions and file dialogs from queues.

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "engine/table_for_test.h"

class AnsweringUi : public RecordingFrontEnd {
 public:
  std::deque<Reply> replies;                    // empty: Cancel, or No
  std::deque<std::optional<std::string>> names;  // empty: the dialog is cancelled
  std::vector<RecordedMessage> dialogs;          // title and pattern of each file dialog

  Reply ShowMessage(const std::string& title, const std::string& text, Buttons buttons) override {
    const Reply fallback = RecordingFrontEnd::ShowMessage(title, text, buttons);
    if (buttons == Buttons::Ok || replies.empty()) return fallback;
    const Reply r = replies.front();
    replies.pop_front();
    return r;
  }
  std::optional<std::string> AskFileName(const std::string& title, const std::string& pattern) override {
    dialogs.push_back({title, pattern});
    if (names.empty()) return std::nullopt;
    auto name = names.front();
    names.pop_front();
    return name;
  }
};
