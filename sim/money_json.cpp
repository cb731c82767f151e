#include "sim/money_json.h"

Json MoneyJson(Currency amount) {
  if (amount.IsWhole()) return amount.raw / Currency::kScale;
  return amount.ToDouble();
}
