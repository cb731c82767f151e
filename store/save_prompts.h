#pragma once
// The questions that guard unsaved work. Each leaves its answer in
// g.MsgReply; the caller goes on unless it is Answer::Cancel.

struct Game;

// "Save Game?": the game (GameChanged) to its file.
void QuerySaveGame(Game& g);
// "Save Auto-Bets?": the script (ScriptDirty) to its ".bet" file.
void QuerySaveAutoBets(Game& g);
// The script editor's New and Open ask the same in words of their own.
void QuerySaveAutoBetsInEditor(Game& g);
// "Save Probabilities?": the percentage dice table (ProbModified).
void QuerySaveProbability(Game& g);

// The questions of a stop, the game first, then the script, then the
// probabilities. False as soon as one is cancelled.
bool QuerySaveAll(Game& g);

// The last of a stop: the game is saved to "default.crp", so the next start
// opens it as it stands, and the work files are closed and deleted.
void CloseDown(Game& g);

// The program stops: while a script pass or Hyper-Drive runs, whether to end
// it (No keeps the program going; Yes clears KeepRolling); the questions (unless `mayCancel` is false, their
// Cancel abandons the stop and false is returned), then CloseDown.
bool StopProgram(Game& g, bool mayCancel = true);
