#pragma once
// The bankroll graph on paper: several windows to a page, each under its
// header of files, figures and simulated time. Pages go to a PDF file.

#include <QString>
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

// False when the file cannot be written.
bool WriteGraphPages(const QString& path, const std::vector<PrintedPage>& pages);

// The "finish printing now?" question of a page not yet full.
QString PagePrompt(int sentToPage);
