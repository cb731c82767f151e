#include "ui/menu_tree.h"

#include <array>

namespace {

using enum MenuCommand;
constexpr DuringRun kIdle = DuringRun::Disabled;
constexpr DuringRun kAny = DuringRun::Enabled;

constexpr std::array kMenus = {
    MenuEntry{"mnuGame", "&Game"},
    MenuEntry{"mnuAction", "&Action"},
    MenuEntry{"mnuStatistics", "&Statistics"},
    MenuEntry{"mnuHelp", "&Help"},
};

// Ctrl+letter and Ctrl+digit belong to the Hot-Keys, so the file commands
// take Ctrl+Shift.
constexpr std::array kItems = {
    MenuItemEntry{"mnuGame", New, "&New", "mnuNew", "Ctrl+Shift+N", false, kIdle},
    MenuItemEntry{"mnuGame", Open, "&Open ...", "mnuOpen", "Ctrl+Shift+O", false, kIdle},
    MenuItemEntry{"mnuGame", Save, "&Save", "mnuSave", "Ctrl+Shift+S", false, kIdle},
    MenuItemEntry{"mnuGame", SaveAs, "Sa&ve As ...", "mnuSaveAs", "", false, kIdle},
    MenuItemEntry{"mnuGame", ShowPath, "Show &Path", "mnuShowPath", "", false, kAny},
    MenuItemEntry{"mnuGame", HotKeys, "&Hot-Keys ...", "mnuHotKeys", "", false, kIdle},
    MenuItemEntry{"mnuGame", Configure, "&Configure ...", "mnuConfigure", "", false, kIdle},
    MenuItemEntry{"mnuGame", GamesLogFile, "Games &Log File ...", "mnuGamesLogFile", "", false, kIdle},
    MenuItemEntry{"mnuGame", Exit, "E&xit", "mnuExit", "Ctrl+Shift+Q", false, kAny},
    MenuItemEntry{"mnuAction", RollDice, "&Roll the Dice  (Right mouse button)", "mnuRollDice", "Space", false, kIdle},
    MenuItemEntry{"mnuAction", AutoRoll, "S&tart Auto-Roll", "mnuAutoRoll", "", false, kAny},
    MenuItemEntry{"mnuAction", DiceRollFiles, "&Dice Roll Files ...", "mnuDiceRollFiles", "", false, kIdle},
    MenuItemEntry{"mnuAction", AutoPlay, "Auto-&Play ...", "mnuAutoPlay", "", false, kIdle},
    MenuItemEntry{"mnuAction", AutoBet, "Auto-&Bet ...", "mnuAutoBet", "", false, kIdle},
    MenuItemEntry{"mnuAction", BuyTool, "\"B&uy\" Place Bet", "mnuBuyPlaceBet", "", false, kIdle},
    MenuItemEntry{"mnuAction", CallOnTool, "Call bet \"O&N\"", "mnuCallBetOn", "", false, kIdle},
    MenuItemEntry{"mnuAction", CallAllOn, "Call &all bets \"ON\"", "mnuCallAllBetsOn", "", false, kIdle},
    MenuItemEntry{"mnuAction", CallOffTool, "Call bet \"O&FF\"", "mnuCallBetOff", "", false, kIdle},
    MenuItemEntry{"mnuAction", CallAllOff, "Call a&ll bets \"OFF\"", "mnuCallAllBetsOff", "", false, kIdle},
    MenuItemEntry{"mnuAction", RemoveTool, "Re&move bet", "mnuRemoveBet", "", false, kIdle},
    MenuItemEntry{"mnuAction", RemoveAll, "Remo&ve all bets", "mnuRemoveAllBets", "", false, kIdle},
    MenuItemEntry{"mnuAction", KeyIn, "&Key-in bet amounts", "mnuKeyInBetAmounts", "", true, kAny},
    MenuItemEntry{"mnuAction", BetsAsNumbers, "D&isplay bets as numbers", "mnuDisplayBetAmounts", "", true, kAny},
    MenuItemEntry{"mnuAction", RollYourOwn, "Roll your o&wn numbers", "mnuRollYourOwnNumbers", "", false, kIdle},
    MenuItemEntry{"mnuAction", HopBets, "Display &Hop bets", "mnuDisplayHopBets", "", true, kAny},
    MenuItemEntry{"mnuStatistics", GamesLog, "&Games Log ...", "mnuGamesLog", "", false, kIdle},
    MenuItemEntry{"mnuStatistics", Summary, "&Summary ...", "mnuSummary", "", false, kIdle},
    MenuItemEntry{"mnuStatistics", Bankroll, "&Bankroll / Hyper-Drive ...", "mnuBankroll", "", false, kAny},
    MenuItemEntry{"mnuStatistics", RollTotals, "Roll &Totals ...", "mnuRollTotals", "", false, kIdle},
    MenuItemEntry{"mnuStatistics", RollFrequencies, "Roll &Frequencies ...", "mnuRollFreqs", "", false, kIdle},
    MenuItemEntry{"mnuStatistics", BetResults, "Bet R&esults ...", "mnuBetStats", "", false, kIdle},
    MenuItemEntry{"mnuStatistics", BetTrends, "Bet T&rends ...", "mnuBetTrends", "", false, kIdle},
    MenuItemEntry{"mnuStatistics", ChipStacks, "&Chip Stacks ...", "mnuChipStacks", "", false, kIdle},
    MenuItemEntry{"mnuStatistics", Flags, "F&lags ...", "mnuFlags", "", false, kIdle},
    MenuItemEntry{"mnuHelp", Contents, "&Contents ...", "mnuContents", "F1", false, kAny},
    MenuItemEntry{"mnuHelp", Search, "&Search ...", "mnuSearch", "", false, kAny},
    MenuItemEntry{"mnuHelp", About, "&About Dicemill ...", "mnuAboutCraps", "", false, kAny},
};

}  // namespace

std::span<const MenuEntry> MainMenus() { return kMenus; }
std::span<const MenuItemEntry> MainMenuItems() { return kItems; }

const char* AutoRollCaption(bool running) { return running ? "S&top Auto-Roll" : "S&tart Auto-Roll"; }
