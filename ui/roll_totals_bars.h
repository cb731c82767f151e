#pragma once
// The rows of the roll totals screen drawn as one table: the row's name, a
// bar as long as its count with a mark where the odds say the count should
// stand, then the counts and the percentages under PERCENT. Drawn, not made
// of widgets, so that 36 rows line up and scroll as one.

#include <QColor>
#include <QWidget>
#include <cstdint>
#include <vector>

#include "stats/roll_views.h"

class QPainter;

class RollTotalsBars : public QWidget {
  Q_OBJECT
 public:
  explicit RollTotalsBars(QWidget* parent = nullptr);

  void SetRows(std::vector<TotalsRow> rows, int64_t totalRolls);
  void SetColours(const QColor& background, const QColor& bar);
  const std::vector<TotalsRow>& Rows() const { return rows_; }

  // The count the odds expect of a row after all the rolls.
  double ProbableCount(const TotalsRow& row) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Columns {
    int label, bar, rolls, since, actual, prob, width;
  };
  Columns Layout() const;
  QFont HeaderFont() const;
  int RowHeight() const;
  int HeaderHeight() const;
  void PaintHeader(QPainter& p, const Columns& c) const;
  void PaintRow(QPainter& p, const Columns& c, size_t index, double scale) const;

  std::vector<TotalsRow> rows_;
  int64_t totalRolls_ = 0;
  QColor background_, bar_;
};
