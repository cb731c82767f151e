#include "ui/desktop_front_end.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QString>
#include <QTimer>

#include "ui/dialogs.h"
#include "ui/sound_board.h"

Reply DesktopFrontEnd::ShowMessage(const std::string& title, const std::string& text, Buttons buttons) {
  return dialogs_.Message({title, text, buttons, false}).reply;
}

NoticeReply DesktopFrontEnd::ShowNotice(int /*noticeBits*/, const std::string& title, const std::string& text) {
  return dialogs_.Message({title, text, Buttons::Ok, true}).dontShowAgain ? NoticeReply::DontShowAgain
                                                                            : NoticeReply::Seen;
}

std::optional<Currency> DesktopFrontEnd::AskNumber(const std::string& title, const std::string& text,
                                                   Currency offered) {
  return dialogs_.Number(title, text, offered);
}

std::optional<SettleReply> DesktopFrontEnd::ShowSettleNotice(const SettleNotice& notice) {
  // The win sound goes with a winning notice; a push or a loss is quiet.
  if (notice.won && notice.title.find("Winner") != std::string::npos) sounds_.PlayWin();
  return dialogs_.Settle(notice);
}

std::optional<std::string> DesktopFrontEnd::AskFileName(const std::string& title, const std::string& pattern) {
  return dialogs_.FileName(title, pattern, FileMode::Save);
}

void DesktopFrontEnd::ShowThrow(int die1, int die2, int pointAfter) {
  sounds_.PlayDice();
  if (screen_) screen_->ShowDice(die1, die2, pointAfter);
}

void DesktopFrontEnd::PlaySound(int slot) { sounds_.PlaySlot(slot); }

void DesktopFrontEnd::PlaySoundFile(const std::string& name) { sounds_.PlayFile(QString::fromStdString(name)); }

void DesktopFrontEnd::RedrawBet(int betId) {
  if (screen_) screen_->RedrawBet(betId);
}

void DesktopFrontEnd::RefreshTable() {
  if (screen_) screen_->RefreshTable();
}

bool DesktopFrontEnd::LetInputRun() {
  // Only painting and timers: a click handled inside a roll would start a
  // second command on a table that is still in the first.
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  return false;
}

bool DesktopFrontEnd::IsMinimised() const { return screen_ && screen_->IsMinimised(); }

void DesktopFrontEnd::ShowStepsBanner(const std::string& word) {
  dialogs_.Message({word, word + " step by step: each line is shown before it runs.", Buttons::Ok, false});
}

StepReply DesktopFrontEnd::ShowStep(int lineNumber, const std::string& text, const std::string& status) {
  return dialogs_.Step({lineNumber, text, status});
}

void DesktopFrontEnd::GraphWindowFilled() {
  if (screen_) screen_->GraphWindowFilled();
}

void DesktopFrontEnd::WaitSeconds(double seconds) {
  if (!pauses_ || seconds <= 0) return;
  QEventLoop wait;
  QTimer::singleShot(static_cast<int>(seconds * 1000), &wait, &QEventLoop::quit);
  wait.exec(QEventLoop::ExcludeUserInputEvents);
}
