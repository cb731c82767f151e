// The Colors tab: the scheme chosen is the one the table is painted in, and
// the print colours are stored as chosen.

#include "ui/colors_page.h"

#include <QComboBox>
#include <gtest/gtest.h>

#include "engine/game.h"
#include "ui/screen_desk_for_test.h"
#include "ui/table_look.h"
#include "ui/table_schemes.h"

namespace {

TEST(ColorsPage, SchemeReachesTheTableLookAndPrintColoursAreStored) {
  ScreenDesk desk;
  ColorsPage page(desk.table, desk.dialogs);
  auto* scheme = page.findChild<QComboBox*>(QStringLiteral("cmbTableScheme"));
  ASSERT_NE(scheme, nullptr);
  ASSERT_EQ(scheme->count(), static_cast<int>(TableSchemes().size()));
  EXPECT_EQ(LookOf(desk.table.State()).colours, SchemeColours(0));
  for (int choice : {3, static_cast<int>(TableSchemes().size()) - 1}) {
    emit scheme->activated(choice);
    const TableLook look = LookOf(desk.table.State());
    EXPECT_EQ(look.scheme, choice);
    EXPECT_EQ(look.colours, SchemeColours(choice));
    EXPECT_FALSE(look.colours == SchemeColours(0)) << choice;
  }
  for (int i = 0; i < 3; ++i) {
    auto* print = page.findChild<QComboBox*>(QStringLiteral("cmbPrintColors%1").arg(i));
    ASSERT_NE(print, nullptr);
    ASSERT_EQ(print->count(), kPaletteColours);
    emit print->activated(4 + i);
    EXPECT_EQ(desk.table.State().PrintColors[static_cast<size_t>(i)], 4 + i);
  }
}

}  // namespace
