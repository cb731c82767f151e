#pragma once
// The JSON every front end writes of a table: the play protocol's objects,
// the run report. One place, so that each front end writes the same bytes.

#include <nlohmann/json.hpp>

#include "dice/money.h"

// Objects keep their keys in the order written, as the protocol shows them.
using Json = nlohmann::ordered_json;

// Money as a JSON number holding the exact value: whole amounts as integers,
// others as the double nearest the four-decimal value (it prints back exactly).
Json MoneyJson(Currency amount);
