#include "ui/games_log_data.h"

#include <QColor>

#include "ui/signed_cells.h"

namespace {

// Column 0 is the game's number; the others are the fields in log order.
constexpr int kNumberColumn = 0;

// The fields whose sign says won or lost.
bool IsNet(int field) {
  return field == logfield::kNetBetsWon || field == logfield::kNetAmountWon ||
         field == logfield::kAdvantagePercent || field == logfield::kNetResult;
}

}  // namespace

void GamesLogData::Show(const std::vector<GameLogRecord>& games, const GamesView& view) {
  beginResetModel();
  rows_.clear();
  for (size_t i = 0; i < games.size(); ++i)
    if (view.Include[static_cast<size_t>(OutcomeRow(view, games[i][logfield::kNetAmountWon]))])
      rows_.push_back({static_cast<int64_t>(i) + 1, &games[i]});
  endResetModel();
}

int GamesLogData::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int GamesLogData::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : 1 + logfield::kMeasures; }

QVariant GamesLogData::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Row& row = rows_[static_cast<size_t>(index.row())];
  const int field = index.column() - 1;
  switch (role) {
    case Qt::DisplayRole:
      if (index.column() == kNumberColumn) return QString::fromStdString(FormatWithCommas(row.number));
      return QString::fromStdString(FormatNumberWithCommas((*row.game)[static_cast<size_t>(field)]));
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ForegroundRole: {
      if (index.column() == kNumberColumn || !IsNet(field)) return {};
      const Currency value = (*row.game)[static_cast<size_t>(field)];
      const QColor color = signed_cells::TextColor(value > 0 ? 1 : (value < 0 ? -1 : 0));
      return color.isValid() ? QVariant(color) : QVariant();
    }
    default:
      return {};
  }
}

QVariant GamesLogData::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  if (section == kNumberColumn) return QStringLiteral("Game");
  return QString::fromLatin1(MeasureName(section - 1));
}
