#pragma once
// The craps layout as the player sees and works it: the printed layout,
// every bet's chips with their ON / OFF markers, the puck, the last throw's
// dice and the tray of click tools. It draws only the look its owner last
// gave it and answers clicks and keys with signals; the owner acts on them.

#include <QPixmap>
#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

#include "ui/layout_painter.h"
#include "ui/table_look.h"

class TableView : public QWidget {
  Q_OBJECT
 public:
  explicit TableView(QWidget* parent = nullptr);

  void SetLook(const TableLook& look);
  const TableLook& Look() const { return look_; }
  void SetColours(const LayoutColours& colours);

  // Where a bet's chips stand, in widget coordinates.
  QPointF BetCentre(int betId) const;
  // A visible throw: the dice tumble onto the table before they show their
  // faces. A click or a key cuts it short.
  void AnimateThrow(int die1, int die2);
  bool Animating() const;
  void SkipAnimation();

  // The spot the keys have reached (a BetId).
  int FocusedBet() const { return focus_; }

  QSize sizeHint() const override { return {1100, 616}; }
  QSize minimumSizeHint() const override { return {500, 280}; }

 signals:
  void BetClicked(int betId, bool shift);
  void ToolClicked(int tool);
  void RollRequested();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QPointF Logical(QPointF widgetPoint) const;
  const QPixmap& Layout();
  void PaintBets(QPainter& p) const;
  void PaintTray(QPainter& p) const;
  void PaintHover(QPainter& p) const;
  void PaintFocus(QPainter& p) const;
  void MoveFocus(int betId);
  // Name, amount and payoff of a spot, as the tooltip and screen readers say it.
  QString Describe(int betId) const;
  QString DescribeTool(int tool) const;
  // A Come or Don't Come bet that the last look moved to its number travels
  // there rather than jumping.
  void StartTravel(const TableLook& before, const TableLook& after);
  void PaintThrow(QPainter& p) const;
  void PaintTravel(QPainter& p) const;

  struct Throw {
    int die1 = 0, die2 = 0;
    double progress = 1;  // 0 thrown .. 1 landed
    int tumbleFace1 = 1, tumbleFace2 = 1;
  };
  struct Travel {
    int from = 0, to = 0;
    Currency amount;
    double progress = 1;
  };
  Throw throw_;
  Travel travel_;
  QPointer<QVariantAnimation> throwAnimation_, travelAnimation_;

  TableLook look_;
  LayoutColours colours_;
  int focus_;
  int hover_ = 0;  // the spot under the pointer, lit faintly
  // The printed layout, kept until its size, pixel ratio or print changes.
  QPixmap layout_;
  LayoutPrint printed_;
};
