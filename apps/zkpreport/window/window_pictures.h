#pragma once

#include "window/report_window.h"

#include <QImage>
#include <QPalette>

namespace zkp::app {

/// The window at a scale, with the menus that stand open over it.
QImage pictureOf(ReportWindow& window, double scale);

/// The palette of a dark desktop.
QPalette darkPalette();

/// Time for what the window puts off until it is idle.
void letEventsRun();

// What a user does, left half done.
void openContextMenu(ReportWindow& window);
void dragHeading(ReportWindow& window);

} // namespace zkp::app
