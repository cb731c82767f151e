#include "config/settings_table.h"

#include <algorithm>
#include <cctype>
#include <limits>
#include <type_traits>

#include "dice/rng.h"
#include "engine/catalogue.h"
#include "engine/game.h"
#include "engine/table_commands.h"

namespace {

constexpr Currency kInt32Min = std::numeric_limits<int32_t>::min();
constexpr Currency kInt32Max = std::numeric_limits<int32_t>::max();
// Limits past the bank limit mean nothing, and bounded they keep every
// payoff of a long game inside the money's range.
constexpr Currency kBank = BankLimit;
// The bankroll's own counters may go well past the bank limit.
constexpr Currency kMostBankroll = 1'000'000'000;
// Ratios and the "Same Bet:" and "Bet:" amounts multiply bets: bounded, the
// products stay well inside 64 bits.
constexpr Currency kMostRatio = 1'000;
constexpr Currency kMostModify = 100'000;
constexpr Currency kMostRollRate = 36'000'000;  // rolls an hour: 10,000 a second
// The graph line's colours the desktop offers; a game file may carry any index.
constexpr Currency kLastGraphColour = 7;
constexpr Currency kLastGraphStyle = 2;  // plain, striped, solid
constexpr Currency kLastConfigTab = 9;  // ten tabs
// Chip sets, styles and sound sets are indexes of lists that grow with the
// data folder; a file's index past the list falls back to the first at use.
constexpr Currency kMostStyle = 99;
constexpr Currency kMostSoundSet = 9'999;
constexpr Currency kLastTableScheme = 7;
constexpr Currency kLastColour = 15;  // the 16-colour table
constexpr Currency kLastBetRow = 199;
constexpr Currency kMostSeed = Currency::FromRaw(int64_t{4'294'967'295} * Currency::kScale);  // the millisecond clock's largest reading

Currency AsCurrency(Currency v) { return v; }
Currency AsCurrency(int32_t v) { return Currency(v); }
Currency AsCurrency(bool v) { return Currency(v ? 1 : 0); }

void Assign(Currency& field, Currency v) { field = v; }
void Assign(int32_t& field, Currency v) { field = static_cast<int32_t>(v.raw / Currency::kScale); }
void Assign(bool& field, Currency v) { field = v != 0; }

template <auto M>
Currency Get(const Game& g, int) { return AsCurrency(g.*M); }
template <auto M>
void Set(Game& g, int, Currency v) { Assign(g.*M, v); }
template <auto M>
Currency GetAt(const Game& g, int i) { return AsCurrency((g.*M)[static_cast<size_t>(i)]); }
template <auto M>
void SetAt(Game& g, int i, Currency v) { Assign((g.*M)[static_cast<size_t>(i)], v); }

template <class T>
constexpr SettingType TypeOf() {
  if constexpr (std::is_same_v<T, Currency>) return SettingType::Money;
  else if constexpr (std::is_same_v<T, bool>) return SettingType::Flag;
  else return SettingType::Integer;
}

template <auto M>
SettingRow Row(const char* name, Currency least, Currency most, Currency byDefault, bool stored = true) {
  using T = std::remove_cvref_t<decltype(std::declval<Game&>().*M)>;
  return {name, TypeOf<T>(), least, most, byDefault, stored, &Get<M>, &Set<M>};
}

template <auto M>
SettingRow Flag(const char* name, bool byDefault, bool stored = true) {
  return Row<M>(name, 0, 1, byDefault ? 1 : 0, stored);
}

template <auto M>
SettingRow Array(const char* name, SettingType type, Currency least, Currency most, Currency byDefault, int first,
                 int last) {
  return {name, type, least, most, byDefault, true, &GetAt<M>, &SetAt<M>, first, last};
}

Currency WorkOnComeOutDefault(int id) { return bet::DefaultWorkOnComeOut(id); }
// As a fresh Game holds them (a test holds the two to each other).
Currency CompBetsMaskDefault(int i) { return i == 3 ? 0 : 1; }  // props earn no comps
Currency PrintColorsDefault(int i) { return std::array<int, 3>{0, 9, 12}[static_cast<size_t>(i)]; }

SettingRow WithDefaults(SettingRow row, Currency (*defaultAt)(int)) {
  row.defaultAt = defaultAt;
  return row;
}

std::vector<SettingRow> BuildTable() {
  using G = Game;
  const Currency maxRolls = static_cast<int>(MaxRolls);
  std::vector<SettingRow> rows = {
      // Rules and limits
      Row<&G::TableMinimum>("TableMinimum", 0, kBank, 1),
      Row<&G::TableMaximum>("TableMaximum", 0, kBank, 1000),
      Row<&G::MaxOddsBet>("MaxOddsBet", 0, kBank, 2000),
      Row<&G::MaxPropBetPayoff>("MaxPropBetPayoff", 0, kBank, 3000),
      Row<&G::OddsAllowed410>("OddsAllowed410", 0, kMostRatio, 2),
      Row<&G::OddsAllowed59>("OddsAllowed59", 0, kMostRatio, 2),
      Row<&G::OddsAllowed68>("OddsAllowed68", 0, kMostRatio, Currency::FromRaw(25'000)),
      Row<&G::OddsCalcMethod>("OddsCalcMethod", 0, 5, 0),
      Row<&G::BarNumber>("BarNumber", 2, 12, 12),  // 2 or 12, nothing between
      Flag<&G::AllowPutBets>("AllowPutBets", false),
      Row<&G::LayVigRate>("LayVigRate", 0, 1, Currency::FromRaw(500)),  // all of the money at most
      Flag<&G::ChargeAllLay>("ChargeAllLay", true),
      Row<&G::RoundLayVig>("RoundLayVig", 0, 2, 0),
      Row<&G::BuyVigRate>("BuyVigRate", 0, 1, Currency::FromRaw(500)),
      Flag<&G::ChargeAllBuy>("ChargeAllBuy", true),
      Row<&G::RoundBuyVig>("RoundBuyVig", 0, 2, 0),
      Flag<&G::AllowNegativeBankroll>("AllowNegativeBankroll", true),
      Row<&G::BankrollInitType>("BankrollInitType", 0, 3, 0),
      Row<&G::BankrollInitAmount>("BankrollInitAmount", -kBank, kBank, 500),
      Row<&G::AtmAmount>("AtmAmount", 0, kBank, 500),
      Row<&G::AmountInvested>("AmountInvested", -kMostBankroll, kMostBankroll, 0),
      Row<&G::NoticeMask>("NoticeMask", 0, kNoticeAll, kNoticeDefault),
      // Auto-Play
      Row<&G::AutoAdjustMode>("AutoAdjustMode", 0, 2, 2),
      Flag<&G::AutoTakeFullOdds>("AutoTakeFullOdds", false),
      Flag<&G::AutoLayFullOdds>("AutoLayFullOdds", false),
      Flag<&G::AutoRemovePlaceBets>("AutoRemovePlaceBets", false),
      Flag<&G::AutoArrangeChips>("AutoArrangeChips", true),
      Flag<&G::AutoRollOn>("AutoRollOn", false),
      Row<&G::RollCountStop>("RollCountStop", 0, maxRolls, 0),
      Row<&G::RollCountLeft>("RollCountLeft", 0, maxRolls, 0),
      Row<&G::AutoRollDelay>("AutoRollDelay", 0, 3600, 0),  // seconds: an hour at most
      Row<&G::WonBetAction>("WonBetAction", 0, 7, 0),
      Row<&G::HandleLosingBets>("HandleLosingBets", 0, 7, 1),
      Row<&G::LayBias>("LayBias", 0, 2, 0),
      Row<&G::PlaceBias>("PlaceBias", 0, 2, 1),
      Row<&G::DoBias>("DoBias", 0, 2, 0),
      Row<&G::DontBias>("DontBias", 0, 2, 0),
      // Dice
      Row<&G::RngChoice>("RngChoice", 0, kRngCount - 1, 0),
      Flag<&G::UserSeedMode>("UserSeedMode", false),
      Flag<&G::ReSeedNewGames>("ReSeedNewGames", true),
      Row<&G::ModSeed>("ModSeed", kInt32Min, kInt32Max, 0),
      Row<&G::LastSeed>("LastSeed", kInt32Min, kInt32Max, 0),
      Row<&G::SeedRequest>("SeedRequest", 0, kMostSeed, 0),
      Flag<&G::UseSkewedProbability>("UseSkewedProbability", false),
      Row<&G::ProbDisplayMode>("ProbDisplayMode", 0, 3, 0),
      Row<&G::ProbRollsOutOf>("ProbRollsOutOf", 1, 1'000'000, 36),
      Flag<&G::IncludeZeroOutcomes>("IncludeZeroOutcomes", false),
      // Simulation and sound
      Flag<&G::DisableAllSound>("DisableAllSound", false),
      Row<&G::ThrottleValue>("ThrottleValue", 0, 100, 0, false),
      Row<&G::SimRollRate>("SimRollRate", Currency::FromRaw(1), kMostRollRate, 100),
      Row<&G::SpeedUnit>("SpeedUnit", 0, kInt32Max, 0, false),  // measured at start-up
      // The table's click tool: 1..5 checks, 7..10 tray Chip-Stacks, 89 buy, 90/91 call
      Row<&G::ClickTool>("ClickTool", kToolFirstChip, kToolCallOn, kToolFirstChip),
      // The bankroll graph's look: kept with the graph's own record of the game file
      Flag<&G::DisplayAverage>("DisplayAverage", false),
      Flag<&G::DisplayGridLines>("DisplayGridLines", true),
      Row<&G::GraphStyle>("GraphStyle", 0, kLastGraphStyle, 0),
      Row<&G::GraphColor>("GraphColor", 0, kLastGraphColour, 0),
      Flag<&G::AutoPrint>("AutoPrint", false),
      // The configuration screen's own choices
      Row<&G::ConfigTab>("ConfigTab", 0, kLastConfigTab, 0),
      Row<&G::ChipSet>("ChipSet", 0, kMostStyle, 0),
      Row<&G::ChipStyle>("ChipStyle", 0, kMostStyle, 0),
      Row<&G::DiceStyle>("DiceStyle", 0, kMostStyle, 0),
      Row<&G::DiceAction>("DiceAction", 0, kMostStyle, 0),
      Flag<&G::UseCentsSymbol>("UseCentsSymbol", false),
      Flag<&G::SnapMouse>("SnapMouse", false),
      Row<&G::StickPersonSound>("StickPersonSound", 0, kMostSoundSet, 0),
      Row<&G::DiceSound>("DiceSound", 0, kMostSoundSet, 0),
      Row<&G::ChipSound>("ChipSound", 0, kMostSoundSet, 0),
      Row<&G::WinSound>("WinSound", 0, kMostSoundSet, 0),
      Flag<&G::DisableAutoBetSounds>("DisableAutoBetSounds", false),
      Row<&G::CompBase>("CompBase", 0, 1, 0),
      Flag<&G::CompsUseTrueProbs>("CompsUseTrueProbs", true),
      Row<&G::CompRate>("CompRate", 0, 1, Currency::FromRaw(4000)),
      Row<&G::TableScheme>("TableScheme", 0, kLastTableScheme, 0),
      Flag<&G::ShowMiscData>("ShowMiscData", false),
      Row<&G::AdvantageScrollTop>("AdvantageScrollTop", 0, kLastBetRow, 0),
      Row<&G::PayoffScrollTop>("PayoffScrollTop", 0, kLastBetRow, 0),
      // Auto-Bet
      Flag<&G::AutoBetActivated>("AutoBetActivated", false),
      Flag<&G::ShowingSteps>("ShowingSteps", false, false),
      // Arrays. The "Same Bet:" and "Bet:" forms: won option, lost option,
      // dialog, each a "Same Bet:" and a "Bet:" entry (0..5).
      Array<&G::StopOnRoll>("StopOnRoll", SettingType::Flag, 0, 1, 0, 0, 16),
      Array<&G::ModifyOperator>("ModifyOperator", SettingType::Integer, 0, 3, 0, 0, 5),
      Array<&G::ModifyAmount>("ModifyAmount", SettingType::Money, 0, kMostModify, 0, 0, 5),
      // -1 "$", 0 "%", 2..6 a check; 1 is no unit
      WithDefaults(Array<&G::CompBetsMask>("CompBetsMask", SettingType::Flag, 0, 1, 0, 1, 3), &CompBetsMaskDefault),
      WithDefaults(Array<&G::PrintColors>("PrintColors", SettingType::Integer, 0, kLastColour, 0, 0, 2),
                   &PrintColorsDefault),
      Array<&G::ModifyUnits>("ModifyUnits", SettingType::Integer, -1, 6, -1, 0, 5),
  };
  SettingRow work = Array<&G::WorkOnComeOut>("WorkOnComeOut", SettingType::Flag, 0, 1, 0, bet::kFirstTableBet,
                                             bet::kLastTableBet);
  work.defaultAt = &WorkOnComeOutDefault;
  rows.push_back(work);
  return rows;
}

bool SameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
         });
}

}  // namespace

const std::vector<SettingRow>& SettingsTable() {
  static const std::vector<SettingRow> table = BuildTable();
  return table;
}

const SettingRow* FindSettingRow(std::string_view name) {
  for (const SettingRow& row : SettingsTable())
    if (SameName(row.name, name)) return &row;
  return nullptr;
}

void KeepSettingsInRange(Game& g) {
  for (const SettingRow& row : SettingsTable()) {
    const int first = row.IsArray() ? row.firstIndex : 0, last = row.IsArray() ? row.lastIndex : 0;
    for (int i = first; i <= last; ++i) row.set(g, i, std::clamp(row.get(g, i), row.least, row.most));
  }
}
