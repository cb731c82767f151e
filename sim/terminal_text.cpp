#include "sim/terminal_text.h"

#include <cctype>
#include <cstring>

namespace {

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
  for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

}  // namespace

std::string TerminalText(std::string text) {
  ReplaceAll(text, "\r\n", "\n");
  for (char& c : text)
    if (c == '\r') c = '\n';
  // A break inside a sentence ("wrong.bet" / "has either been ...") is a space.
  for (size_t i = 1; i + 1 < text.size(); ++i)
    if (text[i] == '\n' && text[i - 1] != '\n' && text[i + 1] != '\n' && !std::strchr(".:!?", text[i - 1]) &&
        std::islower(static_cast<unsigned char>(text[i + 1])))
      text[i] = ' ';
  // Every run and every `play` session starts from a new game of its own.
  ReplaceAll(text, "Select \"New\" from the \"Game\" menu to reset the table.",
             "A new run (or \"new\" in play) starts a fresh table.");
  while (!text.empty() && (text.back() == '\n' || text.back() == ' ')) text.pop_back();
  return text;
}

std::string FileProblem(const std::string& path, const std::string& problem) {
  return path + ": " + TerminalText(problem);
}
