#pragma once
// The prompt for one amount ("Set Beginning Bankroll"): the caller's text,
// an entry offering an amount, OK and Cancel. A wrong amount keeps the prompt
// open and says why beside the entry.

#include <QDialog>
#include <QString>
#include <optional>
#include <string>

#include "dice/money.h"

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QVBoxLayout;

// An amount as a player types it: "$1,000", "1000.50", " -7.5 ".
std::optional<Currency> ParseAmount(const QString& text);
// The offered amount as the entry shows it: "1,000", "7.50".
QString AmountText(Currency amount);

// The parts both amount prompts are built of.
namespace prompt_parts {
void SetMargins(QVBoxLayout* layout);
QLineEdit* AmountEntry(const char* objectName, Currency offered, QWidget* parent);
// Hidden until an amount is refused.
QLabel* ErrorLabel(QWidget* parent);
void ShowError(QLabel* error, QLineEdit* entry);
QDialogButtonBox* OkCancel(QDialog* dialog);
}  // namespace prompt_parts

class NumberPrompt : public QDialog {
  Q_OBJECT

 public:
  NumberPrompt(const std::string& title, const std::string& text, Currency offered, QWidget* parent = nullptr);

  // The amount accepted, or nullopt when the player cancelled.
  std::optional<Currency> Answer() const { return answer_; }

 public slots:
  // OK: closes only on a readable amount.
  void accept() override;

 private:
  QLineEdit* entry_;
  QLabel* error_;
  std::optional<Currency> answer_;
};
