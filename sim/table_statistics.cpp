// The table's statistics screens: the summary, and the bankroll graph with
// its moving average, scale, window and lines.

#include <tuple>

#include "sim/table_command.h"
#include "stats/bankroll_graph.h"
#include "stats/summary.h"

namespace {

// What the game file keeps of the graph's view: a change of any of it is a
// change of the game.
auto GraphView(const Game& g) {
  return std::tuple(g.MovingAverageRolls, g.AutoAdjustType, g.DisplayRefLines, g.RefLinePosition, g.GraphScale,
                    g.ManualScale, g.GraphTop);
}

}  // namespace

std::vector<SummaryRow> Table::Summary() { return ShowSummary(*game_); }

TableResult Table::SetGraphAverage(int32_t rolls) {
  return Command([&](Game& g) {
    const auto before = GraphView(g);
    SetMovingAverageRolls(g, rolls);
    return MarkUnsavedIf(GraphView(g) != before);
  });
}

TableResult Table::StepGraph(GraphStep step) {
  // No gate: the window is moved while the dice roll.
  if (LiveRunning()) {
    if (step == GraphStep::ScaleLarger || step == GraphStep::ScaleSmaller)
      live_->StepGraphScale(step == GraphStep::ScaleLarger);
    else
      live_->MoveGraphWindow(step == GraphStep::MoveUp);
    return {};
  }
  Game& g = *game_;
  const auto before = GraphView(g);
  switch (step) {
    case GraphStep::ScaleLarger:
      StepGraphScale(g, true);
      break;
    case GraphStep::ScaleSmaller:
      StepGraphScale(g, false);
      break;
    case GraphStep::MoveUp:
      MoveGraphWindow(g, true);
      break;
    case GraphStep::MoveDown:
      MoveGraphWindow(g, false);
      break;
  }
  return MarkUnsavedIf(GraphView(g) != before);
}

TableResult Table::SetGraphAdjust(int32_t type) {
  return Command([&](Game& g) {
    if (type < 0 || type > 2) return TableResult::Fail(TableCode::OutOfRange, "the scale adjusts by type 0, 1 or 2");
    const auto before = GraphView(g);
    g.AutoAdjustType = type;
    ResetBankrollGraph(g, false);
    return MarkUnsavedIf(GraphView(g) != before);
  });
}

TableResult Table::SetReferenceLines(int32_t first, int32_t second) {
  return Command([&](Game& g) {
    if (first < 1 || first > graph::kWindowPoints || second < 1 || second > graph::kWindowPoints)
      return TableResult::Fail(TableCode::OutOfRange,
                               "the lines stand on points 1 to " + std::to_string(graph::kWindowPoints));
    const auto before = GraphView(g);
    g.DisplayRefLines = true;
    g.RefLinePosition = {first, second};
    return MarkUnsavedIf(GraphView(g) != before);
  });
}

TableResult Table::ClearReferenceLines() {
  return Command([&](Game& g) {
    const auto before = GraphView(g);
    g.DisplayRefLines = false;
    g.RefLinePosition = {};
    return MarkUnsavedIf(GraphView(g) != before);
  });
}
