#include "ui/payoffs_page.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "engine/payoff_rows.h"
#include "sim/table.h"
#include "ui/dialogs.h"

namespace {

constexpr int kColumns = 3;
constexpr int kLastTopRow = kPayoffGridRows - PayoffsPage::kVisibleRows + 1;
constexpr std::array<const char*, kFieldPresetCount> kPresetNames = {
    "mnuSFField", "mnuSFPass",  "mnuSFDontPass", "mnuSFPlace6", "mnuSFPlaceLose8", "mnuSFBuy10",
    "mnuSFLay4",  "mnuSFHard8", "mnuSFHorn",     "mnuSFWorld",  "mnuSFHop13",      "mnuSFCrapless",
};

QString Amount(Currency value) { return QString::fromStdString(FormatNumberWithCommas(value)); }

int RowCount(PayoffTable table) { return table == PayoffTable::Bets ? kPayoffGridRows : PayoffsPage::kFieldRows; }

}  // namespace

// One of the two grids, painted: a header, then a row per record with its
// label and three cells. The bet grid shows the rows from the page's top row.
class PayoffGridView : public QWidget {
 public:
  PayoffGridView(PayoffsPage& page, PayoffTable table, const QString& objectName, const QString& heading)
      : QWidget(&page), page_(page), table_(table), heading_(heading) {
    setObjectName(objectName);
    if (table == PayoffTable::Field) labelFont_ = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    labelFont_.setPointSizeF(font().pointSizeF());
    const QFontMetrics fm(font());
    const QFontMetrics labels(labelFont_);
    rowHeight_ = fm.height() + 6;
    const QString widest = table == PayoffTable::Bets ? QStringLiteral("Don't Pass/Come (c.o.)")
                                                      : QString::fromLatin1(FieldRowLabel(2));
    widths_ = {labels.horizontalAdvance(widest) + 24, fm.horizontalAdvance(QStringLiteral("99,999.00")) + 12,
               fm.horizontalAdvance(QStringLiteral("for")) + 16, fm.horizontalAdvance(QStringLiteral("9,999")) + 12};
    setFixedSize(widths_[0] + widths_[1] + widths_[2] + widths_[3] + 1, rowHeight_ * (Rows() + 1) + 1);
    setFocusPolicy(Qt::NoFocus);
  }

  int Rows() const { return table_ == PayoffTable::Bets ? PayoffsPage::kVisibleRows : PayoffsPage::kFieldRows; }
  int FirstRow() const { return table_ == PayoffTable::Bets ? page_.TopRow() : 1; }
  bool InView(int row) const { return row >= FirstRow() && row < FirstRow() + Rows(); }

  // The cell of a record row, column -1 being the label.
  QRect CellRect(int row, int column) const {
    int x = 0;
    for (int c = -1; c < column; ++c) x += widths_[static_cast<size_t>(c + 1)];
    return {x, rowHeight_ * (row - FirstRow() + 1), widths_[static_cast<size_t>(column + 1)] + 1, rowHeight_ + 1};
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    const QPalette& pal = palette();
    p.fillRect(rect(), pal.base());
    const int width = this->width() - 1;
    // Header: the grid's name over the labels, "Payoff" over the three cells.
    p.fillRect(QRect(0, 0, width, rowHeight_), pal.button());
    QFont bold = font();
    bold.setBold(true);
    p.setFont(bold);
    p.setPen(pal.buttonText().color());
    p.drawText(QRect(8, 0, widths_[0] - 8, rowHeight_), Qt::AlignVCenter | Qt::AlignLeft, heading_);
    p.drawText(QRect(widths_[0], 0, width - widths_[0], rowHeight_), Qt::AlignCenter, QObject::tr("Payoff"));
    for (int i = 0; i < Rows(); ++i) {
      const int row = FirstRow() + i;
      const int y = rowHeight_ * (i + 1);
      if (i % 2 == 1) p.fillRect(QRect(0, y, width, rowHeight_), pal.alternateBase());
      const auto& texts = page_.Row(table_, row);
      const QRect label = CellRect(row, -1);
      p.setFont(labelFont_);
      p.setPen(pal.text().color());
      p.drawText(label.adjusted(8, 0, -4, 0), Qt::AlignVCenter | Qt::AlignLeft, texts.label);
      p.setFont(font());
      for (int c = 0; c < kColumns; ++c) {
        const QRect cell = CellRect(row, c).adjusted(0, 0, -1, -1);
        const bool chosen = page_.editing_ && page_.Chosen() == PayoffCell{table_, row, c};
        if (chosen) p.fillRect(cell, pal.highlight());
        p.setPen(chosen ? pal.highlightedText().color() : pal.text().color());
        const Qt::Alignment align = c == 1 ? Qt::AlignCenter : Qt::AlignVCenter | Qt::AlignRight;
        p.drawText(cell.adjusted(4, 0, -6, 0), align, texts.cells[static_cast<size_t>(c)]);
      }
    }
    // Lines: under every row, and between the label and the cells.
    p.setPen(pal.mid().color());
    for (int i = 0; i <= Rows() + 1; ++i) p.drawLine(0, rowHeight_ * i, width, rowHeight_ * i);
    int x = 0;
    p.drawLine(0, 0, 0, height() - 1);
    for (size_t c = 0; c < widths_.size(); ++c) {
      x += widths_[c];
      if (c != 1) p.drawLine(x, c == 0 ? 0 : rowHeight_, x, height() - 1);  // amount and word read as one
    }
  }

