#pragma once
// Numbers typed on the command line: plain digits, or digits grouped by
// commas in threes ("1,000,000"); amounts may start with "$" and carry cents.
// Anything else (hex, exponents, signs, spaces) is refused.

#include <cstdint>
#include <optional>
#include <string>

#include "dice/money.h"
#include "engine/notices.h"  // MoneyText, the money of the command line

std::optional<int64_t> ParseCountArg(const std::string& text);
std::optional<Currency> ParseAmountArg(const std::string& text);

