#pragma once
// The verbs of Action lines, by the codes script files keep. Each family of
// verbs carries out its own (script/verb_families.h); the text of a line and
// its text form read them all.

namespace verb {
// Bet, Add, Subtract, Multiply, Divide: tens 10..50 by operator, units 0..8
// by the form of the amount.
constexpr int kFirstOperator = 10, kLastOperator = 58, kOperatorForms = 9;
constexpr bool IsOperator(int code) { return code >= kFirstOperator && code <= kLastOperator && code % 10 < kOperatorForms; }

// Table actions on the bets of the target.
constexpr int kBuy = 70, kCallOff = 71, kCallOn = 72, kResetWinsLosses = 73, kResetRolls = 74, kStop = 75;

// Jumps.
constexpr int kGoTo = 117, kGoSub = 76, kReturn = 86;

// Flags, messages and input.
constexpr int kSetFlag = 77, kSetAllFlags = 78;
constexpr int kShowMessage = 79, kQuestion = 82, kShowValue = 84, kQuestionValue = 85;
constexpr int kGetInput = 83, kRound = 109;

// Settings of the table.
constexpr int kPlaySound = 80, kShowSteps = 81;
constexpr int kNameChipStack = 87, kClearChipStackNames = 88, kNameChipStackRef = 89;
constexpr int kHandleWinning = 90, kHandleLosing = 110, kTakeFullOdds = 91, kLayFullOdds = 92;
constexpr int kWithdraw = 93, kWithdrawPercent = 94, kDeposit = 95, kDepositPercent = 96;
constexpr int kSelectRng = 103, kSelectRngValue = 104, kSelectRngLast = 111;
constexpr int kSeedClock = 105, kSeedAmount = 106, kSeedValue = 107, kSeedLast = 112;
constexpr int kResetTableKeepStacks = 998, kResetTable = 999;

// Files.
constexpr int kActivateProbFile = 97, kDeactivateProbFile = 98;
constexpr int kOpenClear = 113, kOpenAppend = 99, kCloseFile = 114;
constexpr int kOutputMessage = 100, kOutputValue = 101, kOutputLastValue = 108, kOutputNewLine = 102;
}  // namespace verb
