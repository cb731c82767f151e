#pragma once
// The statistics screens by the menu command that opens them, so the main
// window and the steps viewer open the same screen for the same entry.

#include "ui/menu_tree.h"

class Dialogs;
class QWidget;
class StatisticsScreen;
class Table;

// Whether `command` opens a statistics screen.
bool IsStatisticsScreen(MenuCommand command);
// A new screen for `command`; nullptr for a command that opens none.
StatisticsScreen* MakeStatisticsScreen(MenuCommand command, Table& table, Dialogs& dialogs, QWidget* parent);
