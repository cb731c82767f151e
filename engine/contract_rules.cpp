#include "engine/contract_rules.h"

#include <string>

#include "engine/game.h"
#include "engine/notices.h"
#include "engine/refusals.h"

namespace {

struct Rules {
  Game& g;
  int id;
  Currency bet;
  Currency committed;
  Currency change;
  bool ended = false;

  void Refuse(const std::string& text, const std::string& title) {
    g.MsgText = text;
    g.MsgTitle = title;
    if (NoticeAllowed(g, kNoticeRefusals)) ShowNotice(g, kNoticeRefusals, title, text);
  }
  // A Pass Line refusal is titled with the bare name of the Pass Line.
  void RefusePassLine(const std::string& text) { Refuse(text, g.BetName[bet::kPassLine]); }
  void RefuseBet(const std::string& text) { Refuse(text, g.BetName[id] + " Bet"); }

  // A refused rise keeps at most the committed amount; it never takes away.
  void BackToCommittedRise() { change = Max(committed - bet, 0); }
  void EndWithNothing() {
    change = 0;
    ended = true;
  }

  void Adding();
  void TakingDown();
};

void Rules::Adding() {
  const bool pointOn = g.Point > 0;
  if (id == bet::kPassLine) {
    if (!pointOn) return;
    if (bet + change < committed) {
      RefusePassLine(refusal::PassLineDecrease());
      change = committed - bet;
    } else if (!g.AllowPutBets) {
      RefusePassLine(refusal::PassLineIncrease());
      BackToCommittedRise();
      if (change == 0) ended = true;
    }
  } else if (id == bet::kCome) {
    if (!pointOn) {
      RefuseBet(refusal::ComeNoPoint());
      EndWithNothing();
    }
  } else if (id == bet::kDontPass) {
    if (pointOn && bet + change > committed) {
      RefuseBet(refusal::DontPassIncrease());
      BackToCommittedRise();
    }
  } else if (id == bet::kDontCome) {
    if (!pointOn) {
      RefuseBet(refusal::DontComeNoPoint());
      EndWithNothing();
    }
  } else if (id == bet::kPassOdds) {
    if (g.BetAmount[bet::kPassLine] <= 0 || !pointOn) {
      RefuseBet(refusal::PassOddsNeedLine());
      EndWithNothing();
    }
  } else if (id == bet::kDontPassOdds) {
    if (g.BetAmount[bet::kDontPass] <= 0 || !pointOn) {
      RefuseBet(refusal::DontOddsNeedLine());
      EndWithNothing();
    }
  } else if (bet::IsComeNumber(id)) {
    if (bet + change > committed && !g.AllowPutBets) {
      RefuseBet(refusal::ComeIncrease());
      BackToCommittedRise();
    } else if (bet + change < committed) {
      RefuseBet(refusal::ComeDecrease());
      change = committed - bet;
    }
  } else if (bet::IsComeOdds(id) || bet::IsDontComeOdds(id)) {
    if (g.BetAmount[bet::ParentOf(id)] <= 0) {
      RefuseBet(refusal::OddsNeedBet(g.BetName[bet::ParentOf(id)]));
      EndWithNothing();
    }
  } else if (bet::IsDontComeNumber(id)) {
    if (bet + change > committed) {
      RefuseBet(refusal::DontComeIncrease());
      BackToCommittedRise();
    }
  }
}

void Rules::TakingDown() {
  const bool passLineHeld = id == bet::kPassLine && g.Point > 0;
  if (!passLineHeld && !bet::IsComeNumber(id)) return;
  if (bet == committed) {
    if (id == bet::kPassLine)
      RefusePassLine(refusal::PassLineDecrease());
    else
      RefuseBet(refusal::ComeDecrease());
    EndWithNothing();
    return;
  }
  // What was on the layout when the dice went out stays.
  change = Max(change, committed - bet);
}

}  // namespace

bool AddingIsFree(const Game& g, int betId) {
  if (!HasContractRules(betId) || g.MovingBet) return true;
  const bool pointOn = g.Point > 0;
  switch (betId) {
    case bet::kPassLine:
    case bet::kDontPass: return !pointOn;
    case bet::kCome:
    case bet::kDontCome: return pointOn;
    case bet::kPassOdds: return pointOn && g.BetAmount[bet::kPassLine] > 0;
    case bet::kDontPassOdds: return pointOn && g.BetAmount[bet::kDontPass] > 0;
    default:
      // The numbers themselves are held by what stood when the dice went out.
      return (bet::IsComeOdds(betId) || bet::IsDontComeOdds(betId)) && g.BetAmount[bet::ParentOf(betId)] > 0;
  }
}

bool HeldByContract(const Game& g, int betId) {
  return (betId == bet::kPassLine && g.Point > 0) || bet::IsComeNumber(betId);
}

ContractOutcome ApplyContractRules(Game& g, int betId, Currency change) {
  Rules r{g, betId, g.BetAmount[betId], betId <= bet::kDontPass ? g.Committed(betId) : Currency(0), change};
  if (change > 0 && !g.MovingBet) r.Adding();
  if (change < 0) r.TakingDown();
  return ContractOutcome{r.change, r.ended};
}
