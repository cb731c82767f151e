#pragma once
// The output side of the play protocol: one JSON object per line.

#include <ostream>

#include <nlohmann/json.hpp>

#include "dice/money.h"

// Objects keep their keys in the order written, as the protocol shows them.
using Json = nlohmann::ordered_json;

// Money as a JSON number holding the exact value: whole amounts as integers,
// others as the double nearest the four-decimal value (it prints back exactly).
Json MoneyJson(Currency amount);

// Writes one object and a line break. Bytes that are not UTF-8 are replaced
// rather than thrown on, so a stray byte in a name cannot end the session.
void WriteJsonLine(std::ostream& out, const Json& object);
