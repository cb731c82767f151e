#include "engine/odds_maximum.h"

Currency FigureOddsMaximum(const OddsLimitInput& in) { return MulRatio(in.flat, in.multiple.ToDouble()); }
