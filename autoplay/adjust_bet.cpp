#include "autoplay/adjust_bet.h"

// The bias rules that move a request to a whole-paying amount are not built
// yet; until they are, every request stands as asked.
Currency AdjustBet(Game&, int, Currency requestedChange) { return requestedChange; }