  void mousePressEvent(QMouseEvent* event) override {
    const int row = FirstRow() + event->position().toPoint().y() / rowHeight_ - 1;
    if (row < FirstRow() || !InView(row)) return;
    int column = 0;
    for (int c = 0; c < kColumns; ++c)
      if (CellRect(row, c).contains(event->position().toPoint())) column = c;
    page_.Choose({table_, row, column});
  }

  void wheelEvent(QWheelEvent* event) override {
    if (table_ != PayoffTable::Bets) return;
    page_.ScrollTo(page_.TopRow() - event->angleDelta().y() / 40);  // three rows a notch
  }

 private:
  PayoffsPage& page_;
  PayoffTable table_;
  QString heading_;
  QFont labelFont_ = font();
  int rowHeight_ = 20;
  std::array<int, 4> widths_{};
};

PayoffsPage::PayoffsPage(Table& table, Dialogs& dialogs, QWidget* parent)
    : ConfigPage(parent), table_(table), dialogs_(dialogs) {
  setObjectName(QStringLiteral("pagePayoffs"));
  bets_.resize(kPayoffGridRows);
  field_.resize(kFieldRows);

  grid_ = new PayoffGridView(*this, PayoffTable::Bets, QStringLiteral("picPayoffs"), tr("Bet"));
  fieldGrid_ = new PayoffGridView(*this, PayoffTable::Field, QStringLiteral("picFieldPayoffs"), tr("Field roll"));
  scroll_ = new QScrollBar(Qt::Vertical, this);
  scroll_->setObjectName(QStringLiteral("vsbPayoffs"));
  scroll_->setRange(0, kLastTopRow - 1);
  scroll_->setPageStep(kVisibleRows);
  scroll_->setFixedHeight(grid_->height());
  connect(scroll_, &QScrollBar::valueChanged, this, [this](int value) { ScrollTo(value + 1); });

  editor_ = new QLineEdit(this);
  editor_->setObjectName(QStringLiteral("txtPayoffs"));
  editor_->setFrame(false);
  editor_->hide();
  editor_->installEventFilter(this);

  auto* grids = new QHBoxLayout;
  grids->setSpacing(0);
  grids->addWidget(grid_, 0, Qt::AlignTop);
  grids->addWidget(scroll_, 0, Qt::AlignTop);
  grids->addSpacing(24);
  grids->addWidget(fieldGrid_, 0, Qt::AlignTop);
  grids->addStretch();
  auto* hint = new QLabel(
      tr("Type an amount and press Enter. In the middle column press T for \"to\" or F for \"for\"."), this);
  hint->setWordWrap(true);
  auto* page = new QVBoxLayout(this);
  page->addLayout(grids);
  page->addWidget(hint);
  page->addStretch();

  menu_ = new QMenu(tr("&Payoffs"), this);
  menu_->setObjectName(QStringLiteral("mnuPayoffs"));
  QAction* restore = menu_->addAction(tr("&Restore default payoffs"), this, &PayoffsPage::RestoreDefaults);
  restore->setObjectName(QStringLiteral("mnuRestoreDefaultPayoffs"));
  QMenu* presets = menu_->addMenu(tr("&Set Field payoffs to"));
  presets->setObjectName(QStringLiteral("mnuSetSuperField"));
  for (int i = 0; i < kFieldPresetCount; ++i) {
    QAction* preset = presets->addAction(QString::fromLatin1(FieldPresetCaption(i)), this, [this, i] {
      SetFieldPreset(i);
    });
    preset->setObjectName(QString::fromLatin1(kPresetNames[static_cast<size_t>(i)]));
  }
  Refresh();
}

