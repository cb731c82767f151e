#pragma once
// "Bet Results": how the selected bets have done, added together, either as
// the wagers the player actually made or as a continuous $1 phantom wager
// on every bet, so that any bet can be judged against the same dice. The
// rows are the engine's measures; Net and Net % are coloured by sign.

#include <vector>

#include "stats/bet_results_view.h"
#include "ui/statistics_screen.h"

class QLabel;
class QListWidget;
class QRadioButton;
class QTableWidget;

class BetResultsScreen : public StatisticsScreen {
  Q_OBJECT
 public:
  BetResultsScreen(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  void Refresh() override;
  ReportTable Report() const override;

  // results::kPhantom or results::kActual; the radio buttons optDataType0
  // and optDataType1 stand for the kinds of the same numbers.
  void SetKind(int kind);
  int Kind() const { return kind_; }
  // BetIds 1..83 of the list's selection, in list order.
  std::vector<int> SelectedBets() const;
  void SelectBets(const std::vector<int>& betIds);
  void SelectAll();

 protected:
  bool ReadyToPrint() override;

 private:
  QLabel* Figure(const char* name);

  int kind_ = 1;
  BetResultsView view_;
  QListWidget* bets_ = nullptr;
  QRadioButton* kinds_[2] = {};
  QTableWidget* grid_ = nullptr;
  QLabel *current_ = nullptr, *lastRoll_ = nullptr, *rolls_ = nullptr, *rollsPerHour_ = nullptr,
         *hours_ = nullptr;
};
