#pragma once
// The prompt for two amounts, as the games log's break-point asks for them.

#include <QDialog>
#include <optional>
#include <utility>

#include "ui/dialogs.h"

class QLabel;
class QLineEdit;

class TwoNumberPrompt : public QDialog {
  Q_OBJECT

 public:
  explicit TwoNumberPrompt(const TwoNumberRequest& request, QWidget* parent = nullptr);

  // Both amounts, or nullopt when the player cancelled.
  std::optional<std::pair<Currency, Currency>> Answer() const { return answer_; }

 public slots:
  // OK: closes only when both amounts read.
  void accept() override;

 private:
  QLineEdit* first_;
  QLineEdit* second_;
  QLabel* error_;
  std::optional<std::pair<Currency, Currency>> answer_;
};
