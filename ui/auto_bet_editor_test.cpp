// The Auto-Bet editor and the steps viewer, driven as a player would.
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QUndoStack>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "engine/game.h"
#include "script/text_form.h"
#include "store/bet_file.h"
#include "store/small_files.h"
#include "ui/auto_bet_editor.h"
#include "ui/auto_bet_line_builder.h"
#include "ui/screen_desk_for_test.h"
#include "ui/script_text_view.h"
#include "ui/steps_viewer.h"

namespace {

const std::filesystem::path kSamples = std::filesystem::path(DICEMILL_SOURCE_DIR) / "samples";

struct EditorDesk : ScreenDesk {
  AutoBetEditor editor{table, dialogs, kSamples};
  const Game& g() const { return table.State(); }
};

std::vector<ScriptLine> Read(const std::string& text) {
  std::vector<ScriptLine> lines;
  std::string error;
  EXPECT_TRUE(ReadScriptText(text, lines, error)) << error;
  return lines;
}

std::string Bytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream s;
  s << in.rdbuf();
  return s.str();
}

bool Same(const std::vector<ScriptLine>& a, const std::vector<ScriptLine>& b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i)
    if (!SameScriptFields(a[i], b[i])) return false;
  return true;
}

TEST(AutoBetEditor, TheListsBuildTheLinesTheTextReads) {
  EditorDesk d;
  LineBuilder& b = *d.editor.Builder();
  auto add = [&](int kind, int first = 0, const char* amount = nullptr, const char* target = nullptr) {
    ASSERT_TRUE(LineBuilder::Choose(b.Kind(), kind));
    if (first) {
      ASSERT_TRUE(LineBuilder::Choose(b.First(), first));
    }
    if (amount) b.Amount()->setText(QString::fromLatin1(amount));
    if (target) {
      const int at = b.Target()->findText(QString::fromLatin1(target));
      ASSERT_GE(at, 0);
      b.Target()->setCurrentIndex(at);
    }
    d.editor.InsertBuilt();
    d.editor.SelectLines({});
  };
  add(line_kind::kWhile);
  add(line_kind::kCondition, 1301);  // Next roll is a come-out roll
  add(line_kind::kThen);
  add(line_kind::kAction, 10, "10", "Pass Line");  // Bet $
  const std::vector<ScriptLine> read = Read("While\n  Next roll is a come-out roll\nthen\n  Bet $10 on Pass Line\n");
  EXPECT_TRUE(Same(d.editor.Lines(), read));
  EXPECT_TRUE(Same(d.g().AutoBet.Lines, read));  // the table follows every edit
  for (int row = 0; row < d.editor.List()->rowCount(); ++row) {
    EXPECT_EQ(d.editor.List()->item(row, 0)->text(), QString::number(row + 1));
    EXPECT_EQ(d.editor.List()->item(row, 1)->text().trimmed().toStdString(), read[static_cast<size_t>(row)].Text);
  }
  // A separator is never a choice.
  ASSERT_TRUE(LineBuilder::Choose(b.Kind(), line_kind::kCondition));
  EXPECT_FALSE(LineBuilder::Choose(b.First(), 0));
  EXPECT_NE(LineBuilder::CodeOf(b.First()), 0);
}

