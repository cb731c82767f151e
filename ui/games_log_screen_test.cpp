#include "ui/games_log_screen.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QTableView>
#include <fstream>
#include <gtest/gtest.h>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "store/games_log_file.h"
#include "ui/games_log_choice.h"
#include "ui/screen_desk_for_test.h"

namespace {

QString LabelText(const QWidget& screen, const QString& name) {
  const auto* label = screen.findChild<QLabel*>(name);
  return label ? label->text() : QStringLiteral("<no %1>").arg(name);
}

// What the screen said: every message but the table's "Save Game?" as a
// game ends.
std::vector<std::string> ScreenMessages(const ScreenDesk& desk) {
  std::vector<std::string> titles;
  for (const MessageRequest& m : desk.dialogs.messages)
    if (m.title != "Save Game?") titles.push_back(m.title);
  return titles;
}

QString Money(Currency value) { return QString::fromStdString(FormatNumberWithCommas(value)); }

// A game of Pass Line bets settled by the given throws, then a new game,
// which adds the finished one to the log.
void PlayAndFinish(ScreenDesk& desk, std::initializer_list<std::pair<int, int>> throws) {
  for (auto [d1, d2] : throws) {
    if (desk.table.State().BetAmount[bet::kPassLine] == 0) {
      ASSERT_TRUE(desk.table.Bet(bet::kPassLine, 10).Done());
    }
    ASSERT_TRUE(desk.table.Roll(d1, d2).Done());
  }
  desk.dialogs.replies.push_back(Reply::No);  // "Save Game?"
  ASSERT_TRUE(desk.table.New(false).Done());
}

// A log of three games won by 10, lost by 10 and won by 20, opened through
// the Game menu's chooser.
std::string LogThreeGames(ScreenDesk& desk) {
  const std::string path = desk.PathOf("session.glg");
  desk.dialogs.files.push_back(path);
  EXPECT_TRUE(ChooseGamesLog(desk.table, desk.dialogs));
  PlayAndFinish(desk, {{3, 4}});
  PlayAndFinish(desk, {{1, 1}});
  PlayAndFinish(desk, {{6, 5}, {3, 4}});
  return path;
}

TEST(GamesLogScreen, FiguresMatchTheLogsOwnStatistics) {
  ScreenDesk desk;
  const std::string path = LogThreeGames(desk);
  ASSERT_EQ(desk.dialogs.filesAsked.size(), 1u);
  EXPECT_EQ(desk.dialogs.filesAsked[0].pattern, "*.glg");
  EXPECT_EQ(desk.dialogs.filesAsked[0].mode, FileMode::OpenOrCreate);

  std::vector<GameLogRecord> games;
  ASSERT_TRUE(ReadGamesFile(path, games).Ok);
  ASSERT_EQ(games.size(), 3u);
  GamesStatistics expected;
  std::string error;
  ASSERT_TRUE(UpdateGamesPlayed(games, GamesView{}, expected, error)) << error;

  GamesLogScreen screen(desk.table, desk.dialogs);
  screen.show();
  EXPECT_EQ(LabelText(screen, "lblMean"), Money(expected.Mean));
  EXPECT_EQ(LabelText(screen, "lblMedian"), Money(expected.Median));
  EXPECT_EQ(LabelText(screen, "lblMedian"), QStringLiteral("10"));
  EXPECT_EQ(LabelText(screen, "lblMedianCaption"), QStringLiteral("Median"));
  EXPECT_EQ(LabelText(screen, "lblStdDev"), Money(expected.StdDev));
  EXPECT_EQ(LabelText(screen, "lblMode"), QStringLiteral("none"));
  EXPECT_EQ(LabelText(screen, "lblOutcomeCount0"), QStringLiteral("2"));
  EXPECT_EQ(LabelText(screen, "lblOutcomeShare0"), QStringLiteral("66.67 %"));
  EXPECT_EQ(LabelText(screen, "lblTotal"), QStringLiteral("3"));
  EXPECT_EQ(screen.findChild<QTableView*>("grdData")->model()->rowCount(), 3);

  // Leaving the won games out leaves one game, whose median is itself.
  screen.findChild<QCheckBox*>("chkInclude0")->setChecked(false);
  EXPECT_EQ(LabelText(screen, "lblMedian"), QStringLiteral("-10"));
  EXPECT_EQ(screen.findChild<QTableView*>("grdData")->model()->rowCount(), 1);

  // A fourth game is read as the log grows; an even count marks the median.
  screen.findChild<QCheckBox*>("chkInclude0")->setChecked(true);
  PlayAndFinish(desk, {{2, 2}, {3, 4}});
  EXPECT_EQ(LabelText(screen, "lblTotal"), QStringLiteral("4"));
  EXPECT_EQ(LabelText(screen, "lblMedianCaption"), QStringLiteral("   Median *"));
  EXPECT_TRUE(ScreenMessages(desk).empty());

  screen.findChild<QRadioButton*>("optDisplay1")->setChecked(true);
  const ReportTable report = screen.Report();
  EXPECT_EQ(report.columns, (QStringList{"Low", "High", "Games"}));
  EXPECT_EQ(static_cast<int>(report.rows.size()), 20);
}

TEST(GamesLogScreen, BreakPointRenamesAndResortsTheOutcomeRows) {
  ScreenDesk desk;
  LogThreeGames(desk);  // nets 10, -10, 20
  GamesLogScreen screen(desk.table, desk.dialogs);
  screen.show();
  struct Case {
    std::optional<std::pair<Currency, Currency>> answer;
    QStringList names;
    QStringList counts;
  };
  const Case cases[] = {
      {std::pair<Currency, Currency>{0, 0}, {"Won", "Broke-even", "Lost"}, {"2", "0", "1"}},
      {std::pair<Currency, Currency>{15, -10}, {"> 15", "-10 - 15", "< -10"}, {"1", "2", "0"}},
      {std::pair<Currency, Currency>{10, 10}, {"> 10", "10", "< 10"}, {"1", "1", "1"}},
      {std::nullopt, {"> 10", "10", "< 10"}, {"1", "1", "1"}},  // cancelled: as it was
  };
  for (const Case& c : cases) {
    desk.dialogs.messages.clear();
    desk.dialogs.numberPairs.push_back(c.answer);
    screen.SetBreakPoint();
    ASSERT_EQ(desk.dialogs.messages.size(), 1u);
    EXPECT_EQ(desk.dialogs.messages[0].title, "Set Break-point");
    EXPECT_EQ(desk.dialogs.messages[0].text,
              "Enter the break-point or range that you'd \rlike to use to sort this data:");
    for (int row = 0; row < 3; ++row) {
      SCOPED_TRACE(c.names[row].toStdString());
      EXPECT_EQ(LabelText(screen, QStringLiteral("lblOutcome%1").arg(row)), c.names[row]);
      EXPECT_EQ(screen.findChild<QCheckBox*>(QStringLiteral("chkInclude%1").arg(row))->text(), c.names[row]);
      EXPECT_EQ(LabelText(screen, QStringLiteral("lblOutcomeCount%1").arg(row)), c.counts[row]);
    }
  }
  // The prompt offers the break-point in force.
  EXPECT_EQ(desk.dialogs.offered.back(), Currency(10));
}

TEST(GamesLogScreen, SaysOnceWhenTheLogFileIsDamagedAndShowsNothingWithoutALog) {
  ScreenDesk desk;
  GamesLogScreen screen(desk.table, desk.dialogs);
  screen.show();
  EXPECT_EQ(LabelText(screen, "lblMean"), QString());
  EXPECT_EQ(LabelText(screen, "lblTotal"), QStringLiteral("0"));
  EXPECT_TRUE(LabelText(screen, "lblLogFile").startsWith("No games log is open"));

  const std::string path = LogThreeGames(desk);
  EXPECT_EQ(LabelText(screen, "lblTotal"), QStringLiteral("3"));
  std::ofstream(path, std::ios::binary | std::ios::trunc) << std::string(300, 'x');
  screen.Refresh();
  screen.Refresh();  // the same damaged file is not complained of twice
  EXPECT_EQ(ScreenMessages(desk), std::vector<std::string>{"Unable to Open Dicemill Games File"});
  EXPECT_EQ(LabelText(screen, "lblMean"), QString());
}

}  // namespace
