#pragma once
// The Configure tab "Payoffs": the payoff ratios of the bets (75 rows, 20 in
// view) and, beside them, the 21 dice outcomes of the Field. Each row shows
// the amount, "to" or "for", and the units bet; one cell at a time is edited
// in a small field laid over it, which commits on Enter or when left.

#include <QString>
#include <array>
#include <string>
#include <vector>

#include "engine/payoffs.h"
#include "ui/config_page.h"

class Dialogs;
class QLineEdit;
class QMenu;
class QScrollBar;
class Table;
class PayoffGridView;

// One cell of the page: the table, its row (grid row 1..75 or Field row
// 1..21) and its column (0 amount, 1 "to"/"for", 2 units bet).
struct PayoffCell {
  PayoffTable table = PayoffTable::Bets;
  int row = 1;
  int column = 0;
  friend bool operator==(const PayoffCell&, const PayoffCell&) = default;
};

class PayoffsPage : public ConfigPage {
  Q_OBJECT
 public:
  static constexpr int kVisibleRows = 20;
  static constexpr int kFieldRows = 21;

  PayoffsPage(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);
  ~PayoffsPage() override;

  QString Caption() const override { return tr("Payoffs"); }
  void Refresh() override;
  QMenu* PageMenu() override { return menu_; }
  void CommitPendingEdit() override;
  // The closing check names picPayoffs or picFieldPayoffs and the row.
  void SelectFault(const QString& control, int index) override;

  // Scrolls a row into view and chooses its first cell, as after a fault
  // found by the closing check.
  void ShowRow(PayoffTable table, int row);
  // Puts the editor over a cell, committing the cell left first.
  void Choose(const PayoffCell& cell);
  PayoffCell Chosen() const { return chosen_; }
  // The first grid row in view, 1..56.
  int TopRow() const { return top_; }
  // The three texts of a row as shown.
  std::array<QString, 3> CellTexts(PayoffTable table, int row) const;

  // Scrolls the bet grid so that `top` is its first row, kept in the game.
  void ScrollTo(int top);
  void RestoreDefaults();
  void SetFieldPreset(int preset);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  friend class PayoffGridView;
  struct RowText {
    QString label;
    std::array<QString, 3> cells;
  };
  void Commit();
  void Move(int rows, int columns);
  void PlaceEditor();
  const RowText& Row(PayoffTable table, int row) const;

  Table& table_;
  Dialogs& dialogs_;
  PayoffGridView *grid_ = nullptr, *fieldGrid_ = nullptr;
  QScrollBar* scroll_ = nullptr;
  QLineEdit* editor_ = nullptr;
  QMenu* menu_ = nullptr;
  std::vector<RowText> bets_, field_;  // index 0 is row 1
  PayoffCell chosen_;
  int top_ = 1;
  bool committing_ = false;
  bool editing_ = false;  // a cell has been chosen: the editor is out
};

// Turns Place 6 to the "for" form and the Field to the Place 6 preset, so that
// the page's picture shows both forms.
void FillSamplePayoffs(Table& table);
