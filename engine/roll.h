#pragma once
// The roll cycle: one throw, or a whole Auto-Roll or Hyper-Drive run.

struct Game;

// Throws, books, settles every bet in its fixed order, moves the point and
// decides whether to throw again. Leaves its outcome in the table and in
// StopReason.
void RollDice(Game& g);
// The point after a roll of `total` when `point` stood before it.
int NextPoint(int point, int total);
// Carries a Come or Don't Come box bet to its number.
void MoveBet(Game& g, int fromBet, int toBet);
// Ends a run, or tells the player, once the bankroll is beyond the bank limit.
void CheckBankLimit(Game& g);
void PlayComeOutSound(Game& g);
// Copies what the next script pass sees as "previous": the table of amounts
// after the roll, every flag's value and the roll count. The end of every
// roll, and of a pass run between rolls.
void TakeScriptSnapshots(Game& g);
