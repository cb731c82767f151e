#include "ui/report_table.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QSaveFile>
#include <QTextStream>
#include <algorithm>

namespace {

constexpr int kFontPoints = 10;
constexpr double kColumnGap = 2;  // in widths of "0"

QString CsvField(const QString& text) {
  if (!text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('"')) && !text.contains(QLatin1Char('\n')))
    return text;
  QString quoted = text;
  quoted.replace(QLatin1String("\""), QLatin1String("\"\""));
  return QLatin1Char('"') + quoted + QLatin1Char('"');
}

QString CsvLine(const QStringList& fields) {
  QStringList out;
  for (const QString& f : fields) out << CsvField(f);
  return out.join(QLatin1Char(','));
}

// Each column as wide as its widest entry; figures line up on the right,
// the first column (the row's name) on the left.
std::vector<double> ColumnWidths(const QFontMetricsF& m, const ReportTable& r) {
  size_t count = static_cast<size_t>(r.columns.size());
  for (const ReportRow& row : r.rows) count = std::max(count, row.size());
  std::vector<double> widths(count, 0);
  for (size_t c = 0; c < static_cast<size_t>(r.columns.size()); ++c)
    widths[c] = m.horizontalAdvance(r.columns[static_cast<qsizetype>(c)]);
  for (const ReportRow& row : r.rows)
    for (size_t c = 0; c < row.size(); ++c) widths[c] = std::max(widths[c], m.horizontalAdvance(row[c].text));
  for (double& w : widths) w += kColumnGap * m.horizontalAdvance(QLatin1Char('0'));
  return widths;
}

class ReportPainter {
 public:
  ReportPainter(QPrinter& printer, QPainter& painter, const ReportTable& report)
      : printer_(printer), p_(painter), r_(report), m_(painter.font()), widths_(ColumnWidths(m_, report)) {}

  bool Paint() {
    StartPage(true);
    for (const ReportRow& row : r_.rows) {
      if (!Room() && !NewPage()) return false;
      PaintRow(row, false);
    }
    y_ += m_.lineSpacing();
    for (const QString& note : r_.notes) {
      if (!Room() && !NewPage()) return false;
      Line(note);
    }
    return true;
  }

 private:
  bool Room() const { return y_ + m_.lineSpacing() <= printer_.height(); }

  bool NewPage() {
    if (!printer_.newPage()) return false;
    StartPage(false);
    return true;
  }

  void StartPage(bool first) {
    y_ = 0;
    QFont bold = p_.font();
    bold.setBold(true);
    p_.save();
    p_.setFont(bold);
    Line(r_.heading + (first ? QString() : QStringLiteral(" (continued)")));
    p_.restore();
    if (first)
      for (const QString& line : r_.preamble) Line(line);
    y_ += m_.lineSpacing() / 2;
    if (!r_.columns.isEmpty()) {
      ReportRow titles;
      for (const QString& c : r_.columns) titles.push_back({c, {}});
      PaintRow(titles, true);
    }
  }

  void Line(const QString& text) {
    p_.drawText(QPointF(0, y_ + m_.ascent()), text);
    y_ += m_.lineSpacing();
  }

  void PaintRow(const ReportRow& row, bool titles) {
    double x = 0;
    const QPen text = p_.pen();
    for (size_t c = 0; c < row.size(); ++c) {
      const double w = widths_[c];
      if (row[c].color.isValid()) p_.setPen(row[c].color);
      const QRectF cell(x, y_, w - kColumnGap * m_.horizontalAdvance(QLatin1Char('0')) / 2, m_.lineSpacing());
      p_.drawText(cell, (c == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter, row[c].text);
      p_.setPen(text);
      x += w;
    }
    y_ += m_.lineSpacing();
    if (titles) {
      p_.drawLine(QPointF(0, y_), QPointF(std::min<double>(x, printer_.width()), y_));
      y_ += m_.lineSpacing() / 4;
    }
  }

  QPrinter& printer_;
  QPainter& p_;
  const ReportTable& r_;
  QFontMetricsF m_;
  std::vector<double> widths_;
  double y_ = 0;
};

}  // namespace

ReportRow PlainRow(const QStringList& texts) {
  ReportRow row;
  for (const QString& t : texts) row.push_back({t, {}});
  return row;
}

bool PrintReport(QPrinter& printer, const ReportTable& report) {
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  // Sized in points for the printer's own resolution, so the page reads the
  // same on paper and in a PDF.
  painter.setFont(QFont(QFont(QStringLiteral("Sans Serif"), kFontPoints), &printer));
  const bool ok = ReportPainter(printer, painter, report).Paint();
  return painter.end() && ok;
}

bool WriteReportCsv(const QString& path, const ReportTable& report, QString* error) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
    if (error) *error = file.errorString();
    return false;
  }
  QTextStream out(&file);
  if (!report.columns.isEmpty()) out << CsvLine(report.columns) << '\n';
  for (const ReportRow& row : report.rows) {
    QStringList texts;
    for (const ReportCell& cell : row) texts << cell.text;
    out << CsvLine(texts) << '\n';
  }
  out.flush();
  if (!file.commit()) {
    if (error) *error = file.errorString();
    return false;
  }
  return true;
}
