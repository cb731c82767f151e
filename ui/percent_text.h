#pragma once
// The roll screens' percentages: two decimals and a sign, "33.33%".

#include <QLatin1Char>
#include <QString>

inline QString PercentText(double percent) { return QString::number(percent, 'f', 2) + QLatin1Char('%'); }
