#pragma once
// The subjects a script line names: what a condition tests, what an action
// reads its amount "of", and where it acts ("to"). Bets are their BetIds
// 0..83; dice events are kDiceEvents + the event; the rest are these codes,
// kept in script files.

namespace subject {
// Bet groups of the "of" and "to" lists. A condition's groups are numbered
// one higher (its Any 1001 is every bet), and its Any, All and Total
// families of a group share the last two digits.
constexpr int kAllBets = 1000, kLayBets = 1001, kDontComeBets = 1002, kDontComeOddsBets = 1003;
constexpr int kComeBets = 1004, kComeOddsBets = 1005, kPlaceBets = 1006;
constexpr int kInsidePlace = 1007, kOutsidePlace = 1008, kBuyBets = 1009;
constexpr int kAnyGroup = 1000, kAllGroup = 1100, kTotalGroup = 1200, kLastGroup = 1299;

// Events of the game.
constexpr int kInitializing = 9999;
constexpr int kEachRoll = 1300;
constexpr int kNextComeOut = 1301, kNextNotComeOut = 1309;
constexpr int kLastComeOut = 1302, kLastNotComeOut = 1310;
constexpr int kPointOn = 1303, kPointNotOn = 1306;
constexpr int kDecidedFor = 1304, kDecidedAgainst = 1305, kDecided = 1322;
constexpr int kDecidedUnlisted = 1321;  // read with the decided choices, though no list offers it
constexpr int kAnswerYes = 1307, kAnswerNo = 1308;
constexpr int kEachPass = 1313, kEachMiss = 1316;

// Counters: of the game, of this shooter, of the last shooter.
constexpr int kGameRolls = 1311, kShooterRolls = 1312, kLastShooterRolls = 1323;
constexpr int kGamePasses = 1314, kShooterPasses = 1315, kLastShooterPasses = 1324;
constexpr int kGameMisses = 1317, kShooterMisses = 1318, kLastShooterMisses = 1325;

// Money.
constexpr int kBankroll = 1400, kAverageBankroll = 1401, kHighestBankroll = 1402, kLowestBankroll = 1403;
constexpr int kSimulatedHours = 1405, kAvailableBankroll = 1410;

// Flags and Chip-Stacks.
constexpr int kFlag = 1500, kAnyFlag = 1501, kAllFlags = 1502, kTrueFlags = 1503, kFalseFlags = 1504;
constexpr int kChipStack = 1600, kChipStackRef = 1601, kAllChipStacks = 1602;

// Wagers on the table and decided.
constexpr int kDecidedWagerCount = 1700, kDecidedWagerAmount = 1701;
constexpr int kCurrentWagerCount = 1702, kCurrentWagerAmount = 1703;

// The bets of the shooter's point.
constexpr int kPointLay = 1800, kPointCome = 1803, kPointComeOdds = 1804, kPointPlace = 1805, kPointBuy = 1806;

// Dice events: kDiceEvents + the event's number.
constexpr int kDiceEvents = 2000;
constexpr int kAllTheNumbers = kDiceEvents + 1;
}  // namespace subject
