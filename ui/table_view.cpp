#include "ui/table_view.h"

#include <QRandomGenerator>
#include <cmath>
#include <functional>
#include <tuple>

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "engine/bet_status_table.h"
#include "engine/table_commands.h"
#include "ui/layout_geometry.h"
#include "ui/die_painter.h"

namespace {

QString NameOf(int betId) {
  const auto name = bet::CatalogueName(betId);
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

// What a bet tool says on the tray.
QString ToolWord(int tool) {
  switch (tool) {
    case kToolBuy: return QStringLiteral("BUY");
    case kToolCallOff: return QStringLiteral("OFF");
    case kToolCallOn: return QStringLiteral("ON");
    case layout::kToolRemove: return QStringLiteral("TAKE\nDOWN");
    default: return {};
  }
}

}  // namespace

TableView::TableView(QWidget* parent) : QWidget(parent), focus_(bet::kPassLine) {
  setObjectName(QStringLiteral("picLayout"));
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAccessibleName(NameOf(focus_));
}

void TableView::SetLook(const TableLook& look) {
  StartTravel(look_, look);
  look_ = look;
  if (bet::IsHop(focus_) && !look_.showHop) focus_ = bet::kPassLine;
  setAccessibleDescription(Describe(focus_));
  update();
}

void TableView::SetColours(const LayoutColours& colours) {
  if (colours == colours_) return;
  colours_ = colours;
  update();
}

QPointF TableView::BetCentre(int betId) const { return layout::ToWidget(size()).map(layout::ChipPoint(betId)); }

QPointF TableView::Logical(QPointF widgetPoint) const { return layout::ToWidget(size()).inverted().map(widgetPoint); }

const QPixmap& TableView::Layout() {
  LayoutPrint print{colours_, look_.barNumber, look_.field, look_.payoffs, look_.showHop};
  const qreal ratio = devicePixelRatioF();
  if (layout_.isNull() || layout_.deviceIndependentSize().toSize() != size() || layout_.devicePixelRatio() != ratio ||
      !(print == printed_)) {
    layout_ = PaintLayout(size(), ratio, print);
    printed_ = std::move(print);
  }
  return layout_;
}

void TableView::paintEvent(QPaintEvent*) {
  const QPixmap& printed = Layout();
  QPainter p(this);
  p.drawPixmap(0, 0, printed);
  p.setRenderHint(QPainter::Antialiasing);
  p.setTransform(layout::ToWidget(size()));
  const auto& marks = layout::Marks();
  if (bet::IsPointNumber(look_.point)) {
    PaintPuck(p, layout::PuckOn(look_.point), marks.puckRadius, true);
  } else {
    PaintPuck(p, marks.puckOff, marks.puckRadius, false);
  }
  PaintHover(p);
  PaintBets(p);
  PaintTray(p);
  PaintTravel(p);
  PaintThrow(p);
  if (hasFocus()) PaintFocus(p);
}

namespace {

constexpr int kThrowMs = 450;
constexpr int kTravelMs = 350;
constexpr int kTumbleSteps = 7;  // faces shown on the way

QVariantAnimation* Animate(QObject* owner, int ms, std::function<void(double)> step) {
  auto* animation = new QVariantAnimation(owner);
  animation->setStartValue(0.0);
  animation->setEndValue(1.0);
  animation->setDuration(ms);
  animation->setEasingCurve(QEasingCurve::OutCubic);
  QObject::connect(animation, &QVariantAnimation::valueChanged, owner,
                   [step = std::move(step)](const QVariant& v) { step(v.toDouble()); });
  animation->start(QAbstractAnimation::DeleteWhenStopped);
  return animation;
}

}  // namespace

void TableView::AnimateThrow(int die1, int die2) {
  SkipAnimation();
  throw_ = {die1, die2, 0, 1, 1};
  throwAnimation_ = Animate(this, kThrowMs, [this](double t) {
    const int step = static_cast<int>(t * kTumbleSteps);
    // The tumble is for the eye only: it draws on the screen's own generator,
    // never on the table's dice.
    if (step != static_cast<int>(throw_.progress * kTumbleSteps)) {
      throw_.tumbleFace1 = QRandomGenerator::global()->bounded(1, 7);
      throw_.tumbleFace2 = QRandomGenerator::global()->bounded(1, 7);
    }
    throw_.progress = t;
    update();
  });
  update();
}

bool TableView::Animating() const { return throw_.progress < 1 || travel_.progress < 1; }

void TableView::SkipAnimation() {
  if (throwAnimation_) throwAnimation_->stop();
  if (travelAnimation_) travelAnimation_->stop();
  throw_.progress = 1;
  travel_.progress = 1;
  update();
}

void TableView::StartTravel(const TableLook& before, const TableLook& after) {
  // A box bet that left its box for a number it was not on before.
  for (const auto& [box, first, last] : {std::tuple{bet::kCome, bet::kComeNumberBase, bet::kComeNumberBase + 5},
                                          std::tuple{bet::kDontCome, bet::kDontComeBase,
                                                     bet::kDontComeBase + 5}}) {
    if (before.amounts[box].raw <= 0 || after.amounts[box] != 0) continue;
    for (int id = first; id <= last; ++id) {
      if (before.amounts[id] != 0 || after.amounts[id].raw <= 0) continue;
      travel_ = {box, id, after.amounts[id], 0};
      if (travelAnimation_) travelAnimation_->stop();
      travelAnimation_ = Animate(this, kTravelMs, [this](double t) {
        travel_.progress = t;
        update();
      });
      return;
    }
  }
}

void TableView::PaintTravel(QPainter& p) const {
  if (travel_.progress >= 1) return;
  const QPointF from = layout::ChipPoint(travel_.from), to = layout::ChipPoint(travel_.to);
  const QPointF at = from + (to - from) * travel_.progress;
  PaintChipStack(p, at, layout::Marks().chipRadius, travel_.amount, look_.checks, look_.chipStyle);
}

void TableView::PaintThrow(QPainter& p) const {
  if (throw_.progress >= 1) return;
  // The dice come in from the far end of the layout and land on their spot.
  const QRectF dice = layout::Marks().dice;
  const qreal side = dice.height() * 0.78;
  const QPointF landing = dice.center();
  const QPointF start(layout::kWidth * 0.15, layout::kHeight * 0.35);
  const QPointF at = start + (landing - start) * throw_.progress;
  const qreal hop = std::sin(throw_.progress * 3.14159 * 2) * side * 0.4 * (1 - throw_.progress);
  p.save();
  for (int i = 0; i < 2; ++i) {
    p.save();
    p.translate(at + QPointF((i == 0 ? -1 : 1) * (side * 0.5 + 6), -hop));
    p.rotate((1 - throw_.progress) * (i == 0 ? 540 : -420));
    PaintDie(p, QRectF(-side / 2, -side / 2, side, side), i == 0 ? throw_.tumbleFace1 : throw_.tumbleFace2,
             look_.diceStyle);
    p.restore();
  }
  p.restore();
}

void TableView::PaintBets(QPainter& p) const {
  const qreal r = layout::Marks().chipRadius;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    const Currency amount = look_.amounts[id];
    if (amount.raw <= 0 || (bet::IsHop(id) && !look_.showHop)) continue;
    const QPointF at = layout::ChipPoint(id);
    // The marker stands just right of the chips or the ticket.
    QPointF marker = at + QPointF(r * 1.45, r * 0.35);
    if (look_.betsAsNumbers) {
      marker.setX(PaintAmount(p, at, r * 0.8, amount).right() + r * 0.5);
    } else {
      PaintChipStack(p, at, r, amount, look_.checks, look_.chipStyle);
    }
    const int32_t status = look_.statuses[id];
    if (status == status::kCalledOn || status == status::kCalledOff)
      PaintCallMarker(p, marker, r * 0.62, status == status::kCalledOn);
  }
}

