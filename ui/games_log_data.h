#pragma once
// The games of a log as a table for a view: one row per included game, the
// game's number in the log and its measures, net figures coloured by sign.
// A model rather than a table of items, since a log may hold many thousands
// of games.

#include <QAbstractTableModel>
#include <vector>

#include "stats/games_log.h"

class GamesLogData : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  // The games the view lets in, with their numbers in the log (from 1).
  void Show(const std::vector<GameLogRecord>& games, const GamesView& view);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Row {
    int64_t number;
    const GameLogRecord* game;
  };
  std::vector<Row> rows_;
};
