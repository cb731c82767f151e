#include "script/text_form.h"

#include <gtest/gtest.h>

#include <cctype>
#include <climits>
#include <set>

#include "script/catalogue.h"
#include "script/line_text.h"
#include "script/script_for_test.h"
#include "script/text_form_grammar.h"
#include "script/text_form_words.h"
#include "store/bet_file.h"

namespace {

using namespace line_kind;
using namespace text_form;

ScriptLine Line(int kind, int code = 0, int subject = 0, int target = 0, Currency amount = 0,
                const std::string& name = "") {
  ScriptLine l = MakeLine(kind, code, amount, subject, target, name);
  if (subject == 1600 || subject == 1601) l.SubjectNum = 3;
  if (target == 1600 || target == 1601) l.TargetNum = 4;
  l.Text = RenderedText(l);
  return l;
}

// Text form of one line and back; the line read must equal the one written.
void ExpectRoundTrip(const ScriptLine& l, bool clean) {
  const std::string text = LineToText(l);
  SCOPED_TRACE(text);
  std::vector<ScriptLine> back;
  std::string error;
  ASSERT_TRUE(ReadScriptText(text + "\n", back, error)) << error;
  ASSERT_EQ(back.size(), 1u);
  EXPECT_EQ(back[0], l);
  if (clean) {
    EXPECT_NE(text.back(), '}');
  }
}

// A line as the editor builds it, for every verb: the fields its words carry.
ScriptLine TypicalAction(int code) {
  switch (VerbKindOf(code)) {
    case VerbKind::Operator: {
      const int form = code % 10;
      return Line(kAction, code, form == 0 ? 0 : 1600, 1007, form <= 2 ? Currency::FromRaw(25000) : 0);
    }
    case VerbKind::Name: return Line(kAction, code, 0, 0, 0, "a \"quoted\" {name}");
    case VerbKind::SetFlag: return Line(kAction, code, 0, 0, -1, "won twice");
    case VerbKind::SetAllFlags: return Line(kAction, code, 0, 0, 0);
    case VerbKind::NameStack: {
      ScriptLine l = Line(kAction, code, 0, 0, 0, "stop-loss");
      l.TargetNum = 7;
      l.Text = RenderedText(l);
      return l;
    }
    case VerbKind::Source: return Line(kAction, code, 1601);
    case VerbKind::Target: return Line(kAction, code, 0, 19);
    case VerbKind::ResetRolls: return Line(kAction, code, 0, 2034);
    case VerbKind::Round: return Line(kAction, code, 1102, 1600, 5);
    case VerbKind::HandleWins:
    case VerbKind::HandleLosses: return Line(kAction, code, 0, 4);
    case VerbKind::Amount: return Line(kAction, code, 0, 0, 1000);
    case VerbKind::PercentOf: return Line(kAction, code, 1410, 0, 10);
    case VerbKind::Switch: return Line(kAction, code, 0, 0, -1);
    default: return Line(kAction, code);
  }
}

// For every subject, lines with each kind of comparison it can carry.
std::vector<ScriptLine> TypicalConditions(int subject) {
  switch (SubjectKindOf(subject)) {
    case SubjectKind::Bare: return {Line(kCondition, 0, subject)};
    case SubjectKind::Point: return {Line(kCondition, 49, subject), Line(kCondition, 41, subject)};
    case SubjectKind::Decided: return {Line(kCondition, 31, subject), Line(kCondition, 48, subject)};
    case SubjectKind::Flag: return {Line(kCondition, 0, subject, 0, -1, "f"), Line(kCondition, 0, subject, 0, 0, "f")};
    case SubjectKind::AnyFlag:
    case SubjectKind::AllFlags: return {Line(kCondition, 0, subject, 0, -1), Line(kCondition, 0, subject, 0, 0)};
    case SubjectKind::Compared: break;
  }
  if (subject >= 2000) return {Line(kCondition, 5, subject), Line(kCondition, 9, subject, 0, 12)};
  return {Line(kCondition, 1, subject), Line(kCondition, 4, subject, 0, 2), Line(kCondition, 63, subject, 0, 3),
          Line(kCondition, 13, subject, 0, Currency::FromRaw(-5)), Line(kCondition, 20, subject, 1800),
          Line(kCondition, 22, subject, 1601), Line(kCondition, 25, subject, 0, 4),
          Line(kCondition, 26, subject, 0, 0, "Loss limit")};
}

TEST(ScriptTextForm, EveryVerbAndSubjectReadsBackWithoutBraces) {
  for (const ListEntry& verb : script_list::ActionVerbs()) ExpectRoundTrip(TypicalAction(verb.Code), true);
  for (const ListEntry& subject : script_list::ConditionSubjects()) {
    if (subject.Code == 0) continue;
    for (const ScriptLine& l : TypicalConditions(subject.Code)) ExpectRoundTrip(l, true);
  }
  for (const ListEntry& start : StartWords()) ExpectRoundTrip(Line(start.Code), true);
  ExpectRoundTrip(Line(kLabel, 0, 0, 0, 0, "Loop back"), true);
  ExpectRoundTrip(Line(kComment, 0, 0, 0, 0, "'a note {not braces} \"quoted\""), true);
  // Every target and source of an operator, every dice event of "Reset rolls".
  for (const ListEntry& t : script_list::ActionTargets())
    if (t.Code != 0) ExpectRoundTrip(Line(kAction, 36, t.Code, t.Code), true);
  for (const ListEntry& t : script_list::CompareTargets())
    if (t.Code != 0) ExpectRoundTrip(Line(kCondition, 17, 1400, t.Code), true);
  for (const ListEntry& e : script_list::DiceEventTargets()) ExpectRoundTrip(Line(kAction, 74, 0, e.Code), true);
}

TEST(ScriptTextForm, OddFieldsTravelInBraces) {
  ScriptLine spares = Line(kAction, 10, 0, 43, 10);
  spares.Spare1 = 7;
  spares.Spare2 = -32768;
  ScriptLine text = Line(kCondition, 1300, 1300);
  text.Code = 0;
  text.Text = "On each roll, as an old editor wrote it";
  ScriptLine noWords = Line(kAction, 555, 1, 2, 3, "x");
  ScriptLine unknownKind = Line(9, 4, 5, 6, 7, "y");
  ScriptLine allZero;
  ScriptLine extremes = Line(kCondition, 11, 1400, 0, 0);
  extremes.LineAmount = -kMostLineAmount;
  extremes.Text = "";
  ScriptLine maxAmount = Line(kAction, 93, 0, 0, 0);
  maxAmount.LineAmount = kMostLineAmount;
  maxAmount.Text = RenderedText(maxAmount);
  ScriptLine flagValue = Line(kCondition, 0, 1500, 0, 5, "odd");  // neither True nor False
  ScriptLine control = Line(kAction, 79, 0, 0, 0, std::string("tab\there, bell\a, \\ and \"") + char(200));
  ScriptLine emptyMessage = Line(kAction, 79);  // rendered with a trailing blank
  emptyMessage.Text = "Show message:";
  ScriptLine commentNoQuote = Line(kComment, 0, 0, 0, 0, "no apostrophe ");
  ScriptLine commentCodes = Line(kComment, 0, 0, 0, 0, "'with a code");
  commentCodes.Code = 3;
  ScriptLine wrongOrder = Line(kCondition, 11, 1311, 0, 5);  // count form, and a Target it does not use
  wrongOrder.Target = 1400;
  ScriptLine bigStack = Line(kAction, 10, 0, 1600, 1);
  bigStack.TargetNum = -32768;
  bigStack.Text = RenderedText(bigStack);

  for (const ScriptLine& l : {spares, text, noWords, unknownKind, allZero, extremes, maxAmount, flagValue, control,
                              emptyMessage, commentNoQuote, commentCodes, wrongOrder, bigStack})
    ExpectRoundTrip(l, false);

  EXPECT_EQ(LineToText(spares), "  Bet $10 on Pass Line {Spare1=7 Spare2=-32768}");
  EXPECT_EQ(LineToText(text), "  On each roll {Text=\"On each roll, as an old editor wrote it\"}");
  EXPECT_EQ(LineToText(allZero), "{Kind=0}");
  EXPECT_EQ(LineToText(unknownKind), "{Kind=9 Code=4 Name=\"y\" LineAmount=7 Subject=5 Target=6}");
}

TEST(ScriptTextForm, ScriptSurvivesTextThenBetThenText) {
  Script s;
  for (const ListEntry& verb : script_list::ActionVerbs()) s.Lines.push_back(TypicalAction(verb.Code));
  ScriptLine odd = Line(kAction, 999, 0, 0, 0);
  odd.Spare1 = 1;
  odd.Text = "Reset table  now";
  s.Lines.push_back(odd);
  s.Lines.push_back(Line(kAction, 79));  // Text ends in a blank that the record drops

  const std::string text = ScriptToText(s);
  Script fromText;
  std::string error;
  ASSERT_TRUE(ReadScriptText(text, fromText, error)) << error;
  const DecodedBetFile bet = DecodeBetFile(EncodeBetFile(fromText, false));
  ASSERT_EQ(bet.Status, BetFileStatus::Ok);
  Script fromBet;
  fromBet.Lines = bet.Lines;
  EXPECT_EQ(ScriptToText(fromBet), text);
  EXPECT_EQ(EncodeBetFile(fromBet, false), EncodeBetFile(fromText, false));
}

TEST(ScriptTextForm, HandWrittenLinesAreReadLeniently) {
  const std::string text =
      "# a note, not a line\r\n"
      "\n"
      "WHEN . . .\r\n"
      "\tplace 6   HAS WON 2\n"
      "  Number 6 ((5-1) has rolled\n"
      "  Any Come Odds bet has lost\n"
      "or while...\n"
      "  Flag \"pressed\" is True\n"
      "then\n"
      "  Bet $ 1,000.5 on pass line\n"
      "  bet 50 % of Chip-Stack # 2 on Chip-Stack ref #3\n"
      "  Set flag \"pressed\" to False\n"
      "'done\n";
  Script s;
  std::string error;
  ASSERT_TRUE(ReadScriptText(text, s, error)) << error;
  ASSERT_EQ(s.NumLines(), 11);
  EXPECT_EQ(s.Line(1).Kind, kWhen);
  EXPECT_EQ(s.Line(2).Subject, 33);
  EXPECT_EQ(s.Line(2).LineAmount, Currency(2));
  EXPECT_EQ(s.Line(3).Subject, 2034);
  EXPECT_EQ(s.Line(4).Subject, 1006);
  EXPECT_EQ(s.Line(5).Kind, kOrWhile);
  EXPECT_EQ(s.Line(10).LineAmount, Currency(0));
  EXPECT_EQ(s.Line(8).LineAmount, Currency::FromRaw(10005000));
  EXPECT_EQ(s.Line(8).Text, "Bet $1,000.50 on Pass Line");
  const ScriptLine& pct = s.Line(9);
  EXPECT_EQ((std::vector<int>{pct.Code, pct.Subject, pct.SubjectNum, pct.Target, pct.TargetNum}),
            (std::vector<int>{11, 1600, 2, 1601, 3}));
  EXPECT_EQ(pct.LineAmount, Currency(50));
  EXPECT_EQ(s.Line(11).Name, "'done");
  ASSERT_EQ(s.Flags.size(), 1u);
  EXPECT_EQ(s.Flags[0].FlagName, "pressed");
}

TEST(ScriptTextForm, AByteOrderMarkAndCarriageReturnsAreNoPartOfTheLines) {
  Script plain, windows;
  std::string error;
  ASSERT_TRUE(ReadScriptText("When\n  On each roll\nthen\n  Bet $5 on Field\n", plain, error)) << error;
  ASSERT_TRUE(ReadScriptText("\xEF\xBB\xBFWhen\r\n  On each roll\r\nthen\r\n  Bet $5 on Field\r\n", windows, error)) << error;
  EXPECT_EQ(ScriptToText(windows), ScriptToText(plain));
}

TEST(ScriptTextForm, FaultsNameTheLineTheWordAndWhatFits) {
  struct Case {
    std::string text;
    std::vector<std::string> inMessage;
  };
  const std::vector<Case> cases = {
      {"When\n  Plase 6 has won\n",
       {"line 2, column 3: unknown word \"Plase\"", "\"Place 6\"", "(or 5 more; `dicemill-cli script words \"P\"` lists them)"}},
      {"When\n  Place 7 has won\n", {"line 2, column 9: unknown word \"7\"", "\"Place 8\"", "\"Place 9\" (or 2 more; `dicemill-cli script words \"Place\"`"}},
      {"'" + std::string(81, 'c') + "\n", {"line 1: comment longer than 80 characters (it has 82)"}},
      {"Do this\n\n  Bet $x on Field\n", {"line 3, column 8: unknown word \"x\"; expected an amount"}},
      {"Do this\n  Bet $10 to Field\n", {"line 2", "unknown word \"to\"; expected \"on\""}},
      {"Do this\n  Bet $10 on Feild\n", {"unknown word \"Feild\"", "\"Field\""}},
      {"When\n  Place 6 has wonn\n", {"unknown word \"wonn\"", "\"has won\"", "\"has won more than\""}},
      {"Whne\n", {"line 1, column 1: unknown word \"Whne\"", "\"When\"", "\"While\""}},
      {"Do this\n  Go to loop\n", {"unknown word \"loop\"; expected a name in double quotes"}},
      {"Do this\n  Go to \"loop\n", {"the line ends too soon; expected a closing double quote"}},
      {"Do this\n  Return extra\n", {"unknown word \"extra\"; expected the end of the line"}},
      {"Do this\n  Return {Spare3=1}\n", {"unknown word \"Spare3=1}\"", "\"Spare1\""}},
      {"Do this\n  Return {Spare1=70000}\n", {"line 2: Kind, SubjectNum, Spare1, TargetNum and Spare2 must lie"}},
      {"Do this\n  Go to \"" + std::string(81, 'n') + "\"\n", {"line 2: the name has 81 characters; at most 80 fit"}},
      {"Do this\n  Bet $10.12345 on Field\n", {"expected an amount"}},
      {"{Kind=30 Target=16777217}\n", {"line 1: Subject and Target must lie in"}},
      {"When\n  Chip-Stack # is equal to $1\n", {"expected a whole number"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    Script s;
    s.Lines.push_back(Line(kDoThis));
    std::string error;
    EXPECT_FALSE(ReadScriptText(c.text, s, error));
    for (const std::string& part : c.inMessage) EXPECT_NE(error.find(part), std::string::npos) << error;
    EXPECT_EQ(s.NumLines(), 1);  // nothing of a faulty text is taken
  }
}

// Every prefix of every line of a script, and each with a stray byte put in,
// either reads or gives a message: never an exception, never a crash.
TEST(ScriptTextForm, DamagedLinesGiveAMessage) {
  Script s;
  for (int code : {10, 21, 33, 77, 87, 84, 83, 74, 109, 90, 93, 94, 91, 86})
    s.Lines.push_back(TypicalAction(code));
  s.Lines.push_back(Line(kCondition, 26, 1601, 0, 0, "n"));
  s.Lines.push_back(Line(kAction, 10, 0, 43, 10));
  s.Lines.back().Spare1 = 3;
  for (const ScriptLine& l : s.Lines) {
    const std::string text = LineToText(l);
    for (size_t cut = 0; cut <= text.size(); ++cut) {
      for (const char* stray : {"", "\"", "{"}) {
        const std::string damaged = text.substr(0, cut) + stray;
        std::vector<ScriptLine> lines;
        std::string error;
        if (!ReadScriptText(damaged, lines, error)) {
          EXPECT_EQ(error.rfind("line 1", 0), 0u) << damaged;
        }
      }
    }
  }
}

TEST(ScriptTextForm, NoTwoEntriesOfAListReadAlike) {
  auto key = [](std::string w) {
    std::string k;
    for (char c : TrimmedWords(w))
      if (c != ' ') k += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return k;
  };
  for (const ChoiceList* list : {&script_list::ConditionSubjects(), &script_list::ActionVerbs(),
                                 &script_list::ActionSources(), &script_list::ActionTargets(),
                                 &script_list::CompareTargets(), &script_list::DiceEventTargets(), &StartWords()}) {
    std::set<std::string> seen;
    for (const ListEntry& e : *list)
      if (e.Code != 0) {
        EXPECT_TRUE(seen.insert(key(e.Words)).second) << e.Words;
      }
  }
}

}  // namespace