// The editor loses focus as it is destroyed: that is no edit to commit.
PayoffsPage::~PayoffsPage() { editor_->removeEventFilter(this); }

const PayoffsPage::RowText& PayoffsPage::Row(PayoffTable table, int row) const {
  return (table == PayoffTable::Bets ? bets_ : field_)[static_cast<size_t>(row - 1)];
}

std::array<QString, 3> PayoffsPage::CellTexts(PayoffTable table, int row) const { return Row(table, row).cells; }

void PayoffsPage::Refresh() {
  if (table_.Busy()) return;
  const Game& g = table_.State();
  auto fill = [](RowText& text, const PayoffRecord& p) {
    text.cells = {Amount(PayoffShownAmount(p)), QString::fromLatin1(PayoffFormWord(p)), Amount(p.Per)};
  };
  for (int row = 1; row <= kPayoffGridRows; ++row) {
    const int id = PayoffGridBet(row);
    bets_[static_cast<size_t>(row - 1)].label = QString::fromStdString(PayoffRowLabel(g, id));
    fill(bets_[static_cast<size_t>(row - 1)], g.Payoff[id]);
  }
  for (int row = 1; row <= kFieldRows; ++row) {
    field_[static_cast<size_t>(row - 1)].label = QString::fromLatin1(FieldRowLabel(row));
    fill(field_[static_cast<size_t>(row - 1)], g.FieldPayoff[row]);
  }
  top_ = std::clamp(g.PayoffScrollTop + 1, 1, kLastTopRow);
  const QSignalBlocker quiet(scroll_);
  scroll_->setValue(top_ - 1);
  PlaceEditor();
  grid_->update();
  fieldGrid_->update();
}

void PayoffsPage::ScrollTo(int top) {
  top = std::clamp(top, 1, kLastTopRow);
  if (top == top_) return;
  if (chosen_.table == PayoffTable::Bets) Commit();  // the cell may leave the view
  top_ = top;
  {
    const QSignalBlocker quiet(scroll_);
    scroll_->setValue(top - 1);
  }
  table_.Set("PayoffScrollTop", top - 1);
  PlaceEditor();
  grid_->update();
}

void PayoffsPage::ShowRow(PayoffTable table, int row) {
  row = std::clamp(row, 1, RowCount(table));
  if (table == PayoffTable::Bets) {
    if (row < top_) ScrollTo(row);
    if (row >= top_ + kVisibleRows) ScrollTo(row - kVisibleRows + 1);
  }
  Choose({table, row, 0});
}

void PayoffsPage::Choose(const PayoffCell& cell) {
  Commit();
  chosen_ = cell;
  editing_ = true;
  if (cell.table == PayoffTable::Bets && !grid_->InView(cell.row))
    ScrollTo(cell.row < top_ ? cell.row : cell.row - kVisibleRows + 1);
  PlaceEditor();
  editor_->setFocus();
  if (cell.column != 1) editor_->selectAll();
  grid_->update();
  fieldGrid_->update();
}

void PayoffsPage::PlaceEditor() {
  PayoffGridView* view = chosen_.table == PayoffTable::Bets ? grid_ : fieldGrid_;
  if (!editing_ || !view->InView(chosen_.row)) {
    editor_->hide();
    return;
  }
  const QRect cell = view->CellRect(chosen_.row, chosen_.column).adjusted(1, 1, -1, -1);
  editor_->setGeometry(QRect(view->mapTo(this, cell.topLeft()), cell.size()));
  editor_->setAlignment(chosen_.column == 1 ? Qt::AlignCenter : Qt::AlignRight | Qt::AlignVCenter);
  // The middle cell takes keys, not typing.
  editor_->setReadOnly(chosen_.column == 1);
  if (!editor_->isModified())
    editor_->setText(Row(chosen_.table, chosen_.row).cells[static_cast<size_t>(chosen_.column)]);
  editor_->show();
  editor_->raise();
}

