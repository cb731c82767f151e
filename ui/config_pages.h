#pragma once
// The Configure window's ten pages, made in tab order.

#include <QList>

class ConfigPage;
class Dialogs;
class SoundBoard;
class Table;

QList<ConfigPage*> MakeConfigPages(Table& table, Dialogs& dialogs, SoundBoard& sounds);
