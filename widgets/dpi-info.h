#pragma once
// Display scaling. Every pixel length of the UI is a logical length times
// getDPI(), truncated; pictures are rendered for getDPR() device pixels per
// logical pixel.

#include <QString>

class DPIinfo {
 public:
  // Scale factor of the primary screen relative to 96 dots per inch (1.0 on a
  // standard display, 1.5 at 144 dpi). $NIMBRA_UI_SCALE overrides it.
  static double getDPI();
  // Device pixels per logical pixel of the primary screen.
  static double getDPR();
  // The style sheet with every "<number>px" length multiplied by getDPI()
  // (truncated); other units and numbers are left alone.
  static QString getScaledStyleSheet(const QString& sheet);
  // trunc(length * getDPI())
  static int scaled(double length);
};
