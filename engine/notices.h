#pragma once
// Showing messages through the front end, gated as the table's rules say.

#include <string>

#include "engine/frontend.h"

struct Game;

// Bits of NoticeMask.
constexpr int kNoticeRefusals = 1;  // " Actions not allowed"
constexpr int kNoticeLimits = 2;    // " Betting limits reached"
constexpr int kNoticeCharges = 4;   // " Charges and/or change"
constexpr int kNoticeScript = 8;    // " Auto-Bet messages normal play"
constexpr int kNoticeScriptHyper = 16;
// A new table shows everything but script messages under Hyper-Drive.
constexpr int kNoticeDefault = kNoticeRefusals | kNoticeLimits | kNoticeCharges | kNoticeScript;
constexpr int kNoticeAll = kNoticeDefault | kNoticeScriptHyper;

// Line breaks inside a message are carriage returns.
inline constexpr const char* kBreak = "\r";
inline constexpr const char* kTwoBreaks = "\r\r";

// True when the notice of this NoticeMask bit may be shown now.
bool NoticeAllowed(const Game& g, int bit);

Reply ShowMessage(Game& g, const std::string& title, const std::string& text, Buttons buttons = Buttons::Ok);
// A notice that the switches `noticeBits` govern (the caller has decided it
// is due); when the player asks not to see such notices again, those
// switches go off.
void ShowNotice(Game& g, int noticeBits, const std::string& title, const std::string& text);

// "$" and the amount in the one money format.
std::string Dollars(Currency amount);
// "$1,649.45", "-$0.57", "$500": money in the reports of a run, where a sign
// and a leading zero read better than the table's "$-.57".
std::string MoneyText(Currency amount);

// The error box of a routine with a handler: the description, ", Error #",
// the number, " occurred, at: ", the routine's name and a line break.
std::string RunTimeErrorText(const std::string& description, int number, const std::string& routine);
