#pragma once
// The number patterns of the statistics screens, as their patterns show
// numbers: "#" before the point prints no digit for a zero integer part, and
// a pattern with optional decimals keeps its point even when they all go.

#include <string>

// "#,#.##;-#,#.##;0": up to two decimals ("2.5", "3.", ".25"), "0" for zero.
std::string FormatUpToTwoDecimals(double value);
// "#,#.00%;-#,#.00%;0%" of a fraction: 0.035 is "3.50%", 0 is "0%".
std::string FormatPercent(double fraction);
// "#,#.00;-#,#.00;0": two decimals always, "0" for zero.
std::string FormatTwoDecimals(double value);
