#include "ui/menu_tree.h"

#include <array>

namespace {

using enum MenuCommand;
constexpr DuringRun kIdle = DuringRun::Disabled;
constexpr DuringRun kAny = DuringRun::Enabled;

constexpr std::array kMenus = {
    MenuSpec{"mnuGame", "&Game"},
    MenuSpec{"mnuAction", "&Action"},
    MenuSpec{"mnuStatistics", "&Statistics"},
    MenuSpec{"mnuHelp", "&Help"},
};

// Ctrl+letter and Ctrl+digit belong to the Hot-Keys, so the file commands
// take Ctrl+Shift.
constexpr std::array kItems = {
    MenuItemSpec{"mnuGame", New, "&New", "mnuNew", "Ctrl+Shift+N", false, kIdle},
    MenuItemSpec{"mnuGame", Open, "&Open ...", "mnuOpen", "Ctrl+Shift+O", false, kIdle},
    MenuItemSpec{"mnuGame", Save, "&Save", "mnuSave", "Ctrl+Shift+S", false, kIdle},
    MenuItemSpec{"mnuGame", SaveAs, "Sa&ve As ...", "mnuSaveAs", "", false, kIdle},
    MenuItemSpec{"mnuGame", ShowPath, "Show &Path", "mnuShowPath", "", false, kAny},
    MenuItemSpec{"mnuGame", HotKeys, "&Hot-Keys ...", "mnuHotKeys", "", false, kIdle},
    MenuItemSpec{"mnuGame", Configure, "&Configure ...", "mnuConfigure", "", false, kIdle},
    MenuItemSpec{"mnuGame", Exit, "E&xit", "mnuExit", "Ctrl+Shift+Q", false, kAny},
    MenuItemSpec{"mnuAction", RollDice, "&Roll the Dice  (Right mouse button)", "mnuRollDice", "Space", false, kIdle},
    MenuItemSpec{"mnuAction", AutoRoll, "S&tart Auto-Roll", "mnuAutoRoll", "", false, kAny},
    MenuItemSpec{"mnuAction", DiceRollFiles, "&Dice Roll Files ...", "mnuDiceRollFiles", "", false, kIdle},
    MenuItemSpec{"mnuAction", AutoPlay, "Auto-&Play ...", "mnuAutoPlay", "", false, kIdle},
    MenuItemSpec{"mnuAction", AutoBet, "Auto-&Bet ...", "mnuAutoBet", "", false, kIdle},
    MenuItemSpec{"mnuAction", BuyTool, "\"B&uy\" Place Bet", "mnuBuyPlaceBet", "", false, kIdle},
    MenuItemSpec{"mnuAction", CallOnTool, "Call bet \"O&N\"", "mnuCallBetOn", "", false, kIdle},
    MenuItemSpec{"mnuAction", CallAllOn, "Call &all bets \"ON\"", "mnuCallAllBetsOn", "", false, kIdle},
    MenuItemSpec{"mnuAction", CallOffTool, "Call bet \"O&FF\"", "mnuCallBetOff", "", false, kIdle},
    MenuItemSpec{"mnuAction", CallAllOff, "Call a&ll bets \"OFF\"", "mnuCallAllBetsOff", "", false, kIdle},
    MenuItemSpec{"mnuAction", RemoveTool, "Re&move bet", "mnuRemoveBet", "", false, kIdle},
    MenuItemSpec{"mnuAction", RemoveAll, "Remo&ve all bets", "mnuRemoveAllBets", "", false, kIdle},
    MenuItemSpec{"mnuAction", KeyIn, "&Key-in bet amounts", "mnuKeyInBetAmounts", "", true, kAny},
    MenuItemSpec{"mnuAction", BetsAsNumbers, "D&isplay bets as numbers", "mnuDisplayBetAmounts", "", true, kAny},
    MenuItemSpec{"mnuAction", RollYourOwn, "Roll your o&wn numbers", "mnuRollYourOwnNumbers", "", false, kIdle},
    MenuItemSpec{"mnuAction", HopBets, "Display &Hop bets", "mnuDisplayHopBets", "", true, kAny},
    MenuItemSpec{"mnuStatistics", GamesLog, "&Games Log ...", "mnuGamesLog", "", false, kIdle},
    MenuItemSpec{"mnuStatistics", Summary, "&Summary ...", "mnuSummary", "", false, kIdle},
    MenuItemSpec{"mnuStatistics", Bankroll, "&Bankroll / Hyper-Drive ...", "mnuBankroll", "", false, kAny},
    MenuItemSpec{"mnuStatistics", RollTotals, "Roll &Totals ...", "mnuRollTotals", "", false, kIdle},
    MenuItemSpec{"mnuStatistics", RollFrequencies, "Roll &Frequencies ...", "mnuRollFreqs", "", false, kIdle},
    MenuItemSpec{"mnuStatistics", BetResults, "Bet R&esults ...", "mnuBetStats", "", false, kIdle},
    MenuItemSpec{"mnuStatistics", BetTrends, "Bet T&rends ...", "mnuBetTrends", "", false, kIdle},
    MenuItemSpec{"mnuStatistics", ChipStacks, "&Chip Stacks ...", "mnuChipStacks", "", false, kIdle},
    MenuItemSpec{"mnuStatistics", Flags, "F&lags ...", "mnuFlags", "", false, kIdle},
    MenuItemSpec{"mnuHelp", Contents, "&Contents ...", "mnuContents", "F1", false, kAny},
    MenuItemSpec{"mnuHelp", Search, "&Search ...", "mnuSearch", "", false, kAny},
    MenuItemSpec{"mnuHelp", About, "&About Dicemill ...", "mnuAboutCraps", "", false, kAny},
};

}  // namespace

std::span<const MenuSpec> MainMenus() { return kMenus; }
std::span<const MenuItemSpec> MainMenuItems() { return kItems; }

const char* AutoRollCaption(bool running) { return running ? "S&top Auto-Roll" : "S&tart Auto-Roll"; }
