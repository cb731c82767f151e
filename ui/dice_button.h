#pragma once
// A button of the roll-your-own pad that shows what it rolls: a total, a pair
// of dice or one die's face. It paints in the palette's button colour, so the
// pad tints all its buttons by setting one palette.

#include <QAbstractButton>

// A pair lies side by side or one die over the other; a view picks one for
// all its cells, so that no cell turns its dice on a pixel's difference.
enum class DiceButtonShows { Total, PairAcross, PairDown, Face };

class DiceButton : public QAbstractButton {
  Q_OBJECT
 public:
  // `first` is the total, die 1 or the face; `second` is die 2 of a pair.
  DiceButton(DiceButtonShows shows, int first, int second, QWidget* parent = nullptr);

  int First() const { return first_; }
  int Second() const { return second_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintTotal(QPainter& painter, const QRectF& inside) const;
  void PaintPair(QPainter& painter, const QRectF& inside) const;

  DiceButtonShows shows_;
  int first_, second_;
};

// Black or cream, whichever reads better on `background`.
QColor TextColourOn(const QColor& background);
