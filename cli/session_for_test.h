#pragma once
// A play session on string streams in a fresh data folder, for tests.

#include <sstream>
#include <string>
#include <vector>

#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "cli/temp_folder_for_test.h"
#include "engine/game.h"
#include "sim/table_for_test.h"

struct Session {
  TempFolder folder;
  std::ostringstream out;
  PlaySession play;
  explicit Session(bool strict = false, std::string gameFile = "")
      : play(out, PlayOptions{folder.path().string(), std::move(gameFile), strict}) {}

  // A state no command reaches, staged behind the table's back.
  Game& Staged() { return TableForTest::Staged(play.table()); }
  std::string Path(const char* name) const { return (folder.path() / name).string(); }
  // Runs the lines and returns the objects they printed.
  std::vector<Json> Run(const std::string& lines) {
    out.str("");
    std::istringstream in(lines);
    for (std::string line; std::getline(in, line);) play.RunLine(line);
    std::vector<Json> objects;
    std::istringstream printed(out.str());
    for (std::string line; std::getline(printed, line);) objects.push_back(Json::parse(line));
    return objects;
  }
  // The one object a command printed, by its kind ("state", "prob", ...).
  Json Only(const std::string& command, const char* kind) { return Run(command).at(0).at(kind); }
  Json State() { return Only("state", "state"); }
  std::string Error(const std::string& line) {
    auto objects = Run(line);
    return objects.size() == 1 && objects[0].contains("error") ? objects[0]["error"].get<std::string>() : "(none)";
  }
};
