#pragma once
// The texts of the table's refusals and limit notices, word for word.

#include <string>

#include "dice/money.h"

namespace refusal {
std::string PassLineDecrease();
std::string PassLineIncrease();
std::string ComeNoPoint();
std::string DontPassIncrease();
std::string DontComeNoPoint();
std::string PassOddsNeedLine();
std::string DontOddsNeedLine();
std::string ComeDecrease();
std::string ComeIncrease();
// parentName: the name of the flat bet the odds need, "Come 6".
std::string OddsNeedBet(const std::string& parentName);
std::string DontComeIncrease();
}  // namespace refusal

namespace limit_notice {
std::string MinimumBet(Currency minimum);
std::string MaximumBet(Currency maximum);
// Added to the maximum notice when a contract bet stands above a lowered maximum.
std::string ContractAboveMaximum(const std::string& betName, Currency committed);
// anyOtherBet: some other bet stands, so betting less there is an option.
std::string NotEnoughBankroll(bool anyOtherBet);
std::string MinimumStack(Currency minimum);
std::string MaximumStack(Currency maximum);
// The closing line of a limit notice: what now stands on the spot.
std::string Ending(bool stack, bool nothingChanged);
}  // namespace limit_notice