void PayoffsPage::Commit() {
  if (committing_ || !editor_->isModified() || chosen_.column == 1) return;
  committing_ = true;
  editor_->setModified(false);
  const int record = chosen_.table == PayoffTable::Bets ? PayoffGridBet(chosen_.row) : chosen_.row;
  const std::string title =
      "Payoff ratio error on " +
      (chosen_.table == PayoffTable::Bets ? Row(chosen_.table, chosen_.row).label.toStdString() : std::string("Field"));
  Currency typed;
  if (!ParseCurrency(editor_->text().trimmed().toStdString(), typed)) {
    dialogs_.Message({title, "Please enter a number.", Buttons::Ok, false});
  } else if (const TableResult r = table_.EditPayoffCell(chosen_.table, record, chosen_.column, typed);
             !r.Done() && r.code != TableCode::Busy) {
    dialogs_.Message({title, "The units bet must be greater than zero.", Buttons::Ok, false});
  }
  committing_ = false;
  Refresh();
}

void PayoffsPage::CommitPendingEdit() { Commit(); }

void PayoffsPage::Move(int rows, int columns) {
  PayoffCell next = chosen_;
  next.column += columns;
  // Right of the bet grid is the Field grid, at the same height on the page.
  if (next.column > 2 && next.table == PayoffTable::Bets) {
    next = {PayoffTable::Field, std::clamp(next.row - top_ + 1, 1, kFieldRows), 0};
  } else if (next.column < 0 && next.table == PayoffTable::Field) {
    next = {PayoffTable::Bets, top_ + std::min(next.row, kVisibleRows) - 1, 2};
  }
  next.column = std::clamp(next.column, 0, 2);
  next.row = std::clamp(next.row + rows, 1, RowCount(next.table));
  if (!(next == chosen_)) Choose(next);
}

bool PayoffsPage::eventFilter(QObject* watched, QEvent* event) {
  if (watched != editor_) return ConfigPage::eventFilter(watched, event);
  if (event->type() == QEvent::FocusOut) Commit();
  if (event->type() != QEvent::KeyPress) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Commit();
      editor_->selectAll();
      return true;
    case Qt::Key_Up: Move(-1, 0); return true;
    case Qt::Key_Down: Move(1, 0); return true;
    case Qt::Key_Left: Move(0, -1); return true;
    case Qt::Key_Right: Move(0, 1); return true;
    default: break;
  }
  if (chosen_.column != 1 || key->text().isEmpty()) return false;
  const char c = key->text().at(0).toLatin1();
  const int record = chosen_.table == PayoffTable::Bets ? PayoffGridBet(chosen_.row) : chosen_.row;
  if (c == 't' || c == 'T' || c == 'f' || c == 'F') {
    table_.EditPayoffCell(chosen_.table, record, 1, c);  // a key that changes nothing is no fault
    Refresh();
  }
  return true;
}

void PayoffsPage::RestoreDefaults() {
  Commit();
  const MessageAnswer answer = dialogs_.Message(
      {"Confirm?", "Do you want to restore all payoffs to their original Dicemill settings?", Buttons::YesNo, false});
  if (answer.reply != Reply::Yes) return;
  table_.RestoreDefaultPayoffs();
  Refresh();
}

void PayoffsPage::SetFieldPreset(int preset) {
  Commit();
  table_.SetFieldPreset(preset);
  Refresh();
}

void FillSamplePayoffs(Table& table) {
  table.EditPayoffCell(PayoffTable::Bets, bet::kPlaceBase + bet::NumberIndex(6), 1, 'f');
  table.SetFieldPreset(3);  // Place 6
}

void PayoffsPage::SelectFault(const QString& control, int index) {
  if (index < 1) return;
  ShowRow(control == QLatin1String("picFieldPayoffs") ? PayoffTable::Field : PayoffTable::Bets, index);
}
