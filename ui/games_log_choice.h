#pragma once
// Game > "Games Log File ...": chooses the log each finished game is added
// to, or names a new one, which the table then makes. The log is linked in
// the game, so it stays in use when the game is opened again.

class Dialogs;
class Table;

// False when the player cancelled or the table refused the file (it has
// then said why).
bool ChooseGamesLog(Table& table, Dialogs& dialogs);