void TableView::PaintTray(QPainter& p) const {
  for (int tool : layout::TrayTools()) {
    const QRectF area = layout::ToolArea(tool);
    const bool chosen = tool == look_.tool;
    p.setPen(chosen ? QPen(QColor(0xff, 0xd8, 0x4a), 3) : QPen(QColor(0, 0, 0, 90), 1));
    p.setBrush(chosen ? QColor(0xff, 0xe8, 0x90, 60) : QColor(0, 0, 0, 40));
    p.drawRoundedRect(area, 7, 7);
    const QPointF c = area.center() - QPointF(0, 5);
    const qreal r = area.height() * 0.33;
    QFont small = p.font();
    small.setPixelSize(9);
    small.setBold(true);
    const QRectF caption(area.left(), area.bottom() - 13, area.width(), 12);
    if (tool >= kToolFirstChip && tool <= kToolLastChip) {
      const Currency value = look_.checks[tool - kToolFirstChip];
      PaintChip(p, c, r, value, QString::fromStdString(FormatNumberWithCommas(value)), look_.chipStyle);
      p.setFont(small);
      p.setPen(QColor(0xf3, 0xed, 0xd6));
      p.drawText(caption, Qt::AlignCenter, QString::number(tool));
    } else if (tool >= kToolFirstStack && tool <= kToolLastStack) {
      const TrayStackLook& stack = look_.stacks[tool - kToolFirstStack];
      PaintChipStack(p, c + QPointF(0, r * 0.5), r * 0.9, stack.amount, look_.checks, look_.chipStyle);
      p.setFont(small);
      p.setPen(QColor(0xf3, 0xed, 0xd6));
      p.drawText(caption, Qt::AlignCenter, stack.amount.raw > 0 ? AmountLabel(stack.amount) : QStringLiteral("STACK"));
    } else {
      QFont word = small;
      word.setPixelSize(tool == layout::kToolRemove ? 11 : 15);
      p.setFont(word);
      if (tool == kToolCallOn || tool == kToolCallOff) {
        PaintCallMarker(p, area.center(), r * 0.9, tool == kToolCallOn);
      } else {
        p.setPen(QColor(0xf3, 0xed, 0xd6));
        p.drawText(area, Qt::AlignCenter, ToolWord(tool));
      }
    }
  }
  if (look_.die1 >= 1 && look_.die2 >= 1) {
    const QRectF dice = layout::Marks().dice;
    const qreal side = dice.height() * 0.78;
    PaintDie(p, QRectF(dice.center().x() - side - 6, dice.center().y() - side / 2, side, side), look_.die1, look_.diceStyle);
    PaintDie(p, QRectF(dice.center().x() + 6, dice.center().y() - side / 2, side, side), look_.die2, look_.diceStyle);
  }
}

