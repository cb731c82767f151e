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

}  // namespace

void PaintDie(QPainter& p, const QRectF& box, int face) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(QColor(0x70, 0x10, 0x10), box.width() * 0.03));
  p.setBrush(QColor(0xc8, 0x1e, 0x1e));
  p.drawRoundedRect(box, box.width() * 0.18, box.width() * 0.18);
  if (face >= 1 && face <= 6) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xfb, 0xfb, 0xf4));
    const qreal cell = box.width() / 4;
    for (int i = 0; i < 9; ++i) {
      if (!kPips[face][i]) continue;
      const QPointF c(box.left() + cell * (1 + i % 3), box.top() + cell * (1 + i / 3));
      p.drawEllipse(c, cell * 0.36, cell * 0.36);
    }
  }
  p.restore();
}
