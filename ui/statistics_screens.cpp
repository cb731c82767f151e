#include "ui/statistics_screens.h"

#include "ui/bet_results_screen.h"
#include "ui/bet_trends_screen.h"
#include "ui/chip_stacks_screen.h"
#include "ui/flags_screen.h"
#include "ui/games_log_screen.h"
#include "ui/roll_frequencies_screen.h"
#include "ui/roll_totals_screen.h"
#include "ui/summary_screen.h"

StatisticsScreen* MakeStatisticsScreen(MenuCommand command, Table& table, Dialogs& dialogs, QWidget* parent) {
  switch (command) {
    case MenuCommand::Summary: return new SummaryScreen(table, dialogs, parent);
    case MenuCommand::RollTotals: return new RollTotalsScreen(table, dialogs, parent);
    case MenuCommand::RollFrequencies: return new RollFrequenciesScreen(table, dialogs, parent);
    case MenuCommand::BetResults: return new BetResultsScreen(table, dialogs, parent);
    case MenuCommand::BetTrends: return new BetTrendsScreen(table, dialogs, parent);
    case MenuCommand::GamesLog: return new GamesLogScreen(table, dialogs, parent);
    case MenuCommand::ChipStacks: return new ChipStacksScreen(table, dialogs, parent);
    case MenuCommand::Flags: return new FlagsScreen(table, dialogs, parent);
    default: return nullptr;
  }
}

bool IsStatisticsScreen(MenuCommand command) {
  switch (command) {
    case MenuCommand::Summary:
    case MenuCommand::RollTotals:
    case MenuCommand::RollFrequencies:
    case MenuCommand::BetResults:
    case MenuCommand::BetTrends:
    case MenuCommand::GamesLog:
    case MenuCommand::ChipStacks:
    case MenuCommand::Flags: return true;
    default: return false;
  }
}
