#pragma once
// The output side of the play protocol: one JSON object per line.

#include <ostream>

#include "sim/money_json.h"

// Writes one object and a line break. Bytes that are not UTF-8 are replaced
// rather than thrown on, so a stray byte in a name cannot end the session.
void WriteJsonLine(std::ostream& out, const Json& object);
