#include "engine/notices.h"

#include "engine/game.h"

bool NoticeAllowed(const Game& g, int bit) { return (g.NoticeMask & bit) != 0 && !g.HyperDriveOn; }

Reply ShowMessage(Game& g, const std::string& title, const std::string& text, Buttons buttons) {
  return g.Ui->ShowMessage(title, text, buttons);
}

void ShowNotice(Game& g, int noticeBits, const std::string& title, const std::string& text) {
  if (g.Ui->ShowNotice(noticeBits, title, text) == NoticeReply::DontShowAgain) g.NoticeMask &= ~noticeBits;
}

std::string Dollars(Currency amount) {
  std::string text = "$";
  text += FormatNumberWithCommas(amount);
  return text;
}

std::string MoneyText(Currency amount) {
  std::string digits = FormatNumberWithCommas(Abs(amount));
  if (digits.front() == '.') digits.insert(0, "0");
  return (amount < 0 ? "-$" : "$") + digits;
}

std::string RunTimeErrorText(const std::string& description, int number, const std::string& routine) {
  return description + ", Error #" + std::to_string(number) + " occurred, at: " + routine + kBreak;
}