// Each kind of line shown in the builder comes back from it unchanged: the
// builder offers every field these lines need and no other.
TEST(AutoBetEditor, EveryKindOfLineSurvivesTheBuilder) {
  EditorDesk d;
  const char* lines[] = {
      "or while", "Do this", "Label \"done\"", "'a comment",
      "  A point is established on the point 6", "  A point is decided \"against\" any number",
      "  Flag \"pressed 6\" is True", "  All flags are False", "  Bankroll is less than $300",
      "  Bankroll is less than Chip-Stack #1", "  Chip-Stack #2 is named \"target\"",
      "  The # of rolls for this shooter is greater than 20", "  Place 6 has won 2", "  Any 7 has not rolled in the last 12",
      "  Total Come bets number less than 2", "  Bet 100% of bankroll on Chip-Stack #1",
      "  Add 50% of the last Place 6 to Place 6", "  Bet the highest of: Chip-Stack #1 on Field",
      "  Go to \"bet\"", "  Set flag \"pressed 6\" to True", "  Set all flags to False", "  Name Chip-Stack #1 \"stop-loss\"",
      "  Show message: Value of bankroll", "  Call OFF all Place bets", "  Reset rolls number group 2,3,12",
      "  Round Place 6 up to the nearest $6", "  Set Auto-Handle Winning Bets Press 1 Unit",
      "  Set Auto-Handle Losing Bets Manual", "  Set Auto-Take Full Odds on", "  ATM - withdraw $500",
      "  ATM - deposit 10% of highest bankroll", "  Stop Auto-Rolling / Hyper-Drive",
  };
  for (const char* text : lines) {
    const ScriptLine line = ParseTextLine(text);
    d.editor.Builder()->Load(line);
    EXPECT_TRUE(SameScriptFields(d.editor.Builder()->Line(), line)) << text << " became " << LineToText(d.editor.Builder()->Line());
  }
}

TEST(AutoBetEditor, SaveThenOpenGivesTheSameFile) {
  EditorDesk d;
  d.editor.OpenSample(kSamples / "iron-cross.bet");
  ASSERT_EQ(d.editor.Lines().size(), Read(Bytes((kSamples / "iron-cross.txt").string())).size());
  const std::string first = d.PathOf("first.bet"), second = d.PathOf("second.bet");
  d.dialogs.files = {first};
  ASSERT_TRUE(d.editor.SaveAs());
  EXPECT_EQ(d.g().AutoBet.FileName, first);
  EXPECT_FALSE(d.g().ScriptDirty);
  d.editor.OpenSample(first);
  d.dialogs.files = {second};
  ASSERT_TRUE(d.editor.SaveAs());
  EXPECT_EQ(Bytes(first), Bytes(second));
  EXPECT_EQ(Bytes(first), Bytes((kSamples / "iron-cross.bet").string()));
}

TEST(AutoBetEditor, CopyToFileWritesTheSelectedLinesAndPasteInsertsThem) {
  EditorDesk d;
  d.editor.InsertLines(Read("When\n  On each roll\nthen\n  Bet $5 on Field\n"));
  d.editor.SelectLines({2, 4});
  const std::string path = d.PathOf("part.bet");
  d.dialogs.files = {path};
  d.editor.CopyToFile();
  const DecodedBetFile part = DecodeBetFile(Bytes(path));
  ASSERT_EQ(part.Status, BetFileStatus::Ok);
  ASSERT_EQ(part.Lines.size(), 2u);
  EXPECT_EQ(part.Lines[0].Text, "On each roll");
  EXPECT_EQ(part.Lines[1].Text, d.editor.Lines()[3].Text);
  EXPECT_TRUE(d.g().AutoBet.FileName.empty());  // the script keeps its name

  d.editor.SelectLines({1});
  d.dialogs.files = {path};
  d.editor.PasteFromFile();
  ASSERT_EQ(d.editor.Lines().size(), 6u);
  EXPECT_EQ(d.editor.Lines()[0].Text, "On each roll");
  EXPECT_EQ(d.editor.SelectedLines(), (std::vector<int>{1, 2}));
}

TEST(AutoBetEditor, CheckSelectsTheFaultyLineAndSaysWhy) {
  struct Case {
    const char* text;
    const char* title;
    int line;
  };
  const Case cases[] = {
      {"", "Auto-Bet", 0},
      {"Do this\n  Bet $5 on Field\n", "Auto-Bet", 0},
      {"'start\nDo this\n  Bet $5 on Field\n  Go to \"nowhere\"\n", "Missing Label", 4},
  };
  for (const Case& c : cases) {
    EditorDesk d;
    d.editor.InsertLines(Read(c.text));
    d.editor.Check();
    ASSERT_EQ(d.dialogs.messages.size(), 1u) << c.text;
    EXPECT_EQ(d.dialogs.messages[0].title, c.title);
    if (c.line == 0) continue;
    EXPECT_EQ(d.editor.SelectedLines(), std::vector<int>{c.line});
    EXPECT_EQ(d.editor.List()->currentRow(), c.line - 1);
    const QRect row = d.editor.List()->visualItemRect(d.editor.List()->item(c.line - 1, 1));
    EXPECT_TRUE(d.editor.List()->viewport()->rect().intersects(row));
  }
  EditorDesk clean;
  clean.editor.InsertLines(Read("Do this\n  Bet $5 on Field\n"));
  clean.editor.Check();
  EXPECT_EQ(clean.dialogs.messages.at(0).text, "Your script is properly structured.");
}

