#pragma once
// The games log: every game the log holds, one measure of them at a time,
// as data or as a histogram, with the measure's statistics and the count of
// games won, broken even and lost (or above, within and below a
// break-point). The log is read again only when its file has changed, which
// happens as a game ends.

#include <QDateTime>
#include <array>
#include <string>
#include <vector>

#include "stats/games_log.h"
#include "ui/statistics_screen.h"

class GamesHistogram;
class GamesLogData;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QRadioButton;
class QSpinBox;
class QStackedWidget;
class QTableView;

class GamesLogScreen : public StatisticsScreen {
  Q_OBJECT
 public:
  GamesLogScreen(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);
  ~GamesLogScreen() override;

  void Refresh() override;
  ReportTable Report() const override;
  // Opening another log marks the game changed: the screen follows it.
  void UnsavedChanged(bool unsaved) override;

  // mnuSetBreakPoint: asks for the break-point and sorts the games by it.
  void SetBreakPoint();
  const GamesStatistics& Statistics() const { return stats_; }

 private:
  enum Display { kData, kHistogram };
  // Reads the log if it is another file or has changed since it was read.
  void LoadIfChanged();
  // Works the statistics out again for the view as the controls set it.
  void Recalculate();
  void ShowStatistics();
  void ShowOutcomes();

  GamesView view_;
  std::vector<GameLogRecord> games_;
  GamesStatistics stats_;
  // The file as last read: its path, time and size, so a refresh after a
  // roll does not read it again. -2: nothing read yet, not even "no log".
  std::string loadedPath_;
  QDateTime loadedTime_;
  qint64 loadedSize_ = -2;

  QLabel* logFile_ = nullptr;
  QLabel* status_ = nullptr;
  QComboBox* measure_ = nullptr;
  std::array<QCheckBox*, 3> include_{};
  std::array<QRadioButton*, 2> display_{};
  QStackedWidget* pages_ = nullptr;
  QTableView* dataView_ = nullptr;
  GamesLogData* data_ = nullptr;
  GamesHistogram* histogram_ = nullptr;
  QSpinBox* valueCount_ = nullptr;
  QDoubleSpinBox* sdCount_ = nullptr;
  QLabel* range_ = nullptr;
  QLabel* mid_ = nullptr;
  QLabel* medianCaption_ = nullptr;
  std::array<QLabel*, 6> figures_{};  // Mean, Median, Std Dev, Skew, Kurtosis, Mode
  std::array<QLabel*, 3> outcomeNames_{}, outcomeCounts_{}, outcomeShares_{};
  QLabel* totalCount_ = nullptr;
};
