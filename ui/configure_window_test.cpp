#include "ui/configure_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTabWidget>

#include "engine/game.h"
#include "ui/config_page.h"
#include "ui/screen_desk_for_test.h"

namespace {

// A page with the five check boxes and a menu of its own: enough of a tab to
// see the window take the player to a fault.
class ChecksStub : public ConfigPage {
 public:
  ChecksStub(Table& table, const QString& caption, bool withMenu) : table_(table), caption_(caption) {
    for (int i = 0; i < 5; ++i) {
      boxes_[i] = new QLineEdit(this);
      boxes_[i]->setObjectName(QStringLiteral("txtDenomination%1").arg(i));
    }
    if (withMenu) menu_ = new QMenu(caption, this);
  }
  QString Caption() const override { return caption_; }
  void Refresh() override { ++refreshed; }
  QMenu* PageMenu() override { return menu_; }
  void CommitPendingEdit() override {
    for (int i = 0; i < 5; ++i)
      if (!boxes_[i]->text().isEmpty()) table_.SetChip(i + 1, Currency(boxes_[i]->text().toInt()));
  }
  QLineEdit* Box(int i) const { return boxes_[i]; }
  int refreshed = 0;

 private:
  Table& table_;
  QString caption_;
  QMenu* menu_ = nullptr;
  QLineEdit* boxes_[5]{};
};

struct Window {
  ScreenDesk desk;
  ChecksStub* checks = new ChecksStub(desk.table, QStringLiteral("Checks/Dice"), false);
  ChecksStub* payoffs = new ChecksStub(desk.table, QStringLiteral("Payoffs"), true);
  ConfigureWindow window{desk.table, {checks, payoffs}};
};

}  // namespace

TEST(ConfigureWindow, AFaultKeepsItOpenAtTheFaultyControl) {
  Window w;
  EXPECT_TRUE(w.desk.table.State().ConfigScreenActive);
  w.window.Tabs()->setCurrentIndex(1);
  const int values[] = {1, 5, 4, 100, 500};
  for (int i = 0; i < 5; ++i) w.checks->Box(i)->setText(QString::number(values[i]));
  w.window.show();
  QApplication::setActiveWindow(&w.window);
  w.window.reject();
  EXPECT_TRUE(w.window.isVisible());
  ASSERT_EQ(w.desk.dialogs.messages.size(), 1u);
  EXPECT_EQ(w.desk.dialogs.messages[0].title, "Check Values");
  EXPECT_EQ(w.window.Tabs()->currentIndex(), 0);
  EXPECT_TRUE(w.checks->Box(2)->hasFocus());
  EXPECT_EQ(w.checks->Box(2)->selectedText(), QStringLiteral("4"));

  w.checks->Box(2)->setText(QStringLiteral("25"));
  w.window.Tabs()->setCurrentIndex(1);
  w.window.reject();
  EXPECT_FALSE(w.window.isVisible());
  EXPECT_EQ(w.desk.table.State().ConfigTab, 1);  // opens there next time
}

TEST(ConfigureWindow, ATabsMenuWorksOnlyOnItsTab) {
  Window w;
  QAction* menu = w.payoffs->PageMenu()->menuAction();
  const int refreshed = w.payoffs->refreshed;
  EXPECT_FALSE(menu->isEnabled());
  w.window.Tabs()->setCurrentIndex(1);
  EXPECT_TRUE(menu->isEnabled());
  EXPECT_GT(w.payoffs->refreshed, refreshed);
  w.window.Tabs()->setCurrentIndex(0);
  EXPECT_FALSE(menu->isEnabled());
}
