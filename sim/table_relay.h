#pragma once
// The screen the engine talks to while a Table holds the game: it passes
// every call on to the front end's own screen, and after each visible roll of
// an Auto-Roll run lets the table tell its listeners what the roll changed.

#include <functional>

#include "engine/frontend.h"

class TableRelay : public FrontEnd {
 public:
  // `afterVisibleRoll` runs whenever the engine lets input in between the
  // rolls of a run that is not in Hyper-Drive.
  TableRelay(FrontEnd& screen, std::function<void()> afterVisibleRoll)
      : screen_(&screen), afterVisibleRoll_(std::move(afterVisibleRoll)) {}

  // Set by the table around its Auto-Roll runs.
  void WatchRolls(bool on) { watching_ = on; }
  // The last message shown and the reason the last roll reported, so that a
  // command can answer with what the engine said.
  void Forget() {
    title_.clear();
    text_.clear();
    stopReason_ = ::StopReason::None;
  }
  const std::string& LastTitle() const { return title_; }
  const std::string& LastText() const { return text_; }
  ::StopReason LastStop() const { return stopReason_; }

  Reply ShowMessage(const std::string& title, const std::string& text, Buttons buttons) override {
    title_ = title;
    text_ = text;
    return screen_->ShowMessage(title, text, buttons);
  }
  std::optional<Currency> AskNumber(const std::string& title, const std::string& text, Currency offered) override {
    return screen_->AskNumber(title, text, offered);
  }
  NoticeReply ShowNotice(int noticeBits, const std::string& title, const std::string& text) override {
    title_ = title;
    text_ = text;
    return screen_->ShowNotice(noticeBits, title, text);
  }
  std::optional<SettleReply> ShowSettleNotice(const SettleNotice& notice) override {
    return screen_->ShowSettleNotice(notice);
  }
  void ShowThrow(int die1, int die2, int pointAfter) override { screen_->ShowThrow(die1, die2, pointAfter); }
  void RollFinished(::StopReason stopReason) override {
    stopReason_ = stopReason;
    screen_->RollFinished(stopReason);
  }
  void PlaySound(int slot) override { screen_->PlaySound(slot); }
  void PlaySoundFile(const std::string& name) override { screen_->PlaySoundFile(name); }
  void RedrawBet(int betId) override { screen_->RedrawBet(betId); }
  void RefreshTable() override { screen_->RefreshTable(); }
  bool LetInputRun() override {
    if (watching_) afterVisibleRoll_();
    return screen_->LetInputRun() || watching_;
  }
  bool IsMinimised() const override { return screen_->IsMinimised(); }
  void ShowStepsBanner(const std::string& word) override { screen_->ShowStepsBanner(word); }
  StepReply ShowStep(int lineNumber, const std::string& text, const std::string& status) override {
    return screen_->ShowStep(lineNumber, text, status);
  }
  std::optional<std::string> AskFileName(const std::string& title, const std::string& pattern) override {
    return screen_->AskFileName(title, pattern);
  }
  void WaitSeconds(double seconds) override { screen_->WaitSeconds(seconds); }
  void GraphWindowFilled() override { screen_->GraphWindowFilled(); }

 private:
  FrontEnd* screen_;
  std::function<void()> afterVisibleRoll_;
  bool watching_ = false;
  std::string title_, text_;
  ::StopReason stopReason_ = ::StopReason::None;
};
