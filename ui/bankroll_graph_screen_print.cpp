// The screen's printing: Print Now fills a page of graphs and asks before it
// is finished; Auto-Print adds every full window it sees to its own file.

#include <QPrinter>
#include <optional>

#include "engine/game.h"
#include "sim/table.h"
#include "stats/game_measures.h"
#include "ui/bankroll_graph_screen.h"
#include "ui/dialogs.h"

namespace {

QString Count(int64_t n) { return QString::fromStdString(FormatWithCommas(n)); }
QString Money(Currency c) { return QString::fromStdString(FormatNumberWithCommas(c)); }
QString Text(const std::string& s) { return QString::fromStdString(s); }

}  // namespace

PrintedGraph BankrollGraphScreen::CurrentGraph() const {
  PrintedGraph printed{files_, picture_, look_};
  printed.header << tr("High:  ") + Money(high_) + tr("  Current:  ") + Money(current_) + tr("  Low:  ") + Money(low_);
  const double rate = static_cast<double>(rate_.raw) / Currency::kScale;
  printed.header << Count(rolls_) + tr(" rolls @ ") + Text(RollsPerHourText(rate_)) + tr(" rolls/hr = ") +
                        Text(SimHoursText(rate > 0 ? static_cast<double>(rolls_) / rate : 0)) + tr(" sim hrs");
  if (picture_.withAverage)
    printed.header << (averageRolls_ <= 0 ? tr("All rolls average") : Text(MovingAverageCaption(averageRolls_)));
  return printed;
}

void BankrollGraphScreen::PrintNow() {
  if (table_.Busy()) {
    if (dialogs_.Message({"Hyper-Drive Active", "Do you want to stop Hyper-Drive?", Buttons::YesNo, false}).reply !=
        Reply::Yes)
      return;
    emit StopRequested();
  }
  page_.push_back(CurrentGraph());
  const int sent = static_cast<int>(page_.size());
  if (sent < kGraphsPerPage &&
      dialogs_.Message({"Print Now", PagePrompt(sent).toStdString(), Buttons::YesNo, false}).reply != Reply::Yes)
    return;
  QPrinter printer(QPrinter::HighResolution);
  PrepareGraphPrinter(printer, tr("Bankroll graph"));
  if (dialogs_.ChoosePrinter(printer, "Print Bankroll Graph") && !PrintGraphPage(printer, page_))
    dialogs_.Message({"Print Now", "The graph could not be printed.", Buttons::Ok, false});
  page_.clear();
}

bool BankrollGraphScreen::StartAutoPrintJob() {
  autoPrinter_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  PrepareGraphPrinter(*autoPrinter_, tr("Bankroll graph"));
  if (!dialogs_.ChoosePrinter(*autoPrinter_, "Auto-Print Bankroll Graph")) {
    autoPrinter_.reset();
    return false;
  }
  autoJob_ = std::make_unique<GraphPrintJob>(*autoPrinter_);
  return true;
}

void BankrollGraphScreen::ToggleAutoPrint(bool on) {
  if (on) {
    if (!StartAutoPrintJob()) {
      SyncMenus();
      return;
    }
    lastAutoPrinted_ = picture_.count == graph::kWindowPoints ? picture_.firstRoll : -1;
    Choose(Switch::AutoPrint, 1);
  } else {
    // A page begun is finished when the printing stops.
    autoJob_.reset();
    autoPrinter_.reset();
    Choose(Switch::AutoPrint, 0);
  }
}

void BankrollGraphScreen::AutoPrintFullWindow() {
  if (picture_.firstRoll == lastAutoPrinted_) return;
  lastAutoPrinted_ = picture_.firstRoll;
  // The game came with Auto-Print on: its printer is asked for at its first page.
  if (!autoJob_ && !StartAutoPrintJob()) {
    Choose(Switch::AutoPrint, 0);
    return;
  }
  if (!autoJob_->Add(CurrentGraph())) {
    ToggleAutoPrint(false);
    dialogs_.Message({"Auto-Print", "The printer could not be started.", Buttons::Ok, false});
  }
}
