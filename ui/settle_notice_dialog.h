#pragma once
// The won, pushed, returned and lost notices: what the bet paid or lost, row
// by row, and the buttons with which the player says what becomes of the bet.
// A won notice's "Sa&me Bet:" and "&Bet:" buttons carry amount entries.

#include <QDialog>
#include <array>
#include <optional>

#include "engine/frontend.h"

class QKeyEvent;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

// The operator and units an amount entry cycles through, in AmountRule's codes.
inline constexpr std::array<int32_t, 4> kAmountOperators{0, 1, 2, 3};
inline constexpr std::array<int32_t, 7> kAmountUnits{-1, 0, 2, 3, 4, 5, 6};

class SettleNoticeDialog : public QDialog {
  Q_OBJECT

 public:
  explicit SettleNoticeDialog(const SettleNotice& notice, QWidget* parent = nullptr);

  // The button pressed with both entries, or nullopt when the window closed.
  std::optional<SettleReply> Answer() const { return answer_; }

 protected:
  // Enter in an amount entry answers with that entry's button, never also
  // with the default one.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // One amount entry: the rule it edits and its controls (no operator beside
  // "&Bet:", which names the new amount outright).
  struct Entry {
    AmountRule rule;
    QPushButton* op = nullptr;
    QLineEdit* amount = nullptr;
    QPushButton* units = nullptr;
  };

  void AddRows(const SettleNotice& notice, QVBoxLayout* layout);
  void AddButtons(const SettleNotice& notice, QVBoxLayout* layout);
  QWidget* EntryControls(Entry& entry, int button, bool withOperator);
  // Reads an entry's amount into its rule; false (and says so) when unreadable.
  bool ReadEntry(Entry& entry);
  void Press(int button);

  Entry sameBet_, bet_;
  QLabel* error_ = nullptr;
  std::optional<SettleReply> answer_;
};
