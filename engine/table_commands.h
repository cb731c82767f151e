#pragma once
// What a player does to a bet other than adding chips: take it down, call it
// on or off, turn a Place bet into a Buy bet. Menus, table tools and script
// actions all come here by BetId.

#include <optional>
#include <string>

#include "dice/money.h"

struct Game;

// The table tools that act on the bet itself.
constexpr int kToolBuy = 89;
constexpr int kToolCallOff = 90;
constexpr int kToolCallOn = 91;
// The tools that add chips: check colours 1..5, and the Chip-Stacks of
// TrayStack[1..4].
constexpr int kToolFirstChip = 1, kToolLastChip = 5;
constexpr int kToolFirstStack = 7, kToolLastStack = 10;

// Takes a bet down through the placement rules, so a contract bet stays.
void RemoveBet(Game& g, int betId);
// RemoveBet for every bet on the layout.
void RemoveAllBets(Game& g);

// Line bets and Come and Don't Come bets (box or number) cannot be called.
bool CanBeCalled(int betId);
// Calls a bet ON (kToolCallOn) or OFF (kToolCallOff). A press against a call
// the other way withdraws that call rather than reversing it.
void CallBet(Game& g, int betId, int callTool);
// CallBet on every bet that can be called, with every notice silenced.
void CallAllBets(Game& g, bool on);

// Moves a Place bet onto its Buy spot. On success betId names the Buy bet.
void BuyPlaceBet(Game& g, int& betId);

// A click on a bet with the table's ClickTool; with Shift held the click
// removes the whole bet instead (on an empty Don't Pass Odds spot, the Don't
// Pass bet).
void ClickBet(Game& g, int betId, bool shiftHeld);

// The entry box's text as an amount, with the display form's thousands
// separators and decimal mark, and an optional "$"; nullopt when it is no
// amount.
std::optional<Currency> ConvertCurrencyText(const std::string& text);

// Puts a keyed-in amount on its bet: the difference goes through placement.
// False, changing nothing, when the text is no amount.
bool CommitEnteredBet(Game& g, int betId, const std::string& text);
