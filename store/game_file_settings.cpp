// Records 6 to 15. Each record starts from the copy kept when the game was
// read, so slots this program does not use go back out unchanged.

#include "engine/game.h"
#include "store/game_file_sections.h"
#include "store/slot_binders.h"

namespace {

struct SettingsSlots {  // record 8
  template <class G, class F>
  void operator()(G& g, F&& f) const {
    f(0, g.ConfigTab);
    f(1, g.ChipSet);
    f(2, g.ChipStyle);
    f(3, g.DiceStyle);
    f(4, g.DiceAction);
    f(5, g.SimRollRate);
    f(6, g.UseCentsSymbol);
    f(7, g.StickPersonSound);
    f(8, g.DiceSound);
    f(9, g.ChipSound);
    f(10, g.WinSound);
    f(11, g.DisableAutoBetSounds);
    f(12, g.DisableAllSound);
    for (int i = 1; i <= 3; ++i) f(12 + i, g.CompBetsMask[static_cast<size_t>(i)]);
    f(16, g.CompBase);
    f(17, g.CompsUseTrueProbs);
    f(18, g.CompRate);
    f(19, g.NoticeMask);
    for (int i = 0; i < 3; ++i) f(20 + i, g.PrintColors[static_cast<size_t>(i)]);
    f(23, g.SnapMouse);
    f(24, g.RngChoice);
    f(25, g.UserSeedMode);
    f(26, g.ReSeedNewGames);
    // The first slot past the listed ones: a file that never chose a scheme
    // holds 0 there, the first scheme.
    f(27, g.TableScheme);
  }
};

struct RulesSlots {  // record 9
  template <class G, class F>
  void operator()(G& g, F&& f) const {
    f(0, g.TableMinimum);
    f(1, g.TableMaximum);
    f(2, g.OddsAllowed410);
    f(3, g.OddsAllowed59);
    f(4, g.OddsAllowed68);
    f(5, g.OddsCalcMethod);
    f(6, g.BarNumber);
    f(7, g.LayVigRate);
    f(8, g.RoundLayVig);
    f(9, g.ChargeAllLay);
    f(10, g.BuyVigRate);
    f(11, g.RoundBuyVig);
    f(12, g.ChargeAllBuy);
    f(13, g.AllowPutBets);
    f(14, g.UseSkewedProbability);
    f(15, g.ProbDisplayMode);
    f(16, g.ProbRollsOutOf);
    f(17, g.IncludeZeroOutcomes);
    f(18, g.ShowMiscData);
    f(19, g.AdvantageScrollTop);
    f(20, g.PayoffScrollTop);
    f(21, g.AllowNegativeBankroll);
    f(22, g.BankrollInitType);
    f(23, g.BankrollInitAmount);
    f(24, g.AtmAmount);
    f(26, g.AmountInvested);
    f(27, g.MaxPropBetPayoff);
    f(28, g.MaxOddsBet);
  }
};

struct AutoPlaySlots {  // record 10
  template <class G, class F>
  void operator()(G& g, F&& f) const {
    f(0, g.AutoAdjustMode);
    f(1, g.AutoBetActivated);
    f(2, g.AutoTakeFullOdds);
    f(3, g.AutoLayFullOdds);
    f(4, g.AutoRemovePlaceBets);
    f(5, g.WonBetAction);
    f(6, g.HandleLosingBets);
    f(7, g.AutoRollOn);
    f(8, g.RollCountStop);
    f(9, g.RollCountLeft);
    f(10, g.AutoRollDelay);
    for (int i = 0; i < 17; ++i) f(11 + i, g.StopOnRoll[static_cast<size_t>(i)]);
    f(28, g.LayBias);
    f(29, g.PlaceBias);
    f(30, g.DoBias);
    f(31, g.DontBias);
  }
};

struct HandlingSlots {  // record 11; operators 1 and 3 ride in the continuation
  template <class G, class F>
  void operator()(G& g, F&& f) const {
    f(0, g.ModifyOperator[0]);
    f(1, g.ModifyOperator[2]);
    f(2, g.ModifyOperator[4]);
    f(3, g.ModifyOperator[5]);
    for (int i = 0; i < 6; ++i) f(4 + i, g.ModifyAmount[static_cast<size_t>(i)]);
    for (int i = 0; i < 6; ++i) f(12 + i, g.ModifyUnits[static_cast<size_t>(i)]);
  }
};

struct TableStateSlots {  // record 12
  template <class G, class F>
  void operator()(G& g, F&& f) const {
    f(5, g.PointBeforeRoll);
    f(6, g.PointTwoRollsAgo);
    f(7, g.Point);
    f(8, g.DiceTotal);
    f(9, g.TableUsed);
    f(10, g.Die1);
    f(11, g.Die2);
    f(12, g.TotalOnTable);
    f(13, g.BankrollSum);
    f(15, g.GameChanged);
    f(16, g.HighBankroll);
    f(17, g.LowBankroll);
  }
};

struct DiceFileSlots {  // record 14
  template <class G, class F>
  void operator()(G& g, F&& f) const {
    f(0, g.DiceFileMode);
    f(1, g.DiceFile.NextRollNum);
    f(2, g.DiceFile.LastRollNum);
    f(3, g.DiceFile.SelectAnchor);
    f(4, g.DiceFile.TopRollNum);
    f(5, g.DiceFile.InsertRolls);
    f(6, g.DiceAlreadySet);
  }
};

template <class Slots>
void WriteSlots(const Game& g, RecordWriter& w, int recordNumber, Slots slots) {
  FileRecord& r = w.Add(g.FileExtras.Kept(recordNumber));
  slots(g, CurrencySlotPut{r});
}

template <class Slots>
void ReadSlots(Game& g, RecordReader& reader, int recordNumber, Slots slots) {
  const FileRecord r = g.FileExtras.Kept(recordNumber) = reader.Next();
  slots(g, CurrencySlotGet{r});
}

}  // namespace

void WriteSettingsRecords(const Game& g, RecordWriter& w) {
  w.Add(g.FileExtras.Kept(6));
  w.Add(g.FileExtras.Kept(7));
  WriteSlots(g, w, 8, SettingsSlots{});
  WriteSlots(g, w, 9, RulesSlots{});
  WriteSlots(g, w, 10, AutoPlaySlots{});
  WriteSlots(g, w, 11, HandlingSlots{});
  WriteSlots(g, w, 12, TableStateSlots{});
  w.Add(g.FileExtras.Kept(13));
  WriteSlots(g, w, 14, DiceFileSlots{});
  FileRecord& seeds = w.Add(g.FileExtras.Kept(15));
  PutInt32(seeds, 0, g.ModSeed);
  PutInt32(seeds, 1, g.LastSeed);
}

void ReadSettingsRecords(Game& g, RecordReader& r) {
  g.FileExtras.Kept(6) = r.Next();
  g.FileExtras.Kept(7) = r.Next();
  ReadSlots(g, r, 8, SettingsSlots{});
  ReadSlots(g, r, 9, RulesSlots{});
  ReadSlots(g, r, 10, AutoPlaySlots{});
  ReadSlots(g, r, 11, HandlingSlots{});
  ReadSlots(g, r, 12, TableStateSlots{});
  g.FileExtras.Kept(13) = r.Next();
  ReadSlots(g, r, 14, DiceFileSlots{});
  const FileRecord& seeds = g.FileExtras.Kept(15) = r.Next();
  g.ModSeed = GetInt32(seeds, 0);
  g.LastSeed = GetInt32(seeds, 1);
}
