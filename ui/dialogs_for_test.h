#pragma once
// Dialogs that answer from queues and record every question, for tests that
// drive the desktop program without a modal loop. An empty queue answers as
// a silent screen would: OK, No, Cancel, the offered amounts, the table's
// default for notices, no file, no printer.

#include <QPrinter>
#include <QString>
#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ui/dialogs.h"

class QueuedDialogs : public Dialogs {
 public:
  struct FileAsked {
    std::string title, pattern;
    FileMode mode;
  };

  // Answers, taken from the front. Replies answer questions (Yes/No) only: an
  // OK message takes none, so a test queues just what it decides.
  std::deque<Reply> replies;
  // Taken by messages that offer "Don't show this again".
  std::deque<bool> dontShowAgain;
  std::deque<std::optional<Currency>> numbers;
  std::deque<std::optional<std::pair<Currency, Currency>>> numberPairs;
  std::deque<std::optional<SettleReply>> settles;
  std::deque<std::optional<std::string>> files;
  std::deque<StepReply> stepReplies;  // Next when empty
  std::vector<StepRequest> steps;     // every step shown
  // Each printer chosen prints to this PDF file.
  std::deque<std::string> printFiles;

  // Every message and prompt in the order shown (a prompt as its title and
  // text, a two-amount prompt with its first label as text).
  std::vector<MessageRequest> messages;
  std::vector<Currency> offered;  // the amounts the prompts offered
  std::vector<SettleNotice> notices;
  std::vector<FileAsked> filesAsked;
  std::vector<std::string> printersAsked;  // their titles

  MessageAnswer Message(const MessageRequest& request) override {
    messages.push_back(request);
    MessageAnswer answer;
    answer.reply = request.buttons == Buttons::Ok            ? Reply::Ok
                   : request.buttons == Buttons::YesNoCancel ? Take(replies, Reply::Cancel)
                                                             : Take(replies, Reply::No);
    if (request.offerDontShow) answer.dontShowAgain = Take(dontShowAgain, false);
    return answer;
  }
  std::optional<Currency> Number(const std::string& title, const std::string& text, Currency amount) override {
    messages.push_back({title, text, Buttons::Ok, false});
    offered.push_back(amount);
    return Take(numbers, std::optional<Currency>(amount));
  }
  std::optional<std::pair<Currency, Currency>> TwoNumbers(const TwoNumberRequest& request) override {
    messages.push_back({request.title, request.text, Buttons::Ok, false});
    offered.push_back(request.first);
    offered.push_back(request.second);
    return Take(numberPairs, std::optional<std::pair<Currency, Currency>>({request.first, request.second}));
  }
  std::optional<SettleReply> Settle(const SettleNotice& notice) override {
    notices.push_back(notice);
    return Take(settles, std::optional<SettleReply>());
  }
  std::optional<std::string> FileName(const std::string& title, const std::string& pattern, FileMode mode) override {
    filesAsked.push_back({title, pattern, mode});
    return Take(files, std::optional<std::string>());
  }
  StepReply Step(const StepRequest& step) override {
    steps.push_back(step);
    return Take(stepReplies, StepReply::Next);
  }
  bool ChoosePrinter(QPrinter& printer, const std::string& title) override {
    printersAsked.push_back(title);
    if (printFiles.empty()) return false;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(Take(printFiles, std::string())));
    return true;
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
