#pragma once
// The table's centre until the full layout is drawn: the felt, the puck at
// the point, the last throw's dice and the prompt of a tool mode. A right
// click rolls, as it does on the full layout.

#include <QList>
#include <QPair>
#include <QString>
#include <QWidget>

class TableFelt : public QWidget {
  Q_OBJECT
 public:
  explicit TableFelt(QWidget* parent = nullptr);

  void SetDice(int die1, int die2);
  void SetPoint(int point);
  void SetPrompt(const QString& prompt);
  // The bets on the layout as name and amount, in layout order.
  void SetBets(QList<QPair<QString, QString>> bets);

  QSize sizeHint() const override { return {900, 520}; }

 signals:
  void RollRequested();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  int die1_ = 0, die2_ = 0, point_ = 0;
  QString prompt_;
  QList<QPair<QString, QString>> bets_;
};

// One die's face, pips and all, in `box` (also used by the screens that show dice).
class QPainter;
void PaintDie(QPainter& painter, const QRectF& box, int face);
