#pragma once
// Dialogs that answer at once without showing anything: for drawing the
// screens into pictures, where nobody is there to answer.

#include "ui/dialogs.h"

class PictureDialogs : public Dialogs {
 public:
  MessageAnswer Message(const MessageRequest& request) override {
    return {request.buttons == Buttons::Ok ? Reply::Ok : Reply::No, false};
  }
  std::optional<Currency> Number(const std::string&, const std::string&, Currency offered) override { return offered; }
  std::optional<std::pair<Currency, Currency>> TwoNumbers(const TwoNumberRequest& r) override {
    return std::pair{r.first, r.second};
  }
  std::optional<SettleReply> Settle(const SettleNotice&) override { return std::nullopt; }
  std::optional<std::string> FileName(const std::string&, const std::string&, FileMode) override { return std::nullopt; }
  bool ChoosePrinter(QPrinter&, const std::string&) override { return false; }
  StepReply Step(const StepRequest&) override { return StepReply::Next; }
};
