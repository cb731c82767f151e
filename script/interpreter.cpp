#include "script/interpreter.h"

#include <algorithm>
#include <charconv>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engine/notices.h"
#include "engine/roll.h"
#include "script/actions.h"
#include "script/conditions.h"
#include "script/clock.h"
#include "script/jumps.h"
#include "script/pass_plan.h"

namespace {

using namespace line_kind;

constexpr int kYieldEvery = 500;
// The last lines of a pass that ran too long: those that show the loop.
constexpr int64_t kLoopSample = 20'000;
// GoSubs nested this deep (some thousand) never come back: such a pass is
// looping, and goes straight to its last stretch rather than growing its
// return stack for a million lines.
constexpr size_t kDeepestReturnStack = 8192;
constexpr double kPassPause = 0.3;  // seconds a visible pass lasts at least

// Status texts of the steps viewer.
constexpr const char* kWhenText =
    "This block of conditions will be true if each line is true and at least one has just occurred.";
constexpr const char* kWhileText = "This block of conditions will be true if each line is true.";
constexpr const char* kSkippedBlockText = "Since some conditions are already false, this block will be skipped. ";

bool IsWhenGroup(int kind) { return kind == kWhen || kind == kAndWhen || kind == kOrWhen || kind == kXorWhen; }
bool IsXor(int pending) { return pending == kXorWhen || pending == kXorWhile; }

// A label line's name as a jump compares it (trimmed, lower case), without
// copying: jumps scan every line in Hyper-Drive too.
bool LabelMatches(const std::string& name, const std::string& key) {
  const size_t first = name.find_first_not_of(' ');
  if (first == std::string::npos) return key.empty();
  const size_t length = name.find_last_not_of(' ') - first + 1;
  if (length != key.size()) return false;
  for (size_t i = 0; i < length; ++i) {
    const char c = name[first + i];
    const char lower = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    if (lower != key[i]) return false;
  }
  return true;
}

class Pass {
 public:
  explicit Pass(Game& g) : g_(g), steps_(g.ShowingSteps && !g.HyperDriveOn) {}

  void Run() {
    g_.AutoBetRunning = true;
    if (!g_.HyperDriveOn) {
      if (g_.HotKeyRun)
        g_.Ui->ShowStepsBanner("Hot-Key");
      else if (g_.ShowingSteps)
        g_.Ui->ShowStepsBanner("Auto-Betting");
      s_.PassStart = SecondsOfDay();
    }
    g_.LastAnswer = Answer::None;
    try {
      RunLines();
    } catch (const ScriptError& e) {
      Abort(e.Number, e.what());
      return;
    } catch (const std::exception& e) {
      Abort(kInternalError, e.what());
      return;
    }
    End();
  }

 private:
  static constexpr int kInternalError = 51;

  const Script& script() const { return g_.AutoBet; }

  void RunLines() {
    s_.CurrentLine = 1;
    if (!steps_) RunPlainStatements();
    for (; s_.CurrentLine <= script().NumLines(); ++s_.CurrentLine) {
      if (++linesRun_ > kMostLinesPerPass - kLoopSample) {
        if (linesRun_ > kMostLinesPerPass) return AbortLoop();
        looping_.resize(static_cast<size_t>(script().NumLines()) + 1);
      }
      if (++s_.LineCounter >= kYieldEvery) {
        // The only guard against a script that loops: a stop command clears
        // AutoBetRunning while queued input runs.
        s_.LineCounter = 0;
        g_.Ui->LetInputRun();
        if (!g_.AutoBetRunning) return;
        if (s_.CurrentLine > script().NumLines()) return;
      }
      const ScriptLine& line = script().Line(s_.CurrentLine);
      if (line.Kind == kComment) {
        if (!s_.JumpLabel.empty()) ScanForLabel();
        continue;
      }
      if (!s_.JumpLabel.empty()) {  // passing over lines to a label is not running them
        if (line.Kind == kLabel && LabelMatches(line.Name, s_.JumpLabel)) {
          NoteLoopLine();
          StartLogic(line, kLabel);
        } else {
          ScanForLabel();
        }
        continue;
      }
      NoteLoopLine();
      if (s_.ReturnPending) {
        ReturnToGoSub();
        continue;
      }
      RunLine(line);
      if (s_.ReturnStack.size() > kDeepestReturnStack) linesRun_ = std::max(linesRun_, kMostLinesPerPass - kLoopSample);
      // A jump scans from the top for its label; a Return passes through the
      // top to reach its GoSub.
      if (!s_.JumpLabel.empty() || s_.ReturnPending) s_.CurrentLine = 0;
    }
  }