TEST(AutoBetEditor, TheTextViewShowsTheSameScriptAndUnderlinesFaults) {
  EditorDesk d;
  d.editor.OpenSample(kSamples / "place-6-8-press.bet");
  const std::vector<ScriptLine> opened = d.editor.Lines();
  d.editor.ShowTextView();
  const QString text = d.editor.TextView()->Editor()->toPlainText();
  EXPECT_EQ(text.toStdString(), Bytes((kSamples / "place-6-8-press.txt").string()));
  d.editor.ShowListView();
  EXPECT_TRUE(Same(d.editor.Lines(), opened));  // nothing typed: nothing changed

  // Typed lines come back to the list; a fault keeps the player in the text.
  d.editor.ShowTextView();
  d.editor.TextView()->Editor()->setPlainText(QStringLiteral("Do this\n  Bet $5 on Plase 6\n"));
  d.editor.TextView()->CheckNow();
  EXPECT_TRUE(d.editor.TextView()->FaultText().startsWith(QStringLiteral("line 2, column 13")));
  const QList<QTextEdit::ExtraSelection> marks = d.editor.TextView()->Editor()->extraSelections();
  ASSERT_EQ(marks.size(), 1);
  EXPECT_EQ(marks[0].cursor.selectedText(), QStringLiteral("Plase"));
  d.editor.ShowListView();
  EXPECT_TRUE(Same(d.editor.Lines(), opened));
  d.editor.TextView()->Editor()->setPlainText(QStringLiteral("Do this\n  Bet $5 on Place 6\n  Go to \"x\"\n"));
  d.editor.TextView()->CheckNow();
  EXPECT_TRUE(d.editor.TextView()->FaultText().startsWith(QStringLiteral("Missing Label")));
  EXPECT_EQ(d.editor.TextView()->Editor()->extraSelections().at(0).cursor.blockNumber(), 2);
  d.editor.ShowListView();
  EXPECT_EQ(d.editor.Lines().size(), 3u);
  d.editor.Undo()->undo();
  EXPECT_TRUE(Same(d.editor.Lines(), opened));
  EXPECT_TRUE(Same(d.g().AutoBet.Lines, opened));
  d.editor.Undo()->redo();
  EXPECT_EQ(d.g().AutoBet.Lines.size(), 3u);
}

TEST(AutoBetEditor, CompletionOffersTheVocabulary) {
  EditorDesk d;
  d.editor.ShowTextView();
  QPlainTextEdit* edit = d.editor.TextView()->Editor();
  edit->setPlainText(QStringLiteral("  Bet $10 on Pass L"));
  edit->moveCursor(QTextCursor::End);
  EXPECT_TRUE(d.editor.TextView()->Complete());
  edit->setPlainText(QStringLiteral("  Zzz"));
  edit->moveCursor(QTextCursor::End);
  EXPECT_FALSE(d.editor.TextView()->Complete());
}

