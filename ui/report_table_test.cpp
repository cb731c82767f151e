#include "ui/report_table.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>

TEST(ReportTable, CsvQuotesOnlyWhatNeedsIt) {
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("r.csv"));
  ReportTable r;
  r.heading = QStringLiteral("left out");
  r.columns = {QStringLiteral("Bet"), QStringLiteral("Net $")};
  r.rows = {PlainRow({QStringLiteral("Place 6"), QStringLiteral("1,234.50")}),
            PlainRow({QStringLiteral("say \"hi\""), QStringLiteral("-7")})};
  ASSERT_TRUE(WriteReportCsv(path, r, nullptr));
  QFile f(path);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  EXPECT_EQ(f.readAll(), QByteArray("Bet,Net $\nPlace 6,\"1,234.50\"\n\"say \"\"hi\"\"\",-7\n"));

  QString error;
  EXPECT_FALSE(WriteReportCsv(dir.filePath(QStringLiteral("no/such/folder/r.csv")), r, &error));
  EXPECT_FALSE(error.isEmpty());
}

TEST(ReportTable, ALongReportPrintsOverSeveralPages) {
  QTemporaryDir dir;
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(dir.filePath(QStringLiteral("r.pdf")));
  ReportTable r;
  r.heading = QStringLiteral("Dicemill Roll Frequencies");
  r.columns = {QStringLiteral("Selection"), QStringLiteral("Count")};
  for (int i = 0; i < 200; ++i) r.rows.push_back(PlainRow({QString::number(i), QString::number(i * i)}));
  ASSERT_TRUE(PrintReport(printer, r));
  QFile pdf(printer.outputFileName());
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  const QString text = QString::fromLatin1(pdf.readAll());
  EXPECT_GE(text.count(QRegularExpression(QStringLiteral("/Type /Page[^s]"))), 3);
}