  // A script of plain statements runs each line the loop above would run, in
  // its order, with the same handlers; only the lines it would pass over
  // untouched (comments, labels, conditions after the block is decided,
  // skipped actions) are not looked at. No jump means no line runs twice, so
  // the loop's counts never reach a yield. Leaves CurrentLine at the line
  // the loop is to go on from: past the end, or after an action that
  // replaced the script.
  void RunPlainStatements() {
    const std::vector<ScriptLine>& lines = script().Lines;
    if (!g_.AutoBet.Plan || !PlanFits(*g_.AutoBet.Plan, lines))
      g_.AutoBet.Plan = std::make_shared<const ScriptPlan>(PlanScript(lines, kYieldEvery - 1));
    const ScriptPlan& plan = *g_.AutoBet.Plan;
    if (!plan.Plain) return;
    const ScriptLine* const first = lines.data();
    const size_t count = lines.size();
    // Whether the script still stands as planned after an action.
    auto stands = [&] { return g_.AutoBet.Plan.get() == &plan && lines.data() == first && lines.size() == count; };
    auto lineAt = [&](int32_t n) -> const ScriptLine& { return first[n - 1]; };
    auto runActions = [&](int32_t from, int32_t to) {
      for (int32_t i = from; i < to && !ActionsSkipped(); ++i) {
        s_.CurrentLine = plan.Lines[static_cast<size_t>(i)];
        RunAction(lineAt(s_.CurrentLine));
        if (!stands()) return false;
      }
      return true;
    };
    for (const PlannedStatement& st : plan.Statements) {
      // The statement's own lines are not read: the plan knows their kinds,
      // and with no steps shown there is nothing of them to show.
      s_.CurrentLine = st.Start;
      if (st.StartKind != kDoThis) {  // as RunLine opens a When or While
        s_.OverallTrue = false;
        s_.PreviousTrue = false;
        s_.BlockTrue = true;
      }
      s_.LastStart = st.StartKind;
      s_.BlockJustNow = false;
      for (int32_t i = st.FirstCondition; i < st.FirstThenAction && !s_.OverallTrue && s_.BlockTrue; ++i) {
        s_.CurrentLine = plan.Lines[static_cast<size_t>(i)];
        RunCondition(lineAt(s_.CurrentLine));
      }
      if (st.Then != 0) {
        s_.CurrentLine = st.Then;
        FinishPlainBlock();
      }
      if (!runActions(st.FirstThenAction, st.FirstElseAction)) return Resume();
      if (st.Else == 0) continue;
      s_.CurrentLine = st.Else;
      s_.LastStart = kElse;  // as StartLogic opens an Else
      s_.BlockJustNow = false;
      if (!runActions(st.FirstElseAction, st.End)) return Resume();
    }
    s_.CurrentLine = script().NumLines() + 1;
  }

  // Passes over the lines after the current one up to the label a jump looks
  // for, counting them as the loop would, short of the next yield and of the
  // pass's last stretch, which the loop sees to itself.
  void ScanForLabel() {
    if (!looping_.empty()) return;
    const int64_t room = std::max<int64_t>(
        0, std::min<int64_t>(kYieldEvery - 1 - s_.LineCounter, kMostLinesPerPass - kLoopSample - linesRun_));
    const std::vector<ScriptLine>& lines = script().Lines;
    const int last = static_cast<int>(std::min<int64_t>(script().NumLines(), s_.CurrentLine + room));
    int n = s_.CurrentLine;
    while (n < last) {
      const ScriptLine& next = lines[static_cast<size_t>(n)];
      if (next.Kind == kLabel && LabelMatches(next.Name, s_.JumpLabel)) break;
      ++n;
    }
    linesRun_ += n - s_.CurrentLine;
    s_.LineCounter += n - s_.CurrentLine;
    s_.CurrentLine = n;
  }

