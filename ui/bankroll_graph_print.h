#pragma once
// The bankroll graph on paper: several windows to a page, each under its
// header of files, figures and simulated time, sent to a printer.

#include <QString>
#include <QPainter>
#include <QStringList>
#include <vector>

#include "ui/bankroll_graph_view.h"

// Graphs that fit on one portrait page with their headers.
constexpr int kGraphsPerPage = 3;

struct PrintedGraph {
  QStringList header;  // the lines above the graph
  GraphPicture picture;
  GraphLook look;
};
using PrintedPage = std::vector<PrintedGraph>;

class QPrinter;

// Letter paper with even margins, before the player changes anything.
void PrepareGraphPrinter(QPrinter& printer, const QString& title);

// One print job that takes graphs one at a time, a new page after every
// kGraphsPerPage, so that Auto-Print's pages go out as the run goes on.
class GraphPrintJob {
 public:
  explicit GraphPrintJob(QPrinter& printer) : printer_(printer) {}
  ~GraphPrintJob() { Finish(); }
  GraphPrintJob(const GraphPrintJob&) = delete;
  GraphPrintJob& operator=(const GraphPrintJob&) = delete;

  // False when the printer cannot be started.
  bool Add(const PrintedGraph& graph);
  // Ends the job; false when the printer failed. Nothing is printed for a
  // job that was given no graph.
  bool Finish();
  int Graphs() const { return graphs_; }

 private:
  QPrinter& printer_;
  QPainter painter_;
  QRectF page_;
  int graphs_ = 0;
};

// One page in a job of its own; false when the printer failed.
bool PrintGraphPage(QPrinter& printer, const PrintedPage& page);

// The "finish printing now?" question of a page not yet full.
QString PagePrompt(int sentToPage);
