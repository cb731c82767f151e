#pragma once
// `dicemill-cli merge`: the JSON reports of parts of one batch, each run with
// its own --first-game, combined into the report one run of every game
// would have given (the time taken aside).

#include <ostream>
#include <string>
#include <vector>

#include "cli/json_lines.h"

namespace CLI {
class App;
}

// False, with `error` naming the file, when the reports are not the parts
// of one batch: other options, games missing between them or given twice.
bool MergeRunReports(const std::vector<std::string>& names, const std::vector<Json>& reports, Json& merged,
                     std::string& error);

CLI::App* AddMergeTool(CLI::App& app, std::vector<std::string>& files);
int RunMergeTool(const std::vector<std::string>& files, std::ostream& out, std::ostream& err);