  // FinishBlock at the Then of a plain statement: no xor is pending, no "and"
  // follows, and nothing is shown.
  void FinishPlainBlock() {
    if (s_.BlockTrue && !s_.BlockJustNow && IsWhenGroup(s_.LastStart)) s_.BlockTrue = false;
    s_.PreviousTrue = s_.BlockTrue;
    s_.PendingXor = 0;
    if (s_.PreviousTrue) s_.OverallTrue = true;
    s_.LastStart = kThen;  // as StartLogic opens the actions
    s_.BlockJustNow = false;
  }

  // The loop goes on after the current line as if it had run every line so far.
  void Resume() {
    linesRun_ = s_.LineCounter = s_.CurrentLine;
    ++s_.CurrentLine;
  }

  bool ActionsSkipped() const {
    return (s_.LastStart == kThen && !s_.OverallTrue) || (s_.LastStart == kElse && s_.OverallTrue);
  }

  void RunLine(const ScriptLine& line) {
    switch (line.Kind) {
      case kLabel:
        Say("This label was encountered normally.");
        Show(line);
        break;
      case kWhen:
      case kWhile:
        s_.OverallTrue = false;
        s_.PreviousTrue = false;
        s_.BlockTrue = true;
        StartLogic(line, line.Kind);
        break;
      case kAndWhen:
      case kAndWhile:
        // Reads the last line's just-now, not the block's: kept as it is.
        if (s_.BlockTrue && !s_.LineJustNow && IsWhenGroup(s_.LastStart))
          FinishBlock(line);
        else
          StartLogic(line, line.Kind);
        break;
      case kOrWhen:
      case kOrWhile:
      case kXorWhen:
      case kXorWhile:
        if (s_.OverallTrue) break;
        FinishBlock(line);
        s_.BlockTrue = true;
        break;
      case kCondition: RunCondition(line); break;
      case kThen: FinishBlock(line); break;
      case kElse:
      case kDoThis: StartLogic(line, line.Kind); break;
      case kAction: RunAction(line); break;
      default: break;
    }
  }

  void RunCondition(const ScriptLine& line) {
    if (s_.OverallTrue || !s_.BlockTrue) return;  // decided already, or an earlier line failed
    s_.BlockTrue = false;
    s_.LineJustNow = false;
    EvaluateCondition(g_, s_, line);
    if (s_.LineJustNow) s_.BlockJustNow = true;
    if (!steps_) return;
    if (!s_.BlockTrue)
      s_.Status = "Status: Condition is false. ";
    else
      s_.Status = s_.LineJustNow ? "Status: Condition is true (just now occurred). "
                                 : "Status: Condition is true (not a new occurrence). ";
    Show(line);
  }

  void RunAction(const ScriptLine& line) {
    if (ActionsSkipped()) return;
    if (s_.CurrentLine > 1) {
      // A run of highest/lowest/average lines is one verb on one target.
      const ScriptLine& above = script().Line(s_.CurrentLine - 1);
      if (above.Kind != line.Kind || above.Code != line.Code || above.Target != line.Target ||
          above.TargetNum != line.TargetNum) {
        s_.RunCount = 0;
        s_.RunAmount = Currency();
      }
    }
    const int lineNumber = s_.CurrentLine;
    const bool ignoredReturn = line.Code == verb::kReturn && s_.ReturnStack.find(',') == std::string::npos;
    CarryOutAction(g_, s_, line);
    if (ignoredReturn)
      Say("This statement will be ignored since it was not encountered as a result of a \"GoSub\" statement.  "
          "Processing will resume with the next line in order.");
    else
      Say("Action taken.");
    // The action may have changed the script; show the line only if it stands.
    if (steps_ && lineNumber <= script().NumLines()) ShowStep(lineNumber, script().Line(lineNumber).Text);
  }

  void ReturnToGoSub() {
    const std::string& stack = s_.ReturnStack;
    const size_t comma = stack.find(',');
    int back = 0;
    std::from_chars(stack.data(), stack.data() + (comma == std::string::npos ? stack.size() : comma), back);
    s_.ReturnStack.erase(0, comma == std::string::npos ? std::string::npos : comma + 1);
    s_.ReturnPending = false;
    if (back < 1 || back > script().NumLines()) return;  // the loop goes on from the line after
    s_.CurrentLine = back;
    Say("A \"Return\" statement has caused a jump back to this \"GoSub\" statement.  "
        "Processing will resume with the next line in order.");
    Show(script().Line(back));
  }