void TableView::PaintHover(QPainter& p) const {
  if (hover_ == 0) return;
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0xff, 0xff, 0xff, 34));
  p.drawPath(layout::Region(hover_));
}

void TableView::PaintFocus(QPainter& p) const {
  QPen ring(QColor(0xff, 0xe0, 0x40), 3, Qt::DashLine);
  ring.setCosmetic(true);
  p.setPen(ring);
  p.setBrush(QColor(0xff, 0xe0, 0x40, 40));
  p.drawPath(layout::Region(focus_));
}

QString TableView::DescribeTool(int tool) const {
  if (tool >= kToolFirstChip && tool <= kToolLastChip)
    return tr("Check %1: %2").arg(tool).arg(AmountLabel(look_.checks[tool - kToolFirstChip]));
  if (tool >= kToolFirstStack && tool <= kToolLastStack) {
    const TrayStackLook& stack = look_.stacks[tool - kToolFirstStack];
    return stack.name.isEmpty() ? tr("No Chip-Stack on this tool")
                                : tr("%1: %2").arg(stack.name, AmountLabel(stack.amount));
  }
  switch (tool) {
    case kToolBuy: return tr("Buy a Place bet");
    case kToolCallOff: return tr("Call a bet OFF");
    case kToolCallOn: return tr("Call a bet ON");
    default: return tr("Take a bet down");
  }
}

QString TableView::Describe(int betId) const {
  QString text = NameOf(betId);
  const Currency amount = look_.amounts[betId];
  text += amount.raw > 0 ? QStringLiteral(": %1").arg(AmountLabel(amount)) : tr(": no bet");
  if (!look_.payoffs[betId].isEmpty()) text += tr(", pays %1").arg(look_.payoffs[betId]);
  const int32_t status = look_.statuses[betId];
  if (status == status::kCalledOn) text += tr(", called ON");
  if (status == status::kCalledOff) text += tr(", called OFF");
  return text;
}

void TableView::MoveFocus(int betId) {
  if (betId == focus_) return;
  focus_ = betId;
  setAccessibleName(NameOf(focus_));
  setAccessibleDescription(Describe(focus_));
  QAccessibleEvent moved(this, QAccessible::Focus);
  QAccessible::updateAccessibility(&moved);
  update();
}

void TableView::mousePressEvent(QMouseEvent* event) {
  if (Animating()) SkipAnimation();
  if (event->button() == Qt::RightButton) {
    emit RollRequested();
    return;
  }
  if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
  const QPointF at = Logical(event->position());
  if (const int id = layout::BetAt(at, look_.showHop)) {
    MoveFocus(id);
    emit BetClicked(id, event->modifiers().testFlag(Qt::ShiftModifier));
  } else if (const int tool = layout::ToolAt(at)) {
    emit ToolClicked(tool);
  }
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
  const int id = layout::BetAt(Logical(event->position()), look_.showHop);
  if (id != hover_) {
    hover_ = id;
    update();
  }
  QWidget::mouseMoveEvent(event);
}

void TableView::leaveEvent(QEvent* event) {
  if (hover_ != 0) {
    hover_ = 0;
    update();
  }
  QWidget::leaveEvent(event);
}

void TableView::keyPressEvent(QKeyEvent* event) {
  if (Animating()) SkipAnimation();
  const int key = event->key();
  auto step = [&](int dx, int dy) { MoveFocus(layout::Neighbour(focus_, dx, dy, look_.showHop)); };
  switch (key) {
    case Qt::Key_Left: step(-1, 0); break;
    case Qt::Key_Right: step(1, 0); break;
    case Qt::Key_Up: step(0, -1); break;
    case Qt::Key_Down: step(0, 1); break;
    case Qt::Key_Return:
    case Qt::Key_Enter: emit BetClicked(focus_, event->modifiers().testFlag(Qt::ShiftModifier)); break;
    case Qt::Key_Space: emit RollRequested(); break;
    default:
      if (key >= Qt::Key_1 && key <= Qt::Key_5 && !(event->modifiers() & Qt::ControlModifier)) {
        emit ToolClicked(kToolFirstChip + key - Qt::Key_1);
        break;
      }
      return QWidget::keyPressEvent(event);
  }
  event->accept();
}

bool TableView::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    auto* help = static_cast<QHelpEvent*>(event);
    const QPointF at = Logical(help->pos());
    if (const int id = layout::BetAt(at, look_.showHop)) {
      QToolTip::showText(help->globalPos(), Describe(id), this);
    } else if (const int tool = layout::ToolAt(at)) {
      QToolTip::showText(help->globalPos(), DescribeTool(tool), this);
    } else {
      QToolTip::hideText();
      event->ignore();
    }
    return true;
  }
  return QWidget::event(event);
}
