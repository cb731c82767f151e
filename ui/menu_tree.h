#pragma once
// The main window's menus as data: every item with its exact caption (the
// '&' marks its mnemonic), its object name, its key and when it may act.

#include <span>

enum class MenuCommand {
  New, Open, Save, SaveAs, ShowPath, HotKeys, Configure, GamesLogFile, Exit,
  RollDice, AutoRoll, DiceRollFiles, AutoPlay, AutoBet, BuyTool, CallOnTool, CallAllOn, CallOffTool, CallAllOff,
  RemoveTool, RemoveAll, KeyIn, BetsAsNumbers, RollYourOwn, HopBets,
  GamesLog, Summary, Bankroll, RollTotals, RollFrequencies, BetResults, BetTrends, ChipStacks, Flags,
  Contents, Search, About,
};

// When an item may act while a run owns the table.
enum class DuringRun { Disabled, Enabled };

struct MenuItemEntry {
  const char* menu;        // object name of the menu: mnuGame, mnuAction, ...
  MenuCommand command;
  const char* caption;
  const char* objectName;
  const char* shortcut;    // QKeySequence text, or ""
  bool checkable;
  DuringRun duringRun;
};

struct MenuEntry {
  const char* objectName;
  const char* caption;
};

std::span<const MenuEntry> MainMenus();
std::span<const MenuItemEntry> MainMenuItems();

// The caption of the Auto-Roll item while a run is or is not under way.
const char* AutoRollCaption(bool running);
