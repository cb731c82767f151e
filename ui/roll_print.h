#pragma once
// A Dice Roll File on paper: its rolls as text lines, in columns down each
// page under a header with the file's name, the date and the page number.
// The rolls are read from the file a page at a time, so a file of any
// length prints in bounded memory.

#include <QDate>
#include <QString>
#include <cstdint>

#include "engine/dice_roll_files.h"

class QPrinter;

struct RollPrint {
  QString rollPath;  // the ".rol" file
  QString name;      // as the header shows it
  int64_t first = 1, count = 0;  // rolls [first, first + count)
  RollTextOptions options;
  int fontSize = 10;
  QDate date;
};

// How the lines fall on the printer's pages.
struct RollPageLayout {
  int linesPerColumn = 1, columns = 1;
  int64_t LinesPerPage() const { return static_cast<int64_t>(linesPerColumn) * columns; }
};
RollPageLayout LayoutRollPages(QPrinter& printer, const RollPrint& print);
int64_t PagesFor(int64_t count, const RollPageLayout& layout);

// "Dicemill Dice Roll File:  name  date  Page n".
QString RollPageHeader(const RollPrint& print, int64_t page);

// False when the file cannot be read or the printer fails.
bool PrintRolls(QPrinter& printer, const RollPrint& print);
