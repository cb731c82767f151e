#pragma once
// "Roll Totals": how often each number, combination or die face has come up,
// as bars beside the counts and percentages, against the fair dice or the
// percentage dice in use. The view and the two colours are the player's
// settings and outlive the window.

#include <QColor>
#include <QList>

#include "stats/roll_views.h"
#include "ui/roll_pad.h"
#include "ui/statistics_screen.h"

class QAction;
class QLabel;
class QRadioButton;
class QScrollArea;
class RollTotalsBars;

class RollTotalsScreen : public StatisticsScreen {
  Q_OBJECT
 public:
  RollTotalsScreen(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);

  void Refresh() override;
  ReportTable Report() const override;
  void SettingChanged(const std::string& name) override;

  void SetView(TotalsView view);
  TotalsView View() const { return view_; }
  // True: the percentages compare with the percentage dice table.
  void SetSkewed(bool skewed);
  void SetColorChooser(ColorChooser chooser) { chooseColor_ = std::move(chooser); }
  const RollTotalsBars* Bars() const { return bars_; }

 private:
  void BuildMenus();
  void ChooseColour(bool background);
  void ApplyColours();

  TotalsView view_ = TotalsView::StandardNumbers;
  bool skewed_ = false;
  QColor background_, bar_;
  ColorChooser chooseColor_;
  QList<QAction*> viewActions_;
  RollTotalsBars* bars_ = nullptr;
  QScrollArea* scroll_ = nullptr;
  QLabel *totalRolls_ = nullptr, *skewedCaption_ = nullptr, *viewCaption_ = nullptr;
  QRadioButton* showProb_[2] = {};
};
