#pragma once
// A statistics screen's figures as a plain report: a heading, a few lines
// above the table, the table itself and notes below. Each screen builds one
// from what it shows; printing and CSV export then need nothing else.

#include <QColor>
#include <QString>
#include <QStringList>
#include <vector>

class QPrinter;

struct ReportCell {
  QString text;
  QColor color;  // invalid: the page's text colour
};
using ReportRow = std::vector<ReportCell>;

struct ReportTable {
  QString heading;       // "Dicemill Summary"
  QStringList preamble;  // lines under the heading
  QStringList columns;   // may be empty for a two-column label/value list
  std::vector<ReportRow> rows;
  QStringList notes;  // lines under the table
};

// Plain rows from texts, for the many reports that need no colour.
ReportRow PlainRow(const QStringList& texts);

// Prints the report over as many pages as it needs, the heading and the
// column titles repeated on each. False when the printer fails.
bool PrintReport(QPrinter& printer, const ReportTable& report);

// The table as CSV (RFC 4180: a field with a comma, quote or line break is
// quoted), the column titles first; heading, preamble and notes are left out
// so that a spreadsheet reads the file as one table. False, with `error`
// set, when the file cannot be written; the old file is then left whole.
bool WriteReportCsv(const QString& path, const ReportTable& report, QString* error);
