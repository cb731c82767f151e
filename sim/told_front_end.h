#pragma once
// A front end with no screen that keeps what the table told it, each message
// as "Title: text" in the terminal's words, one to a line, and answers as a
// silent front end does. Tools that read a file through the table report its
// refusal from here.

#include <string>

#include "engine/frontend.h"
#include "sim/terminal_text.h"

class ToldFrontEnd : public SilentFrontEnd {
 public:
  Reply ShowMessage(const std::string& title, const std::string& text, Buttons b) override {
    told += (told.empty() ? "" : "\n") + title + ": " + TerminalText(text);
    return SilentFrontEnd::ShowMessage(title, text, b);
  }
  std::string told;
};
