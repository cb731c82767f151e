#pragma once
// The front end a run sees on its worker thread. It stands between the
// engine and the real screen, which lives on another thread:
// - questions (messages, numbers, settle notices, file names, steps, the
//   script's pause) are posted to the screen's thread and the run waits for
//   the answer; after a stop they take the answer a silent screen gives,
//   without asking;
// - notices that need no answer (throws, sounds, the steps banner) are
//   posted without waiting, and dropped while the screen lags far behind;
// - redraws are gathered and made once the run has ended: until then the
//   screen draws from the run's snapshots and must not read the game;
// - LetInputRun is where the run heeds a stop, carries out the controls that
//   wait for it and, every so often, publishes a snapshot.

#include <bitset>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "engine/catalogue.h"
#include "engine/frontend.h"
#include "sim/run_link.h"

struct Game;

// Runs a task on the front end's thread, later: the screen's event queue.
using PostFn = std::function<void(std::function<void()>)>;

class RunScreen : public FrontEnd {
 public:
  RunScreen(Game& g, FrontEnd& screen, PostFn post, std::shared_ptr<RunLink> link);

  Reply ShowMessage(const std::string& title, const std::string& text, Buttons buttons) override;
  NoticeReply ShowNotice(int noticeBits, const std::string& title, const std::string& text) override;
  std::optional<Currency> AskNumber(const std::string& title, const std::string& text, Currency offered) override;
  std::optional<SettleReply> ShowSettleNotice(const SettleNotice& notice) override;
  std::optional<std::string> AskFileName(const std::string& title, const std::string& pattern) override;
  void ShowStepsBanner(const std::string& word) override;
  StepReply ShowStep(int lineNumber, const std::string& text, const std::string& status) override;
  bool IsMinimised() const override;

  void ShowThrow(int die1, int die2, int pointAfter) override;
  void PlaySound(int slot) override;
  void PlaySoundFile(const std::string& name) override;
  void RedrawBet(int betId) override;
  void RefreshTable() override { refresh_ = true; }
  void RollFinished(::StopReason stopReason) override { stopReason_ = stopReason; }

  bool LetInputRun() override;
  void WaitSeconds(double seconds) override;
  // The screen prints the full window from a snapshot taken now, while the run waits.
  void GraphWindowFilled() override;

  // On the worker as the run ends: the controls that came during the last
  // roll, then the last snapshot.
  void EndOfRun();
  // On the front end's thread once the run has let go of the game: the
  // redraws gathered during the run, then the screen's RollFinished.
  void CatchUp() const;
  ::StopReason LastStop() const { return stopReason_; }

 private:
  using Clock = std::chrono::steady_clock;

  // Posts `question` and waits for its answer; after a stop, the silent
  // screen's answer.
  template <typename Question>
  auto Ask(Question question) const;
  // Posts a notice; `mayDrop`: skipped while the screen lags far behind.
  void Tell(std::function<void(FrontEnd&)> notice, bool mayDrop) const;
  void ApplyQueued();
  void CheckClock();
  void RestDuringWait();

  Game& g_;
  FrontEnd& screen_;
  PostFn post_;
  std::shared_ptr<RunLink> link_;
  mutable SilentFrontEnd silent_;
  std::vector<BetweenRolls> controls_;  // kept between rolls: taking them allocates nothing
  int untilClockCheck_ = 1;  // the first pause publishes at once
  Clock::time_point lastPublished_{};
  bool publishDue_ = false;
  int32_t rollsAtLastPause_ = -1;
  std::bitset<bet::kSlots> redraw_;
  bool refresh_ = false;
  ::StopReason stopReason_ = ::StopReason::None;
};

template <typename Question>
auto RunScreen::Ask(Question question) const {
  using Given = decltype(question(silent_));
  if (link_->Stopped()) return question(silent_);
  // Shared with the posted task: a stop may leave it to answer after the run went on.
  auto answer = std::make_shared<std::optional<Given>>();
  post_([link = link_, screen = &screen_, answer, question] {
    if (link->Closed() || link->Stopped()) return;
    Given given = question(*screen);
    link->GiveAnswer([&] { *answer = std::move(given); });
  });
  if (!link_->AwaitAnswer([&] { return answer->has_value(); })) return question(silent_);
  return std::move(**answer);
}
