// The roll print's page arithmetic and header, on a PDF printer.
#include "ui/roll_print.h"

#include <QPrinter>
#include <gtest/gtest.h>

namespace {

TEST(RollPrint, LargerTypeOrLongerLinesPutFewerRollsOnAPage) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  RollPrint print;
  print.count = 100000;
  const int64_t small = LayoutRollPages(printer, print).LinesPerPage();
  print.fontSize = 20;
  const int64_t large = LayoutRollPages(printer, print).LinesPerPage();
  print.fontSize = 10;
  print.options = {false, false, true};
  const int64_t totalsOnly = LayoutRollPages(printer, print).LinesPerPage();
  EXPECT_GT(small, large);
  EXPECT_GT(totalsOnly, small);
}

TEST(RollPrint, HeaderNamesTheFileTheDateAndThePage) {
  RollPrint print;
  print.name = QStringLiteral("night.rol");
  print.date = QDate(2026, 11, 4);
  EXPECT_EQ(RollPageHeader(print, 12), QStringLiteral("Dicemill Dice Roll File:  night.rol    04-Nov-26    Page 12"));
}

}  // namespace
