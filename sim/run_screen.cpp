#include "sim/run_screen.h"

#include <utility>

#include "engine/game.h"

namespace {

// A screen more than this many notices behind is not sent the ones it can miss.
constexpr int kMostUnseen = 64;
// Hyper-Drive reads the clock once in so many pauses: read every roll, the
// clock would be a measurable share of a fast roll.
constexpr int kPausesPerClockRead = 256;
constexpr auto kPublishEvery = std::chrono::milliseconds(4);
// How long a pause of Auto-Roll's wait rests before the wait reads its clock again.
constexpr auto kWaitRest = std::chrono::milliseconds(2);

}  // namespace

RunScreen::RunScreen(Game& g, FrontEnd& screen, PostFn post, std::shared_ptr<RunLink> link)
    : g_(g), screen_(screen), post_(std::move(post)), link_(std::move(link)) {}

Reply RunScreen::ShowMessage(const std::string& title, const std::string& text, Buttons buttons) {
  return Ask([title, text, buttons](FrontEnd& s) { return s.ShowMessage(title, text, buttons); });
}

std::optional<Currency> RunScreen::AskNumber(const std::string& title, const std::string& text, Currency offered) {
  return Ask([title, text, offered](FrontEnd& s) { return s.AskNumber(title, text, offered); });
}

NoticeReply RunScreen::ShowNotice(int noticeBits, const std::string& title, const std::string& text) {
  return Ask([noticeBits, title, text](FrontEnd& s) { return s.ShowNotice(noticeBits, title, text); });
}

std::optional<SettleReply> RunScreen::ShowSettleNotice(const SettleNotice& notice) {
  return Ask([notice](FrontEnd& s) { return s.ShowSettleNotice(notice); });
}

std::optional<std::string> RunScreen::AskFileName(const std::string& title, const std::string& pattern) {
  return Ask([title, pattern](FrontEnd& s) { return s.AskFileName(title, pattern); });
}

StepReply RunScreen::ShowStep(int lineNumber, const std::string& text, const std::string& status) {
  // The viewer holds the pass until the player goes on.
  return Ask([lineNumber, text, status](FrontEnd& s) { return s.ShowStep(lineNumber, text, status); });
}

void RunScreen::GraphWindowFilled() {
  link_->Publish(g_, true);
  lastPublished_ = Clock::now();
  Ask([](FrontEnd& s) {
    s.GraphWindowFilled();
    return true;
  });
}

bool RunScreen::IsMinimised() const {
  return Ask([](FrontEnd& s) { return s.IsMinimised(); });
}

void RunScreen::ShowStepsBanner(const std::string& word) {
  Tell([word](FrontEnd& s) { s.ShowStepsBanner(word); }, false);
}

void RunScreen::ShowThrow(int die1, int die2, int pointAfter) {
  Tell([die1, die2, pointAfter](FrontEnd& s) { s.ShowThrow(die1, die2, pointAfter); }, true);
}

void RunScreen::PlaySound(int slot) {
  Tell([slot](FrontEnd& s) { s.PlaySound(slot); }, true);
}

void RunScreen::PlaySoundFile(const std::string& name) {
  Tell([name](FrontEnd& s) { s.PlaySoundFile(name); }, true);
}

void RunScreen::RedrawBet(int betId) {
  if (betId >= 0 && betId < bet::kSlots) redraw_.set(static_cast<size_t>(betId));
}

void RunScreen::Tell(std::function<void(FrontEnd&)> notice, bool mayDrop) const {
  if (mayDrop && link_->Behind(kMostUnseen)) return;
  link_->Sent();
  post_([link = link_, screen = &screen_, notice = std::move(notice)] {
    link->Seen();
    if (!link->Closed()) notice(*screen);
  });
}

bool RunScreen::LetInputRun() {
  const bool queued = link_->AnyQueued();
  if (queued) ApplyQueued();
  if (--untilClockCheck_ <= 0) CheckClock();
  if (!g_.HyperDriveOn) RestDuringWait();
  // Last, so that a stop that cut the rest short is heeded by this pause.
  if (link_->Stopped()) g_.KeepRolling = false;
  return queued;
}

void RunScreen::ApplyQueued() {
  link_->TakeQueued(controls_);
  for (const BetweenRolls& control : controls_) ApplyBetweenRolls(g_, control);
  publishDue_ = true;  // a moved window is drawn at once
  untilClockCheck_ = 1;
}

void RunScreen::CheckClock() {
  // A throttled roll is slow enough that reading the clock every time costs nothing.
  untilClockCheck_ = g_.HyperDriveOn && g_.ThrottleValue == 0 ? kPausesPerClockRead : 1;
  const Clock::time_point now = Clock::now();
  if (!publishDue_ && now - lastPublished_ < kPublishEvery) return;
  link_->Publish(g_, true);
  lastPublished_ = now;
  publishDue_ = false;
}

void RunScreen::RestDuringWait() {
  // Auto-Roll's wait asks again and again until its delay is over; the first
  // pause after a roll goes straight on (no delay means no rest), later ones
  // rest so that the worker does not spin a core for the whole delay. A
  // script pass's pauses never rest.
  if (g_.AutoBetRunning) return;
  if (g_.RollCounts[0] == rollsAtLastPause_ && g_.KeepRolling) link_->Pause(kWaitRest);
  rollsAtLastPause_ = g_.RollCounts[0];
}

void RunScreen::WaitSeconds(double seconds) {
  // The screen decides whether the player needs the pause (one with no
  // display goes straight on) and keeps itself live while it lasts.
  Ask([seconds](FrontEnd& s) {
    s.WaitSeconds(seconds);
    return true;
  });
}

void RunScreen::EndOfRun() {
  if (link_->AnyQueued()) ApplyQueued();
  link_->Publish(g_, false);
}

void RunScreen::CatchUp() const {
  for (size_t id = 0; id < redraw_.size(); ++id)
    if (redraw_.test(id)) screen_.RedrawBet(static_cast<int>(id));
  if (refresh_) screen_.RefreshTable();
  screen_.RollFinished(stopReason_);
}
