#pragma once
// What a file routine made of its file. The routine itself shows nothing: it
// hands back what the user is to be told, and its caller decides whether and
// where to show it (a dialog, a JSON line, a failed batch set-up).

#include <string>
#include <vector>

struct Game;

// One message as a dialog shows it.
struct FileMessage {
  std::string Title;
  std::string Text;
  bool operator==(const FileMessage&) const = default;
};

struct [[nodiscard]] FileStatus {
  bool Ok = true;
  // In order: a failure's reason, and the notices of a file used all the
  // same (a linked file gone or changed since the game was saved).
  std::vector<FileMessage> Messages;

  static FileStatus Failed(std::string title, std::string text) {
    return {false, {{std::move(title), std::move(text)}}};
  }
  static FileStatus Failed(std::vector<FileMessage> messages) { return {false, std::move(messages)}; }
  // A notice that does not stop the routine.
  void Tell(std::string title, std::string text) { Messages.push_back({std::move(title), std::move(text)}); }
  // Another step's messages follow these; its failure does not fail this one.
  void Follow(const FileStatus& step) { Messages.insert(Messages.end(), step.Messages.begin(), step.Messages.end()); }
  // "Title: text" of the first message, "" when there is none.
  std::string FirstMessage() const;
  explicit operator bool() const { return Ok; }
};

// Shows every message of the status through the game's front end, in order;
// true when the routine succeeded.
bool ShowFileStatus(Game& g, const FileStatus& status);
