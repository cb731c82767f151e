#pragma once
// Puts a game together: the table with everything built on it hung on its
// hooks. Every game that is played (a session, a run, a benchmark) is
// assembled once, right after it is made; a table without it rolls and
// settles but books no statistics, handles no decided bet, runs no script
// and keeps no games log.

struct Game;

void AssembleGame(Game& g);
