#include "ui/message_dialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

constexpr const char* kEscape = "Esc";

struct Case {
  Buttons buttons;
  bool offerDontShow;
  const char* press;  // a button's object name, or kEscape
  bool tick;
  Reply reply;
  bool dontShowAgain;
};

TEST(MessageDialog, AnswersAsThePlayerActs) {
  const Case cases[] = {
      {Buttons::Ok, false, "cmdOk", false, Reply::Ok, false},
      {Buttons::Ok, false, kEscape, false, Reply::Ok, false},
      {Buttons::Ok, true, "cmdOk", true, Reply::Ok, true},
      {Buttons::YesNo, false, "cmdYes", false, Reply::Yes, false},
      {Buttons::YesNo, false, kEscape, false, Reply::No, false},
      {Buttons::YesNoCancel, false, "cmdNo", false, Reply::No, false},
      {Buttons::YesNoCancel, true, kEscape, true, Reply::Cancel, true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.press);
    MessageDialog dialog({"Title", "Line one\rLine two", c.buttons, c.offerDontShow});
    dialog.show();
    auto* box = dialog.findChild<QCheckBox*>("chkDontShowAgain");
    ASSERT_EQ(box != nullptr, c.offerDontShow);
    if (c.tick) box->setChecked(true);
    if (c.press == kEscape) {
      QTest::keyClick(&dialog, Qt::Key_Escape);
    } else {
      dialog.findChild<QPushButton*>(c.press)->click();
    }
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.Answer().reply, c.reply);
    EXPECT_EQ(dialog.Answer().dontShowAgain, c.dontShowAgain);
  }
}

TEST(MessageDialog, ShowsTheTablesLineBreaksAndOffersYesFirst) {
  MessageDialog dialog({"Save Game?", "Changed.\r\rSave?", Buttons::YesNoCancel, false});
  EXPECT_EQ(dialog.windowTitle(), "Save Game?");
  EXPECT_EQ(dialog.findChild<QLabel*>("lblMessage")->text(), "Changed.\n\nSave?");
  EXPECT_TRUE(dialog.findChild<QPushButton*>("cmdYes")->isDefault());
}

}  // namespace
