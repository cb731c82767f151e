#pragma once
// The printed layout: felt, lines and lettering, drawn once per size and
// device pixel ratio into a pixmap that every repaint reuses. Chips, puck,
// dice and tools are drawn over it by the table view.

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QStringList>
#include <array>

#include "engine/catalogue.h"

// The colours of a table scheme.
struct LayoutColours {
  QColor felt{0x1d, 0x6e, 0x3b};
  QColor feltShade{0x0c, 0x3f, 0x20};
  QColor lines{0xf3, 0xed, 0xd6};
  QColor accent{0xd8, 0x2b, 0x24};  // BIG 6 / BIG 8, COME, the centre's frame
  QColor field{0xf5, 0xd0, 0x3c};   // the Field's numbers
  QColor rail{0x5b, 0x33, 0x1b};
  friend bool operator==(const LayoutColours&, const LayoutColours&) = default;
};

// What the Field prints: the totals it wins on, and the notes of the totals
// that pay more than even money ("2 PAYS DOUBLE").
struct FieldPrint {
  QStringList numbers;
  QStringList notes;
  friend bool operator==(const FieldPrint&, const FieldPrint&) = default;
};

// Everything the printed layout depends on besides its size.
struct LayoutPrint {
  LayoutColours colours;
  int barNumber = 12;
  FieldPrint field;
  // The payoff printed on a proposition or Hop spot ("9 to 1"), by bet.
  std::array<QString, bet::kLastTableBet + 1> payoffs{};
  bool showHop = false;
  friend bool operator==(const LayoutPrint&, const LayoutPrint&) = default;
};

// The layout at `size` (device-independent pixels), sharp at `pixelRatio`.
QPixmap PaintLayout(QSize size, qreal pixelRatio, const LayoutPrint& print);
