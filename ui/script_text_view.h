#pragma once
// The text view of the Auto-Bet editor: the same script in its text form,
// typed by hand, coloured by what each word is, completed from the
// vocabulary, with the reader's and the checker's faults underlined on the
// line they concern.

#include <QWidget>
#include <optional>
#include <string>
#include <vector>

#include "engine/script_line.h"

class QCompleter;
class QLabel;
class QPlainTextEdit;
class QTimer;

// Where a fault stands in the text: 1-based line, 0-based column, and what it is.
struct TextFault {
  int line = 0;
  int column = 0;
  std::string message;
};

// Reads a text as the view does: the lines, or the first fault found by the
// reader or, failing none, by the checker (placed on its script line's text line).
std::optional<TextFault> FaultOfText(const std::string& text, std::vector<ScriptLine>* lines = nullptr);

class ScriptTextView : public QWidget {
  Q_OBJECT
 public:
  explicit ScriptTextView(QWidget* parent = nullptr);

  void SetLines(const std::vector<ScriptLine>& lines);
  // The typed lines, or nothing (with the fault shown) when the text can't be read.
  bool ReadLines(std::vector<ScriptLine>& lines);
  // True when the player typed since SetLines.
  bool Edited() const { return edited_; }

  QPlainTextEdit* Editor() const { return edit_; }
  QString FaultText() const;
  // Shows the fault at once rather than after the typing pause.
  void CheckNow();
  // Offers the vocabulary for the words before the cursor; true when some fit.
  bool Complete();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Mark(const std::optional<TextFault>& fault);
  void InsertCompletion(const QString& completion);

  QPlainTextEdit* edit_;
  QLabel* status_;
  QTimer* pause_;
  QCompleter* completer_;
  int prefixLength_ = 0;
  bool edited_ = false;
  bool filling_ = false;
};
