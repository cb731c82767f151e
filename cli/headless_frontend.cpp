#include "cli/headless_frontend.h"

#include <array>
#include <iostream>

#include "cli/json_lines.h"
#include "sim/table.h"

namespace {

// Button words of the won dialog (indexes 0..6) and of the lost dialog (0..4).
constexpr std::array<const char*, 7> kWonWords = {"take", "same", "press", "double", "parlay", "samebet", "bet"};
constexpr std::array<const char*, 5> kLostWords = {"none", "remainder", "same", "press", "double"};

template <size_t N>
std::optional<int> IndexOf(const std::array<const char*, N>& words, const std::string& word) {
  for (size_t i = 0; i < N; ++i)
    if (word == words[i]) return static_cast<int>(i);
  return std::nullopt;
}

bool IsAmount(const std::string& word) {
  Currency ignored;
  return !word.empty() && word.find_first_not_of("+-0123456789.,") == std::string::npos &&
         ParseCurrency(word, ignored);
}

void WriteMessage(std::ostream& out, const std::string& title, const std::string& text, Json reply) {
  WriteJsonLine(out, {{"message", {{"title", title}, {"text", text}, {"reply", std::move(reply)}}}});
}

void NoteUnfitAnswer(const std::string& word, const std::string& title) {
  std::cerr << "dicemill-cli: answer '" << word << "' does not fit the dialog \"" << title
            << "\"; its default was taken\n";
}

}  // namespace

bool HeadlessFrontEnd::IsAnswerWord(const std::string& word) {
  if (word == "yes" || word == "no" || word == "cancel" || IsFileAnswer(word)) return true;
  return IndexOf(kWonWords, word) || IndexOf(kLostWords, word) || IsAmount(word);
}

std::optional<std::string> HeadlessFrontEnd::TakeAnswer() {
  if (answers_.empty()) return std::nullopt;
  std::string word = answers_.front();
  answers_.pop_front();
  return word;
}

Reply HeadlessFrontEnd::ShowMessage(const std::string& title, const std::string& text, Buttons buttons) {
  Reply reply = Reply::Ok;
  if (buttons != Buttons::Ok) {
    const bool cancelOffered = buttons == Buttons::YesNoCancel;
    reply = cancelOffered ? Reply::Cancel : Reply::No;
    if (auto word = TakeAnswer()) {
      if (*word == "yes")
        reply = Reply::Yes;
      else if (*word == "no")
        reply = Reply::No;
      else if (*word == "cancel" && cancelOffered)
        reply = Reply::Cancel;
      else
        NoteUnfitAnswer(*word, title);
    }
  }
  const char* word = reply == Reply::Ok ? "ok" : reply == Reply::Yes ? "yes" : reply == Reply::No ? "no" : "cancel";
  WriteMessage(out_, title, text, word);
  return reply;
}

std::optional<Currency> HeadlessFrontEnd::AskNumber(const std::string& title, const std::string& text,
                                                    Currency offered) {
  std::optional<Currency> value = offered;
  if (auto word = TakeAnswer()) {
    Currency typed;
    if (*word == "cancel")
      value = std::nullopt;
    else if (IsAmount(*word) && ParseCurrency(*word, typed))
      value = typed;
    else if (*word != "yes")
      NoteUnfitAnswer(*word, title);
  }
  WriteMessage(out_, title, text, value ? MoneyJson(*value) : Json("cancel"));
  return value;
}

std::optional<SettleReply> HeadlessFrontEnd::ShowSettleNotice(const SettleNotice& notice) {
  std::string text;
  for (const auto& [label, amount] : notice.rows) {
    if (!text.empty()) text += '\r';
    text += label + "\t" + amount;
  }
  std::optional<int> choice;
  if (auto word = TakeAnswer()) {
    choice = notice.won ? IndexOf(kWonWords, *word) : IndexOf(kLostWords, *word);
    if (!choice) NoteUnfitAnswer(*word, notice.title);
  }
  const char* shown = choice ? (notice.won ? kWonWords[*choice] : kLostWords[*choice]) : notice.won ? "same" : "none";
  WriteMessage(out_, notice.title, text, shown);
  if (!choice) return std::nullopt;
  return SettleReply{*choice, notice.sameBet, notice.bet};
}

void HeadlessFrontEnd::ShowThrow(int die1, int die2, int pointAfter) {
  WriteJsonLine(out_, {{"rolled", {{"die1", die1}, {"die2", die2}, {"total", die1 + die2}, {"point", pointAfter}}}});
}

void HeadlessFrontEnd::ShowStepsBanner(const std::string& word) { WriteJsonLine(out_, {{"steps", word}}); }

StepReply HeadlessFrontEnd::ShowStep(int lineNumber, const std::string& text, const std::string& status) {
  WriteJsonLine(out_, {{"step", {{"line", lineNumber}, {"text", text}, {"status", status}}}});
  return StepReply::Next;
}

std::optional<std::string> HeadlessFrontEnd::AskFileName(const std::string& title, const std::string& pattern) {
  std::optional<std::string> path;
  if (auto word = TakeAnswer()) {
    if (IsFileAnswer(*word))
      path = word->substr(5);
    else if (*word != "cancel")
      NoteUnfitAnswer(*word, title);
  }
  WriteMessage(out_, title, pattern, path ? *path : "cancel");
  return path;
}

bool HeadlessFrontEnd::LetInputRun() {
  if (stop_ && table_ && stop_()) table_->Stop();
  return false;  // a stop moves no bet
}
