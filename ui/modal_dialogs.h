#pragma once
// The desktop program's answers to the table's questions: each one a modal
// dialog over the main window.

#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>

#include "ui/dialogs.h"
#include "ui/steps_viewer.h"

// "*.crp" -> "Game files (*.crp);;All files (*)".
QString FileFilter(const std::string& pattern);
// A saved file gets the pattern's extension when the player typed none.
QString WithExtension(const QString& path, const std::string& pattern);

class ModalDialogs : public Dialogs {
 public:
  // File dialogs open in `startFolder` at first, then where the player last
  // chose a file. The parent may come later: the main window needs the
  // dialogs before it exists.
  explicit ModalDialogs(QString startFolder, QWidget* parent = nullptr);
  void SetParent(QWidget* parent) { parent_ = parent; }

  MessageAnswer Message(const MessageRequest& request) override;
  std::optional<Currency> Number(const std::string& title, const std::string& text, Currency offered) override;
  std::optional<std::pair<Currency, Currency>> TwoNumbers(const TwoNumberRequest& request) override;
  std::optional<SettleReply> Settle(const SettleNotice& notice) override;
  std::optional<std::string> FileName(const std::string& title, const std::string& pattern, FileMode mode) override;
  bool ChoosePrinter(QPrinter& printer, const std::string& title) override;
  StepReply Step(const StepRequest& step) override;
  // What the steps viewer's menus open: the main window's screens.
  void SetStepScreens(std::function<void(MenuCommand)> open) { stepScreens_ = std::move(open); }

 private:
  QPointer<QWidget> parent_;
  QString folder_;
  std::function<void(MenuCommand)> stepScreens_;
};
