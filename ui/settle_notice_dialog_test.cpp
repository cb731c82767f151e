#include "ui/settle_notice_dialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "ui/dialog_samples.h"

namespace {

QPushButton* Button(QWidget& dialog, const QString& name) { return dialog.findChild<QPushButton*>(name); }

std::vector<std::string> Captions(QWidget& dialog) {
  std::vector<std::string> captions;
  for (int i = 0; auto* button = Button(dialog, QStringLiteral("cmdHandle%1").arg(i)); ++i)
    captions.push_back(button->text().toStdString());
  return captions;
}

TEST(SettleNoticeDialog, ShowsTheNoticeAsBuilt) {
  for (const SettleNotice& notice : {SampleWonNotice(), SampleLostNotice()}) {
    SCOPED_TRACE(notice.title);
    SettleNoticeDialog dialog(notice);
    EXPECT_EQ(dialog.windowTitle().toStdString(), notice.title);
    EXPECT_EQ(Captions(dialog), notice.buttons);
    const auto& last = notice.rows.back();
    const int lastRow = static_cast<int>(notice.rows.size()) - 1;
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("lblWonBetType%1").arg(lastRow))->text(),
              QString::fromStdString(last.first).trimmed());
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("lblWonBet%1").arg(lastRow))->text().toStdString(), last.second);
    // Only the won notice carries amount entries.
    EXPECT_EQ(dialog.findChild<QLineEdit*>("txtModifyAmount5") != nullptr, notice.won);
    EXPECT_EQ(Button(dialog, "cmdUnits6") != nullptr, notice.won);
  }
}

struct EntryCase {
  const char* name;
  int press;
  const char* amount;  // typed into the pressed button's entry
  int opClicks, unitClicks;
  AmountRule sameBet, bet;
};

TEST(SettleNoticeDialog, AnswersWithTheButtonAndBothEntries) {
  // The sample offers "Same Bet:" + 1 chip 1 and "Bet:" 12 dollars.
  const EntryCase cases[] = {
      {"take", 0, nullptr, 0, 0, {0, 1, 2}, {0, 12, -1}},
      {"same bet edited", 5, "2.5", 2, 1, {2, Currency::FromDouble(2.5), 3}, {0, 12, -1}},
      {"both cycles wrap", 5, "$1,000", 4, 5, {0, 1000, -1}, {0, 12, -1}},
      {"bet edited", 6, "30", 0, 1, {0, 1, 2}, {0, 30, 0}},
  };
  for (const EntryCase& c : cases) {
    SCOPED_TRACE(c.name);
    SettleNoticeDialog dialog(SampleWonNotice());
    dialog.show();
    if (c.amount != nullptr) {
      dialog.findChild<QLineEdit*>(QStringLiteral("txtModifyAmount%1").arg(c.press))->setText(c.amount);
      for (int i = 0; i < c.opClicks; ++i) Button(dialog, QStringLiteral("cmdMathOperator%1").arg(c.press))->click();
      for (int i = 0; i < c.unitClicks; ++i) Button(dialog, QStringLiteral("cmdUnits%1").arg(c.press))->click();
    }
    Button(dialog, QStringLiteral("cmdHandle%1").arg(c.press))->click();
    ASSERT_TRUE(dialog.Answer().has_value());
    EXPECT_EQ(dialog.Answer()->button, c.press);
    EXPECT_EQ(dialog.Answer()->sameBet, c.sameBet);
    EXPECT_EQ(dialog.Answer()->bet, c.bet);
  }
}

TEST(SettleNoticeDialog, RefusesAnUnreadableEntryAndClosingLeavesTheChoice) {
  SettleNoticeDialog dialog(SampleWonNotice());
  dialog.show();
  auto* entry = dialog.findChild<QLineEdit*>("txtModifyAmount6");
  entry->setText("200,000");
  Button(dialog, "cmdHandle6")->click();
  EXPECT_TRUE(dialog.isVisible());
  // Enter in the refused entry must not fall through to the default button.
  dialog.activateWindow();
  entry->setFocus();
  QTest::keyClick(entry, Qt::Key_Return);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_TRUE(dialog.findChild<QLabel*>("lblModifyError")->isVisible());
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.Answer(), std::nullopt);
}

}  // namespace
