#include "ui/die_painter.h"

#include <QPainter>
#include <array>

namespace {

// Pip positions on a 3 x 3 grid, per face.
constexpr std::array<std::array<bool, 9>, 7> kPips = {{
    {},
    {{0, 0, 0, 0, 1, 0, 0, 0, 0}},
    {{1, 0, 0, 0, 0, 0, 0, 0, 1}},
    {{1, 0, 0, 0, 1, 0, 0, 0, 1}},
    {{1, 0, 1, 0, 0, 0, 1, 0, 1}},
    {{1, 0, 1, 0, 1, 0, 1, 0, 1}},
    {{1, 0, 1, 1, 0, 1, 1, 0, 1}},
}};

struct DieColours {
  QColor edge, body, pip;
};

DieColours ColoursOf(DiceStyle style) {
  switch (style) {
    case DiceStyle::Ivory: return {QColor(0x8a, 0x80, 0x70), QColor(0xf6, 0xf1, 0xe2), QColor(0x1a, 0x1a, 0x1a)};
    // The felt shows through a casino's clear dice.
    case DiceStyle::Translucent: return {QColor(0x90, 0x10, 0x10, 200), QColor(0xe0, 0x20, 0x20, 150), QColor(0xff, 0xff, 0xff)};
    case DiceStyle::CasinoRed: break;
  }
  return {QColor(0x70, 0x10, 0x10), QColor(0xc8, 0x1e, 0x1e), QColor(0xfb, 0xfb, 0xf4)};
}

}  // namespace

DiceStyle DiceStyleOf(int index) {
  return index > 0 && index < kDiceStyles ? static_cast<DiceStyle>(index) : DiceStyle::CasinoRed;
}

void PaintDie(QPainter& p, const QRectF& box, int face, DiceStyle style) {
  const DieColours colours = ColoursOf(style);
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(colours.edge, box.width() * 0.03));
  p.setBrush(colours.body);
  p.drawRoundedRect(box, box.width() * 0.18, box.width() * 0.18);
  if (face >= 1 && face <= 6) {
    p.setPen(Qt::NoPen);
    p.setBrush(colours.pip);
    const qreal cell = box.width() / 4;
    for (int i = 0; i < 9; ++i) {
      if (!kPips[face][i]) continue;
      const QPointF c(box.left() + cell * (1 + i % 3), box.top() + cell * (1 + i / 3));
      p.drawEllipse(c, cell * 0.36, cell * 0.36);
    }
  }
  p.restore();
}
