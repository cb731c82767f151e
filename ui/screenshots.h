#pragma once
// `dicemill --screenshot DIR`: draws the main window and every dialog into
// PNG files named as the screens' list names them, without a display.

#include <QString>

struct DesktopPaths;

// 0 when every picture was written; otherwise says which one failed on
// standard error and returns 1.
int WriteScreenshots(const QString& folder, const DesktopPaths& paths);
