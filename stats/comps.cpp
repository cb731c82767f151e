#include "stats/comps.h"

#include <algorithm>
#include <cmath>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "engine/result_cells.h"
#include "stats/advantage.h"

namespace comps {

namespace {

// The bet whose edge a decision on `betId` is charged at.
int ChargedAs(int betId) {
  if (bet::IsComeNumber(betId)) return bet::kCome;
  if (bet::IsDontComeNumber(betId)) return bet::kDontCome;
  return betId;
}

// Sets the skewed dice aside for as long as it lives, so the figures come
// from true dice; the player's table is back as it was afterwards.
class TrueDice {
 public:
  TrueDice(Game& g, bool wanted) : g_(g), was_(g.UseSkewedProbability) {
    if (wanted) g_.UseSkewedProbability = false;
  }
  ~TrueDice() { g_.UseSkewedProbability = was_; }
  TrueDice(const TrueDice&) = delete;
  TrueDice& operator=(const TrueDice&) = delete;

 private:
  Game& g_;
  bool was_;
};

}  // namespace

Family FamilyOf(int betId) {
  using bet::Group;
  switch (bet::EntryOf(betId).group) {
    case Group::Line:
    case Group::LineOdds:
    case Group::ComeBox:
    case Group::ComeNumber:
    case Group::ComeOdds:
    case Group::DontComeNumber:
    case Group::DontComeOdds: return Family::LineAndCome;
    case Group::Place:
    case Group::Buy:
    case Group::Lay:
    case Group::Field:
    case Group::Big: return Family::PlaceBuyLayField;
    case Group::HardWay:
    case Group::Proposition:
    case Group::Hop: return Family::Proposition;
    case Group::None: break;
  }
  return Family::None;
}

double HouseEdge(const Game& g, int betId, Base base) {
  const Advantage a = FigureAdvantage(g, ChargedAs(betId));
  return std::max(0.0, -(base == Base::PerRoll ? a.EvPerRoll : a.EvPerDecision));
}

Currency CompValue(Game& g) {
  const TrueDice dice(g, g.CompsUseTrueProbs);
  const Base base = g.CompBase == 1 ? Base::PerRoll : Base::PerDecision;
  double theoreticalLoss = 0;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    const Currency wagered = g.BetWagers[results::kActual][id][results::kTotal];
    const Family family = FamilyOf(id);
    if (wagered == 0 || family == Family::None || g.CompBetsMask[static_cast<size_t>(family)] == 0) continue;
    theoreticalLoss += wagered.ToDouble() * HouseEdge(g, id, base);
  }
  // Credited in whole cents, as a casino's comp balance is.
  const double cents = std::round(theoreticalLoss * g.CompRate.ToDouble() * 100);
  return Currency::FromRaw(static_cast<int64_t>(cents) * (Currency::kScale / 100));
}

}  // namespace comps
