#pragma once
// What a player does to a bet other than adding chips: take it down, call it
// on or off, turn a Place bet into a Buy bet. Menus, table tools and script
// actions all come here by BetId.

struct Game;

// The table tools that act on the bet itself.
constexpr int kToolBuy = 89;
constexpr int kToolCallOff = 90;
constexpr int kToolCallOn = 91;

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
