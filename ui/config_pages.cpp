#include "ui/config_pages.h"

#include "ui/advantage_page.h"
#include "ui/bankroll_page.h"
#include "ui/bets_page.h"
#include "ui/checks_dice_page.h"
#include "ui/colors_page.h"
#include "ui/comps_page.h"
#include "ui/misc_page.h"
#include "ui/payoffs_page.h"
#include "ui/probability_page.h"
#include "ui/sound_page.h"

QList<ConfigPage*> MakeConfigPages(Table& table, Dialogs& dialogs, SoundBoard& sounds) {
  return {
      new ChecksDicePage(table, dialogs),
      new SoundPage(table, dialogs, sounds),
      new CompsPage(table, dialogs),
      new ColorsPage(table, dialogs),
      new MiscPage(table, dialogs),
      new BankrollPage(table, dialogs),
      new BetsPage(table, dialogs),
      new PayoffsPage(table, dialogs),
      new ProbabilityPage(table, dialogs),
      new AdvantagePage(table, dialogs),
  };
}
