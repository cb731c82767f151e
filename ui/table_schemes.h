#pragma once
// The table colour schemes a game may choose (TableScheme 0..7) and the
// 16-colour table the print colours index.

#include <QColor>
#include <QString>
#include <span>

#include "ui/layout_painter.h"

struct TableScheme {
  const char* name;
  LayoutColours colours;
};

// In TableScheme order.
std::span<const TableScheme> TableSchemes();
// The colours of scheme `index`; the first scheme for an index out of range,
// as a game file from elsewhere may hold one.
LayoutColours SchemeColours(int index);

struct NamedColour {
  const char* name;
  QColor colour;
};
constexpr int kPaletteColours = 16;
// 0 black, 9 blue and 12 red among them, as amounts are coloured.
std::span<const NamedColour> PaletteColours();
QColor PaletteColour(int index);
