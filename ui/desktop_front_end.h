#pragma once
// What the engine asks of the desktop: every question goes through the
// dialog seam, every sound through the sound board, and what a throw or a
// redraw shows through the table's screen. It holds no game state.

#include "engine/frontend.h"

class Dialogs;
class SoundBoard;

// What the front end needs of the window that shows the table.
class TableScreen {
 public:
  virtual ~TableScreen() = default;
  virtual void ShowDice(int die1, int die2, int pointAfter) = 0;
  virtual void RedrawBet(int betId) = 0;
  virtual void RefreshTable() = 0;
  virtual bool IsMinimised() const = 0;
  virtual void GraphWindowFilled() = 0;
};

class DesktopFrontEnd : public FrontEnd {
 public:
  DesktopFrontEnd(Dialogs& dialogs, SoundBoard& sounds) : dialogs_(dialogs), sounds_(sounds) {}

  void Attach(TableScreen* screen) { screen_ = screen; }
  // Tests go without the pauses a player needs to follow a script.
  void SetPauses(bool on) { pauses_ = on; }

  Reply ShowMessage(const std::string& title, const std::string& text, Buttons buttons) override;
  NoticeReply ShowNotice(int noticeBits, const std::string& title, const std::string& text) override;
  std::optional<Currency> AskNumber(const std::string& title, const std::string& text, Currency offered) override;
  std::optional<SettleReply> ShowSettleNotice(const SettleNotice& notice) override;
  std::optional<std::string> AskFileName(const std::string& title, const std::string& pattern) override;
  void ShowThrow(int die1, int die2, int pointAfter) override;
  void PlaySound(int slot) override;
  void PlaySoundFile(const std::string& name) override;
  void RedrawBet(int betId) override;
  void RefreshTable() override;
  bool LetInputRun() override;
  bool IsMinimised() const override;
  void ShowStepsBanner(const std::string& word) override;
  StepReply ShowStep(int lineNumber, const std::string& text, const std::string& status) override;
  void WaitSeconds(double seconds) override;
  void GraphWindowFilled() override;

 private:
  Dialogs& dialogs_;
  SoundBoard& sounds_;
  TableScreen* screen_ = nullptr;
  bool pauses_ = true;
};
