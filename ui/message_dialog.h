#pragma once
// The program's message box: a title, lines of text, the buttons the caller
// asks for and, on notices a switch governs, "Don't show this again".

#include <QDialog>
#include <QString>
#include <string>

#include "ui/dialogs.h"

class QCheckBox;

// The table breaks lines with carriage returns; Qt breaks them with "\n".
QString DisplayLines(const std::string& text);

class MessageDialog : public QDialog {
  Q_OBJECT

 public:
  explicit MessageDialog(const MessageRequest& request, QWidget* parent = nullptr);

  // The answer once the dialog has closed; before that, the answer Esc gives.
  MessageAnswer Answer() const;

 protected:
  // Esc and the window's close box answer Cancel when offered, else No, else OK.
  void reject() override;

 private:
  void Finish(Reply reply);

  Buttons buttons_;
  Reply reply_;
  QCheckBox* dontShow_ = nullptr;
};
