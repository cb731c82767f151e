#pragma once
// The craps layout as the player sees and works it: the printed layout,
// every bet's chips with their ON / OFF markers, the puck, the last throw's
// dice and the tray of click tools. It draws only the look its owner last
// gave it and answers clicks and keys with signals; the owner acts on them.

#include <QPixmap>
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

  TableLook look_;
  LayoutColours colours_;
  int focus_;
  int hover_ = 0;  // the spot under the pointer, lit faintly
  // The printed layout, kept until its size, pixel ratio or print changes.
  QPixmap layout_;
  LayoutPrint printed_;
};
