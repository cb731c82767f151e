// The graph's mapping: points to columns and back, and the money at the grid.
#include "ui/bankroll_graph_view.h"

#include <gtest/gtest.h>

namespace {

TEST(BankrollGraphView, EveryPointOfTheWindowHasItsOwnColumn) {
  for (const QSize size : {QSize(605, 316), QSize(340, 200), QSize(1200, 700)}) {
    BankrollGraphView view;
    view.resize(size);
    for (int point : {1, 2, 262, 524, 525}) EXPECT_EQ(view.PointAt(view.XOf(point)), point) << size.width();
    // Beyond the plot the nearest edge point is taken.
    EXPECT_EQ(view.PointAt(-40), 1);
    EXPECT_EQ(view.PointAt(size.width() + 40), 525);
  }
}

TEST(BankrollGraphView, GridLinesAreFiftyScaleUnitsApart) {
  struct Case {
    Currency top, scale;
    QStringList labels;
  };
  const Case cases[] = {
      {500, 1, {"500", "450", "400", "350", "300", "250", "200"}},
      {0, 1000, {"0", "-50,000", "-100,000", "-150,000", "-200,000", "-250,000", "-300,000"}},
      {3, Currency::FromRaw(200), {"3", "2", "1", "0", "-1", "-2", "-3"}},  // 0.02 a row
      {1, Currency::FromRaw(100), {"1", ".50", "0", "-.50", "-1", "-1.50", "-2"}},
  };
  for (const Case& c : cases) {
    GraphPicture picture;
    picture.top = c.top;
    picture.scale = c.scale;
    EXPECT_EQ(GridLabels(picture), c.labels) << c.labels.join(' ').toStdString();
  }
}

}  // namespace