  // The block that line K ends.
  void FinishBlock(const ScriptLine& line) {
    const int k = line.Kind;
    const bool xorPending = IsXor(s_.PendingXor);
    if (s_.BlockTrue && !s_.BlockJustNow && IsWhenGroup(s_.LastStart)) {
      Say("All the conditions in the block were true, but none have just now occurred - so the block is false. ");
      s_.BlockTrue = false;
      if (s_.PendingXor == kXorWhen) {
        if (s_.PreviousTrue) {
          SayMore("However, the previous block was true, therefore the xor condition is true. ");
          s_.OverallTrue = true;
        } else {
          SayMore("And since the previous block was also false, the xor condition is false. ");
        }
      } else {
        s_.PreviousTrue = false;
      }
    } else if (s_.BlockTrue) {
      Say("All the conditions in the block were true. ");
      if (xorPending && k != kAndWhen && k != kAndWhile) {
        if (s_.PreviousTrue) {
          SayMore("However, the previous block was also true, therefore the xor condition is false. ");
          s_.PreviousTrue = false;
        } else {
          SayMore("And since the previous block was false, the xor condition is also true. ");
          s_.OverallTrue = true;
        }
      }
      if (!xorPending) s_.PreviousTrue = true;
    } else {
      Say("At least one condition was false, so the block is false. ");
      if (xorPending) {
        if (s_.PreviousTrue) {
          SayMore("However, the previous block was true, therefore the xor condition is true. ");
          s_.OverallTrue = true;
        } else {
          SayMore("And since the previous block was also false, the xor condition is false. ");
          s_.PreviousTrue = false;
        }
      } else {
        s_.PreviousTrue = false;
      }
    }
    s_.PendingXor = 0;
    // A true block decides the statement unless "and" or "xor" follows.
    if (s_.PreviousTrue && k != kAndWhen && k != kAndWhile && k != kXorWhen && k != kXorWhile) s_.OverallTrue = true;
    if (s_.OverallTrue && k != kThen) return;
    Show(line);
    StartLogic(line, k);
  }

  void StartLogic(const ScriptLine& line, int kind) {
    s_.LastStart = kind;
    s_.BlockJustNow = false;
    switch (kind) {
      case kWhen:
      case kOrWhen: Say(kWhenText); break;
      case kWhile:
      case kOrWhile: Say(kWhileText); break;
      case kAndWhen: Say(s_.BlockTrue ? kWhenText : kSkippedBlockText); break;
      case kAndWhile: Say(s_.BlockTrue ? kWhileText : kSkippedBlockText); break;
      case kXorWhen:
        Say("This block of conditions will be true if each line is true and at least one has just occurred.  "
            "The xor condition will be then be evaluated with it and the previous block. ");
        s_.PendingXor = kXorWhen;
        break;
      case kXorWhile:
        Say("This block of conditions will be true if each line is true. "
            "The xor condition will be then be evaluated with it and the previous block. ");
        s_.PendingXor = kXorWhile;
        break;
      case kThen:
        Say(s_.OverallTrue ? "Since the overall conditions were true, the next actions will be taken. "
                           : "Since the overall conditions were false, the next actions will be skipped. ");
        break;
      case kElse:
        Say(s_.OverallTrue ? "Since the previous actions were taken, the next actions will be skipped. "
                           : "Since the previous actions were skipped, the next actions will be taken. ");
        break;
      case kDoThis: Say("This block of actions will be executed directly. "); break;
      case kLabel:
        Say("A \"Go to\" or \"GoSub\" statement has caused a jump to this label. ");
        s_.JumpLabel.clear();
        break;
      default: break;
    }
    Show(line);
  }

