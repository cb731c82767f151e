#pragma once
// Dialogs answered from queues, recording every question: tests drive the
// desktop without ever waiting in a modal loop. An empty queue answers as a
// silent screen would (OK, No, Cancel, the offered number, no file).

#include <deque>
#include <vector>

#include "ui/dialogs.h"

class QueuedDialogs : public Dialogs {
 public:
  std::deque<Reply> replies;
  std::deque<bool> dontShowAgain;
  std::deque<std::optional<Currency>> numbers;
  std::deque<SettleReply> settles;
  std::deque<std::string> files;

  std::vector<MessageRequest> messages;
  std::vector<SettleNotice> notices;
  std::vector<std::string> fileTitles;

  MessageAnswer Message(const MessageRequest& request) override {
    messages.push_back(request);
    MessageAnswer answer;
    answer.reply = request.buttons == Buttons::Ok ? Reply::Ok
                   : request.buttons == Buttons::YesNo ? Reply::No
                                                       : Reply::Cancel;
    if (request.buttons != Buttons::Ok && !replies.empty()) answer.reply = Take(replies);
    if (request.offerDontShow && !dontShowAgain.empty()) answer.dontShowAgain = Take(dontShowAgain);
    return answer;
  }
  std::optional<Currency> Number(const std::string& title, const std::string& text, Currency offered) override {
    messages.push_back({title, text, Buttons::Ok, false});
    return numbers.empty() ? std::optional<Currency>(offered) : Take(numbers);
  }
  std::optional<std::pair<Currency, Currency>> TwoNumbers(const TwoNumberRequest& request) override {
    messages.push_back({request.title, request.firstLabel, Buttons::Ok, false});
    return std::pair{request.first, request.second};
  }
  std::optional<SettleReply> Settle(const SettleNotice& notice) override {
    notices.push_back(notice);
    if (settles.empty()) return std::nullopt;
    return Take(settles);
  }
  std::optional<std::string> FileName(const std::string& title, const std::string&, FileMode) override {
    fileTitles.push_back(title);
    if (files.empty()) return std::nullopt;
    return Take(files);
  }

 private:
  template <class T>
  static T Take(std::deque<T>& queue) {
    T front = queue.front();
    queue.pop_front();
    return front;
  }
};