TEST(AutoBetEditor, LeavingWithAFaultyActiveScriptAsksAndAChangeOffersTheFirstCycle) {
  struct Case {
    Reply answer;
    bool closes, stillActive;
  };
  for (const Case& c : {Case{Reply::No, false, true}, Case{Reply::Yes, true, false}}) {
    EditorDesk d;
    d.editor.Activated()->setChecked(true);
    d.editor.InsertLines(Read("Do this\n  Go to \"nowhere\"\n"));
    d.dialogs.replies = {c.answer};
    EXPECT_EQ(d.editor.MayClose(), c.closes);
    ASSERT_EQ(d.dialogs.messages.size(), 2u);
    EXPECT_EQ(d.dialogs.messages[0].title, "Missing Label");
    EXPECT_EQ(d.dialogs.messages[1].text,
              "Would you like to deactivate Auto-betting and return to the game table anyway?");
    EXPECT_EQ(d.editor.Activated()->isChecked(), c.stillActive);
    EXPECT_FALSE(d.g().AutoBetActivated);  // never switched on with a faulty script
  }
  EditorDesk d;
  d.editor.Activated()->setChecked(true);
  d.editor.InsertLines(Read("Do this\n  Bet $5 on Field\n"));
  ASSERT_TRUE(d.editor.MayClose());
  EXPECT_TRUE(d.g().AutoBetActivated);
  EXPECT_TRUE(d.g().InitPending);
  EXPECT_TRUE(d.g().ScriptDirty);
  const std::optional<std::vector<ScriptLine>> copy = ReadActiveScript(d.g());
  ASSERT_TRUE(copy.has_value());
  EXPECT_TRUE(Same(*copy, d.editor.Lines()));
  d.dialogs.replies = {Reply::Yes};
  d.table.Roll(3, 4);
  ASSERT_FALSE(d.dialogs.messages.empty());
  EXPECT_EQ(d.dialogs.messages[0].title, "Auto-Bet");
  EXPECT_NE(d.dialogs.messages[0].text.find("Your Auto-Bets have changed"), std::string::npos);
  EXPECT_FALSE(d.g().InitPending);
}

TEST(StepsViewer, ARollShowsEachStepAndTheAnswersGoBack) {
  ScreenDesk d;
  d.table.ReplaceScript(Read("Do this\n  Bet $5 on Field\n  Bet $5 on Place 6\n"));
  d.table.ActivateScript(true);
  d.table.ShowSteps(true);
  d.dialogs.stepReplies = {StepReply::Next, StepReply::Cancel};
  d.table.Roll(1, 1);
  ASSERT_EQ(d.dialogs.steps.size(), 2u);  // Cancel ended the showing
  EXPECT_EQ(d.dialogs.steps[0].line, 1);
  EXPECT_EQ(d.dialogs.steps[1].line, 2);
  EXPECT_EQ(d.dialogs.steps[1].text, "Bet $5 on Field");
  EXPECT_FALSE(d.table.State().ShowingSteps);

  std::vector<MenuCommand> opened;
  StepsViewer viewer([&](MenuCommand id) { opened.push_back(id); });
  viewer.Show(1, "Bet $5 on Field", "Action taken.");
  EXPECT_EQ(viewer.findChild<QLabel*>(QStringLiteral("lblLineNum"))->text(), QStringLiteral("Line #1"));
  EXPECT_EQ(viewer.findChild<QLabel*>(QStringLiteral("lblAutoBetStep"))->text(), QStringLiteral("Bet $5 on Field"));
  EXPECT_EQ(viewer.findChild<QLabel*>(QStringLiteral("lblStatus"))->text(), QStringLiteral("Status: Action taken."));
  struct Press {
    const char* button;
    StepReply reply;
  };
  for (const Press& p : {Press{"cmdNextAutoBet", StepReply::Next}, Press{"cmdRunToEnd", StepReply::RunToEnd},
                         Press{"cmdCancel", StepReply::Cancel}}) {
    viewer.Show(2, "", "");
    viewer.findChild<QPushButton*>(QString::fromLatin1(p.button))->click();
    EXPECT_EQ(viewer.Reply(), p.reply) << p.button;
  }
  for (const StatsScreenEntry& e : StepsViewerScreens())
    viewer.findChild<QAction*>(QString::fromLatin1(e.name))->trigger();
  ASSERT_EQ(opened.size(), StepsViewerScreens().size());
  EXPECT_EQ(opened.back(), MenuCommand::Flags);
}

}  // namespace
