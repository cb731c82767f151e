#pragma once
// The games log's histogram: the included games of the chosen measure in
// bars from Mean - n to Mean + n standard deviations, the tallest bar's count
// at the top, Low, Mid and High along the bottom. Bars wholly below zero are
// drawn red, the others blue, so that losing games stand apart.

#include <QWidget>

#include "stats/games_log.h"

class GamesHistogram : public QWidget {
  Q_OBJECT
 public:
  explicit GamesHistogram(QWidget* parent = nullptr);

  // What to draw; an empty statistics (no game included) draws a note.
  void Show(const GamesStatistics& stats);

  QSize sizeHint() const override { return {520, 300}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  GamesStatistics stats_;
};
