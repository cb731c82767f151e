#pragma once
// The percentage dice table drawn as the player edits it: the totals 2..12
// down the left, each total's ordered outcomes beside it as a pair of dice
// (a triangle, since 7 has six ways and 2 one), and below them the faces of
// each die. One cell is under edit at a time; the editor `txtPercent` sits
// over it. The grid only shows and reports: the page turns what the player
// types into table commands.

#include <QWidget>

#include "dice/prob_table.h"

class QLineEdit;

// The cell under edit after a step of the cursor keys: the next cell of the
// block in that direction, wrapping round the ends, so that stepping down
// past the lowest total of a column lands on the face rows and back.
ProbPosition StepBlockCell(ProbPosition from, int rowStep, int columnStep);

// The leading number of typed text, as a lenient reader takes it: "12.5%" is
// 12.5, "+3" is 3 and text without a number is 0.
double LeadingNumber(const QString& text);

class ProbabilityGrid : public QWidget {
  Q_OBJECT
 public:
  explicit ProbabilityGrid(QWidget* parent = nullptr);

  // The table and how its weights are shown (a ProbDisplayMode and the
  // "rolls out of" count of modes 2 and 3).
  void Show(const ProbTable& table, int32_t displayMode, double rollsOutOf);
  // Puts the editor on a block cell (others are ignored).
  void Choose(ProbPosition cell);
  ProbPosition Chosen() const { return chosen_; }
  // The weight of a cell as the display mode shows it ("2.778", "+0.500").
  QString Shown(int row, int column) const;
  QRect CellRect(int row, int column) const;
  QLineEdit* Editor() const { return editor_; }
  // Commits the editor's text if the player changed it.
  void CommitIfEdited();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  void EntryCommitted(int row, int column, double typed);
  void LockToggled(int row, int column);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void PaintCell(QPainter& p, int row, int column) const;
  void PlaceEditor();
  void Move(int rowStep, int columnStep);

  ProbTable table_ = TrueTable();
  int32_t displayMode_ = kShowPercent;
  double rollsOutOf_ = 36;
  ProbPosition chosen_{6, 1};
  QLineEdit* editor_ = nullptr;
};