  // Status texts are built only for the steps viewer.
  void Say(const char* text) {
    if (steps_) s_.Status = text;
  }
  void SayMore(const char* text) {
    if (steps_) s_.Status += text;
  }
  void Show(const ScriptLine& line) {
    if (steps_) ShowStep(s_.CurrentLine, line.Text);
  }
  // The rest of the pass runs unseen after "Run to end"; Cancel also ends
  // the showing of steps for the passes to come.
  void ShowStep(int lineNumber, const std::string& text) {
    const StepReply reply = g_.Ui->ShowStep(lineNumber, text, s_.Status);
    if (reply == StepReply::Next) return;
    steps_ = false;
    if (reply == StepReply::Cancel) g_.ShowingSteps = false;
  }

  void End() {
    g_.AutoBetRunning = false;
    if (g_.HyperDriveOn) return;
    // A visible pass lasts at least kPassPause, unless the day has wrapped.
    const double elapsed = SecondsOfDay() - s_.PassStart;
    if (elapsed >= 0 && elapsed < kPassPause) g_.Ui->WaitSeconds(kPassPause - elapsed);
    g_.TableDirty = true;
  }

  // The table stays as the failed action left it; AutoBetRunning is left as
  // it is.
  void Abort(int number, const std::string& description) {
    const std::string text = "The following error has caused Auto-Betting to abort at line #" +
                             std::to_string(s_.CurrentLine) + ":" + kTwoBreaks +
                             RunTimeErrorText(description, number, "Run Auto-Bet") + kTwoBreaks +
                             "Press help for more information.";
    if (g_.HyperDriveOn) g_.StopReason = StopReason::ScriptError;
    ShowMessage(g_, "Auto-Bet Abort", text);
    g_.KeepRolling = false;
  }

  void NoteLoopLine() {
    if (!looping_.empty() && s_.CurrentLine < static_cast<int>(looping_.size()))
      looping_[static_cast<size_t>(s_.CurrentLine)] = true;
  }

  void AbortLoop() {
    std::vector<int> lines;
    for (size_t n = 1; n < looping_.size(); ++n)
      if (looping_[n]) lines.push_back(static_cast<int>(n));
    s_.CurrentLine = lines.empty() ? 0 : lines.back();
    const std::string text = "The following error has caused Auto-Betting to abort at line #" +
                             std::to_string(s_.CurrentLine) + ":" + kTwoBreaks + "This pass ran more than " +
                             FormatWithCommas(kMostLinesPerPass) + " lines without ending: it keeps running " +
                             LineListText(lines) + "." + kTwoBreaks + "Press help for more information.";
    if (g_.HyperDriveOn) g_.StopReason = StopReason::ScriptError;
    ShowMessage(g_, "Auto-Bet Abort", text);
    g_.KeepRolling = false;
    g_.AutoBetRunning = false;
  }

  Game& g_;
  PassState s_;
  bool steps_;  // the pass shows its steps: decided at its start, ended by the player
  int64_t linesRun_ = 0;
  std::vector<bool> looping_;  // lines run in the last stretch of a pass that runs too long
};

}  // namespace

std::string LineListText(const std::vector<int>& lines) {
  std::vector<std::string> runs;
  for (size_t i = 0; i < lines.size();) {
    size_t j = i;
    while (j + 1 < lines.size() && lines[j + 1] == lines[j] + 1) ++j;
    runs.push_back(std::to_string(lines[i]) + (j > i ? " to " + std::to_string(lines[j]) : ""));
    i = j + 1;
  }
  std::string text = lines.size() == 1 ? "line " : "lines ";
  for (size_t i = 0; i < runs.size(); ++i)
    text += (i == 0 ? "" : i + 1 == runs.size() ? " and " : ", ") + runs[i];
  return text;
}

void RunAutoBet(Game& g) {
  if (g.AutoBet.NumLines() == 0) return;  // an empty script is never run
  Pass(g).Run();
}

void OfferInitialCycle(Game& g) {
  if (!g.InitPending || !g.AutoBetActivated || g.AutoBet.NumLines() == 0) return;
  const std::string text = std::string("Your Auto-Bets have changed") + kTwoBreaks +
                           "You have an opportunity now to run your Auto-Bet script for one cycle BEFORE the dice "
                           "roll in order to check and set any initial conditions." +
                           kTwoBreaks + "Would you like to initialize your Auto-Bets?";
  if (ShowMessage(g, "Auto-Bet", text, Buttons::YesNo) == Reply::Yes) {
    RunAutoBet(g);
    TakeScriptSnapshots(g);
  }
  g.InitPending = false;
}
