#include "cli/json_lines.h"

void WriteJsonLine(std::ostream& out, const Json& object) {
  out << object.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}
