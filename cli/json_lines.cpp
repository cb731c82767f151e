#include "cli/json_lines.h"

Json MoneyJson(Currency amount) {
  if (amount.IsWhole()) return amount.raw / Currency::kScale;
  return amount.ToDouble();
}

void WriteJsonLine(std::ostream& out, const Json& object) {
  out << object.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}
