#include "ui/configure_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QTabWidget>

#include "engine/game.h"
#include "ui/config_page.h"
#include "ui/config_page_for_test.h"
#include "ui/config_pages.h"
#include "ui/screen_desk_for_test.h"

namespace {

struct Window {
  ScreenDesk desk;
  ConfigureWindow window{desk.table, MakeConfigPages(desk.table, desk.dialogs, desk.sounds)};
  Window() {
    window.show();
    QApplication::setActiveWindow(&window);
  }
  // Tries to close; true when the window went.
  bool Close() {
    desk.dialogs.messages.clear();
    window.reject();
    return !window.isVisible();
  }
  QString Current() const { return window.Tabs()->tabText(window.Tabs()->currentIndex()); }
};

}  // namespace

TEST(ConfigureWindow, HasTheTenTabsInOrder) {
  Window w;
  QStringList tabs;
  for (int i = 0; i < w.window.Tabs()->count(); ++i) tabs << w.window.Tabs()->tabText(i);
  EXPECT_EQ(tabs, QStringList({"Checks/Dice", "Sound", "Comps", "Colors", "Misc.", "Bankroll", "Bets", "Payoffs",
                               "Probability", "Advantage"}));
  EXPECT_TRUE(w.desk.table.State().ConfigScreenActive);
}

// A fault keeps the window open at its tab, the control selected; the tab
// shown last is the one the window opens at next time.
TEST(ConfigureWindow, ClosingTakesThePlayerToTheFault) {
  Window w;
  w.window.Tabs()->setCurrentIndex(w.window.TabOf("Advantage"));
  const char* boxes[] = {"txtDenomination0", "txtDenomination1", "txtDenomination2", "txtDenomination3",
                         "txtDenomination4"};
  const int values[] = {1, 5, 4, 100, 500};
  for (int i = 0; i < 5; ++i) Type(*w.window.Page(0), boxes[i], QString::number(values[i]));
  EXPECT_FALSE(w.Close());
  ASSERT_EQ(w.desk.dialogs.messages.size(), 1u);
  EXPECT_EQ(w.desk.dialogs.messages[0].title, "Check Values");
  EXPECT_EQ(w.Current(), "Checks/Dice");
  EXPECT_TRUE(Control<QLineEdit>(*w.window.Page(0), "txtDenomination2")->hasFocus());

  Type(*w.window.Page(0), "txtDenomination2", "25");
  ConfigPage& bets = *w.window.Page(w.window.TabOf("Bets"));
  Type(bets, "txtMinPlacardBet", "0.5");
  EXPECT_FALSE(w.Close());
  ASSERT_EQ(w.desk.dialogs.messages.size(), 1u);
  EXPECT_EQ(w.desk.dialogs.messages[0].title, "Configuration Limits");
  EXPECT_EQ(w.Current(), "Bets");

  Type(bets, "txtMinPlacardBet", "5");
  w.window.Tabs()->setCurrentIndex(w.window.TabOf("Payoffs"));
  EXPECT_TRUE(w.Close());
  EXPECT_EQ(w.desk.table.State().ConfigTab, 7);
  EXPECT_FALSE(w.desk.table.State().ConfigScreenActive);
}

TEST(ConfigureWindow, ATabsMenuWorksOnlyOnItsTab) {
  Window w;
  for (const char* tab : {"Payoffs", "Probability", "Advantage"}) {
    const int index = w.window.TabOf(tab);
    QAction* menu = w.window.Page(index)->PageMenu()->menuAction();
    w.window.Tabs()->setCurrentIndex(0);
    EXPECT_FALSE(menu->isEnabled()) << tab;
    w.window.Tabs()->setCurrentIndex(index);
    EXPECT_TRUE(menu->isEnabled()) << tab;
  }
}
