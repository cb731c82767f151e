// The roll print's page arithmetic and header, on a PDF printer.
#include "ui/roll_print.h"

#include <QPrinter>
#include <gtest/gtest.h>

namespace {

TEST(RollPrint, PagesRoundUpAndLargerTypeOrLongerLinesTakeMore) {
  const RollPageLayout layout{50, 4};
  const std::pair<int64_t, int64_t> pages[] = {{0, 0}, {1, 1}, {200, 1}, {201, 2}, {1000, 5}};
  for (const auto& [count, expected] : pages) EXPECT_EQ(PagesFor(count, layout), expected) << count;

  QPrinter printer;
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
