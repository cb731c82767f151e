#pragma once
// Dialogs that answer from queues and record every question, for tests that
// drive the desktop program without a modal loop. An empty queue answers as a
// player who only closes things would: OK, No, Cancel, the offered amounts,
// the table's default for notices, no file.

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ui/dialogs.h"

class QueuedDialogs : public Dialogs {
 public:
  struct NumberAsked {
    std::string title, text;
    Currency offered;
  };
  struct FileAsked {
    std::string title, pattern;
    FileMode mode;
  };

  // Answers, taken from the front.
  std::deque<MessageAnswer> answers;
  std::deque<std::optional<Currency>> numbers;
  std::deque<std::optional<std::pair<Currency, Currency>>> numberPairs;
  std::deque<std::optional<SettleReply>> settleReplies;
  std::deque<std::optional<std::string>> fileNames;

  // Questions, in the order asked.
  std::vector<MessageRequest> messages;
  std::vector<NumberAsked> numbersAsked;
  std::vector<TwoNumberRequest> numberPairsAsked;
  std::vector<SettleNotice> notices;
  std::vector<FileAsked> filesAsked;

  MessageAnswer Message(const MessageRequest& request) override {
    messages.push_back(request);
    const Reply closed = request.buttons == Buttons::Ok            ? Reply::Ok
                         : request.buttons == Buttons::YesNoCancel ? Reply::Cancel
                                                                   : Reply::No;
    return Take(answers, MessageAnswer{closed, false});
  }
  std::optional<Currency> Number(const std::string& title, const std::string& text, Currency offered) override {
    numbersAsked.push_back({title, text, offered});
    return Take(numbers, std::optional<Currency>(offered));
  }
  std::optional<std::pair<Currency, Currency>> TwoNumbers(const TwoNumberRequest& request) override {
    numberPairsAsked.push_back(request);
    return Take(numberPairs, std::optional<std::pair<Currency, Currency>>({request.first, request.second}));
  }
  std::optional<SettleReply> Settle(const SettleNotice& notice) override {
    notices.push_back(notice);
    return Take(settleReplies, std::optional<SettleReply>());
  }
  std::optional<std::string> FileName(const std::string& title, const std::string& pattern, FileMode mode) override {
    filesAsked.push_back({title, pattern, mode});
    return Take(fileNames, std::optional<std::string>());
  }

 private:
  template <typename T>
  static T Take(std::deque<T>& queue, T fallback) {
    if (queue.empty()) return fallback;
    T next = std::move(queue.front());
    queue.pop_front();
    return next;
  }
};
