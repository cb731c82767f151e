#include "ui/games_log_choice.h"

#include "sim/table.h"
#include "ui/dialogs.h"

bool ChooseGamesLog(Table& table, Dialogs& dialogs) {
  const auto path = dialogs.FileName("Games Log File", "*.glg", FileMode::OpenOrCreate);
  if (!path || path->empty()) return false;
  const TableResult opened = table.OpenGamesLog(*path);
  // A busy table answers without a dialog of its own; the player hears why.
  if (opened.code == TableCode::Busy)
    dialogs.Message({"Games Log File", opened.text, Buttons::Ok, false});
  return opened.Done();
}
