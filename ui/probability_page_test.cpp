#include "ui/probability_page.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

#include "engine/game.h"
#include "ui/axis_panel.h"
#include "ui/probability_grid.h"
#include "ui/screen_desk_for_test.h"

namespace {

struct PageDesk : ScreenDesk {
  ProbabilityPage page{table, dialogs};
  QLineEdit* editor = page.findChild<QLineEdit*>(QStringLiteral("txtPercent"));

  const ProbTable& Prob() const { return table.State().Prob; }
  // Types into a cell as a player would: choose it, type, press Enter.
  void Enter(int row, int column, const char* text) {
    page.Grid()->Choose({row, column});
    editor->setText(QString::fromLatin1(text));
    QTest::keyClick(editor, Qt::Key_Return);
  }
  template <typename W>
  W* Find(const char* name) {
    return page.findChild<W*>(QString::fromLatin1(name));
  }
  void TriggerMenu(const char* text) {
    for (QAction* a : page.PageMenu()->actions())
      if (a->text() == QString::fromLatin1(text)) return a->trigger();
    ADD_FAILURE() << "no menu entry " << text;
  }
};

bool IsTrueTable(const ProbTable& t) {
  const ProbTable fair = TrueTable();
  for (int r = 1; r < kProbRows; ++r)
    for (int c = 1; c < kProbColumns; ++c)
      if (t.at(r, c).value != fair.at(r, c).value || t.at(r, c).flags != fair.at(r, c).flags) return false;
  return t.Mode() == fair.Mode();
}

int32_t OutcomeWeight(const ProbTable& t, int die1, int die2) {
  const ProbPosition p = OutcomeCell(die1, die2);
  return t.at(p.row, p.column).value;
}

TEST(ProbabilityPage, AHundredPercentOnSevenLeavesEveryOtherOutcomeNothing) {
  PageDesk d;
  d.Enter(6, 1, "100");
  int32_t sevens = 0;
  for (int a = 1; a <= 6; ++a)
    for (int b = 1; b <= 6; ++b) {
      if (a + b == 7) {
        sevens += OutcomeWeight(d.Prob(), a, b);
      } else {
        EXPECT_EQ(OutcomeWeight(d.Prob(), a, b), 0) << a << "," << b;
      }
    }
  EXPECT_NEAR(sevens, kProbWhole, 6);
  EXPECT_TRUE(d.table.State().ProbModified);
  EXPECT_EQ(d.Find<QLabel>("lblPercentageDice")->text(), QStringLiteral("Free Form Dice"));
  EXPECT_EQ(d.editor->text(), QStringLiteral("100.00"));
}

// The typed number is read in the display mode the page shows.
TEST(ProbabilityPage, EntriesAreReadInTheDisplayModeChosen) {
  struct Case {
    int mode;
    const char* rollsOutOf;
    const char* typed;
    int32_t sevenWeight;
    const char* sevenShownBefore;  // the true 16,667 in that mode
  } cases[] = {
      {kShowPercent, "36", "50", 50000, "16.667"},
      {kShowPlusMinusTrue, "36", "+3.333", 20000, "0.000"},
      {kShowRollsOutOf, "36", "18 rolls", 50000, "6.000"},
      {kShowPlusMinusTrueRolls, "100", "10", 26667, "0.000"},
  };
  for (const Case& c : cases) {
    PageDesk d;
    d.Find<QRadioButton>(("optProbability" + std::to_string(c.mode)).c_str())->click();
    QLineEdit* rolls = d.Find<QLineEdit>("txtRollsOutOf");
    rolls->setText(QString::fromLatin1(c.rollsOutOf));
    emit rolls->editingFinished();
    EXPECT_EQ(d.table.State().ProbDisplayMode, c.mode);
    EXPECT_EQ(d.page.Grid()->Shown(6, 1), QString::fromLatin1(c.sevenShownBefore)) << c.mode;
    d.Enter(6, 1, c.typed);
    EXPECT_NEAR(d.Prob().at(6, 1).value, c.sevenWeight, 1) << c.mode;
    rolls->setText(QStringLiteral("0"));  // refused with a word, and shown as it was
    emit rolls->editingFinished();
    EXPECT_EQ(d.dialogs.messages.size(), 1u);
    EXPECT_EQ(rolls->text(), QString::fromLatin1(c.rollsOutOf));
  }
}

TEST(ProbabilityPage, LTogglesTheLockAndUnlockAllClearsEveryLock) {
  PageDesk d;
  d.page.Grid()->Choose({12, 3});
  const QString before = d.editor->text();
  for (bool locked : {true, false, true}) {
    QTest::keyClick(d.editor, Qt::Key_L);
    EXPECT_EQ((d.Prob().at(12, 3).flags & kUserLock) != 0, locked);
    EXPECT_EQ(d.editor->text(), before);  // the key is not typed
  }
  d.Enter(6, 1, "20");  // locks the total too
  d.Find<QPushButton>("cmdLock")->click();
  for (int r = 1; r < kProbRows; ++r)
    for (int c = 1; c < kProbColumns; ++c) EXPECT_EQ(d.Prob().at(r, c).flags & kUserLock, 0) << r << "," << c;
}

// Cursor keys walk the block, wrapping between the totals and the faces.
TEST(ProbabilityPage, CursorKeysMoveWithinTheBlockAndWrap) {
  struct Case {
    ProbPosition from;
    Qt::Key key;
    ProbPosition to;
  } cases[] = {
      {{11, 2}, Qt::Key_Down, {12, 2}}, {{13, 2}, Qt::Key_Down, {1, 2}}, {{8, 5}, Qt::Key_Down, {12, 5}},
      {{12, 5}, Qt::Key_Up, {8, 5}},    {{1, 1}, Qt::Key_Up, {11, 1}},   {{6, 1}, Qt::Key_Left, {6, 7}},
      {{6, 7}, Qt::Key_Right, {6, 1}},  {{12, 2}, Qt::Key_Left, {12, 7}}, {{1, 2}, Qt::Key_Right, {1, 1}},
  };
  PageDesk d;
  for (const Case& c : cases) {
    d.page.Grid()->Choose(c.from);
    QTest::keyClick(d.editor, c.key);
    EXPECT_EQ(d.page.Grid()->Chosen().row, c.to.row) << c.from.row << "," << c.from.column;
    EXPECT_EQ(d.page.Grid()->Chosen().column, c.to.column) << c.from.row << "," << c.from.column;
  }
  EXPECT_FALSE(d.table.State().ProbModified);  // moving without typing changes nothing
}

// OK applies the panel through the table (an effectiveness above 100 is
// written back as 100); Cancel leaves the table alone.
TEST(ProbabilityPage, AxisPanelAtFullEffectivenessNeverShowsTheAxisFaces) {
  for (const char* button : {"cmdAxisOK", "cmdAxisCancel"}) {
    PageDesk d;
    AxisPanel panel(d.table);
    auto* die2 = panel.findChild<QLineEdit*>(QStringLiteral("txtDie2SE"));
    panel.findChild<QLineEdit*>(QStringLiteral("txtDie1SE"))->setText(QStringLiteral("100"));
    die2->setText(QStringLiteral("150"));
    panel.findChild<QPushButton*>(QString::fromLatin1(button))->click();
    if (std::string(button) == "cmdAxisCancel") {
      EXPECT_TRUE(IsTrueTable(d.Prob()));
      continue;
    }
    EXPECT_EQ(die2->text(), QStringLiteral("100"));
    for (int a = 1; a <= 6; ++a)
      for (int b = 1; b <= 6; ++b) {
        const bool axisFace = a == 1 || a == 6 || b == 1 || b == 6;
        EXPECT_EQ(OutcomeWeight(d.Prob(), a, b) == 0, axisFace) << a << "," << b;
      }
    for (int row : {kDie1FaceRow, kDie2FaceRow})
      for (int face : {1, 6}) EXPECT_EQ(d.Prob().at(row, face + 1).value, 0) << row << "," << face;
  }
}

TEST(ProbabilityPage, SaveOpenAndNewGoThroughTheFileAndTheUnsavedQuestion) {
  PageDesk d;
  const std::string file = d.PathOf("shooter.prb");
  d.Find<QCheckBox>("chkUseSkewedProbability")->click();
  EXPECT_TRUE(d.table.State().UseSkewedProbability);
  d.Enter(6, 1, "30");

  d.dialogs.files.push_back(file);
  d.TriggerMenu("&Save ...");
  ASSERT_EQ(d.dialogs.filesAsked.size(), 1u);
  EXPECT_EQ(d.dialogs.filesAsked[0].pattern, "*.prb");
  EXPECT_EQ(d.Find<QLabel>("lblPrbFileName")->text(), QStringLiteral("shooter.prb"));

  d.Enter(6, 1, "40");
  d.TriggerMenu("&New");  // the question, answered Cancel: nothing happens
  ASSERT_EQ(d.dialogs.messages.size(), 1u);
  EXPECT_EQ(d.dialogs.messages[0].title, "Save Probabilities?");
  EXPECT_EQ(d.Prob().at(6, 1).value, 40000);

  d.dialogs.replies.push_back(Reply::No);
  d.TriggerMenu("&New");
  EXPECT_TRUE(IsTrueTable(d.Prob()));
  EXPECT_EQ(d.Find<QLabel>("lblPrbFileName")->text(), QStringLiteral("untitled"));

  d.dialogs.files.push_back(file);
  d.TriggerMenu("&Open ...");
  EXPECT_EQ(d.Prob().at(6, 1).value, 30000);
  EXPECT_EQ(d.Find<QLabel>("lblPercentageDice")->text(), QStringLiteral("Free Form Dice"));
}

}  // namespace
