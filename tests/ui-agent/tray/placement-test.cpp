// Where the pop-up goes for every taskbar position (by coordinates, and as
// a Wayland layer surface), and which presses count as on it.
#include <gtest/gtest.h>

#include "ui-agent/tray/layer-placement.h"
#include "ui-agent/tray/tray-menu.h"
#include "ui-agent/tray/tray-placement.h"

namespace {

using tray_placement::AboveAnchor;
using tray_placement::NotPlaced;
using tray_placement::TopEdge;

const QSize kPopup = TrayMenu::kSize;

TEST(PopupPlacement, LandsWhereTheRuleSays) {
  // A 1280 x 800 screen; the taskbar takes 40 pixels (60 on the sides).
  const QRect bottomBar(0, 0, 1280, 760), topBar(0, 40, 1280, 760), rightBar(0, 0, 1220, 800),
      leftBar(60, 0, 1220, 800), noBar(0, 0, 1280, 800);
  const struct {
    const char* name;
    QRect available;
    QPoint anchor;
    int sideBefore;
    QPoint pos;
    int side;
  } rows[] = {
      // Bottom taskbar: one pixel above the work area, centred on the icon, kept inside.
      {"BottomBarCentred", bottomBar, {640, 780}, NotPlaced, {440, 526}, AboveAnchor},
      {"BottomBarFarRight", bottomBar, {1270, 780}, NotPlaced, {879, 526}, AboveAnchor},
      {"BottomBarFarLeft", bottomBar, {10, 780}, NotPlaced, {1, 526}, AboveAnchor},
      // Top taskbar: one pixel below the work area's top.
      {"TopBarHangsBelow", topBar, {1200, 20}, NotPlaced, {879, 41}, TopEdge},
      {"TopBarCentred", topBar, {640, 20}, NotPlaced, {440, 41}, TopEdge},
      // Side taskbars: beside them, below the anchor when it fits.
      {"RightBarLowIcon", rightBar, {1250, 700}, NotPlaced, {819, 467}, AboveAnchor},
      {"RightBarHighIcon", rightBar, {1250, 100}, NotPlaced, {819, 100}, NotPlaced},
      {"LeftBarLowIcon", leftBar, {30, 700}, NotPlaced, {61, 467}, AboveAnchor},
      {"LeftBarHighIcon", leftBar, {30, 100}, NotPlaced, {61, 100}, NotPlaced},
      // The bottom bound: fits exactly, then one pixel too many.
      {"FitsExactlyBelow", noBar, {640, 568}, NotPlaced, {440, 568}, NotPlaced},
      {"OnePixelTooLow", noBar, {640, 569}, NotPlaced, {440, 336}, AboveAnchor},
      // A side once taken is kept (re-placing on resize).
      {"AboveKept", noBar, {640, 400}, AboveAnchor, {440, 167}, AboveAnchor},
      {"TopEdgeKept", topBar, {640, 100}, TopEdge, {440, 41}, TopEdge},
  };
  for (const auto& r : rows) {
    const tray_placement::Placement p = tray_placement::place(r.available, kPopup, r.anchor, r.sideBefore);
    EXPECT_EQ(p.pos, r.pos) << r.name;
    EXPECT_EQ(p.side, r.side) << r.name;
  }
  // Grown, it keeps its side and its bottom edge.
  const auto grown = tray_placement::place(bottomBar, QSize(400, 300), {640, 780}, AboveAnchor);
  EXPECT_EQ(grown.pos.y() + 300, 526 + kPopup.height());
}

TEST(OutsidePress, BothBoundsInclusive) {
  const QRect popup(QPoint(100, 200), kPopup);
  for (const QPoint p : {QPoint(100, 200), QPoint(500, 300), QPoint(300, 432), QPoint(500, 432)})
    EXPECT_TRUE(tray_placement::press_inside(popup, p)) << p.x() << "," << p.y();
  for (const QPoint p : {QPoint(501, 300), QPoint(300, 433), QPoint(99, 300), QPoint(300, 199)})
    EXPECT_FALSE(tray_placement::press_inside(popup, p)) << p.x() << "," << p.y();
}

constexpr Qt::Edges kBR = Qt::BottomEdge | Qt::RightEdge, kBL = Qt::BottomEdge | Qt::LeftEdge,
                    kTR = Qt::TopEdge | Qt::RightEdge, kTL = Qt::TopEdge | Qt::LeftEdge;

// Wayland layer surfaces: anchored to the nearest edges, with margins.
TEST(LayerPlacement, AnchoredToTheNearestEdge) {
  const QRect screen(0, 0, 1280, 800), second(1280, 0, 1920, 1080);
  const struct {
    const char* name;
    QRect screen;
    QPoint anchor;
    Qt::Edges anchors;
    QMargins margins;  // left, top, right, bottom
    QPoint topLeft;
  } rows[] = {
      // A bottom panel: one pixel above it, centred on the icon, from the nearer side.
      {"BottomRightIcon", screen, {1000, 790}, kBR, {0, 0, 80, 1}, {800, 567}},
      {"BottomLeftIcon", screen, {300, 790}, kBL, {100, 0, 0, 1}, {100, 567}},
      {"BottomFarRightCornerTie", screen, {1279, 799}, kBR, {0, 0, 1, 1}, {879, 567}},
      {"BottomFarLeft", screen, {5, 795}, kBL, {1, 0, 0, 1}, {1, 567}},
      // A top bar; the right half starts at 640.
      {"TopRightIcon", screen, {1200, 10}, kTR, {0, 1, 1, 0}, {879, 1}},
      {"TopCentreGoesRight", screen, {640, 10}, kTR, {0, 1, 440, 0}, {440, 1}},
      {"TopOneLeftOfCentre", screen, {639, 10}, kTL, {439, 1, 0, 0}, {439, 1}},
      // Side panels: beside them, centred on the icon's height.
      {"RightPanelLow", screen, {1270, 700}, kBR, {0, 0, 1, 1}, {879, 567}},
      {"RightPanelMiddle", screen, {1270, 450}, kBR, {0, 0, 1, 234}, {879, 334}},
      {"LeftPanelHigh", screen, {8, 100}, kTL, {1, 1, 0, 0}, {1, 1}},
      {"LeftPanelMiddle", screen, {8, 300}, kTL, {1, 184, 0, 0}, {1, 184}},
      {"TopLeftCornerTie", screen, {0, 0}, kTL, {1, 1, 0, 0}, {1, 1}},
      // A point outside the screen counts as its nearest point inside.
      {"FarBelowAndRight", screen, {5000, 5000}, kBR, {0, 0, 1, 1}, {879, 567}},
      {"NegativeCoordinates", screen, {-40, 300}, kTL, {1, 184, 0, 0}, {1, 184}},
      // A second screen: margins from its own edges.
      {"SecondScreenBottom", second, {2500, 1070}, kBR, {0, 0, 500, 1}, {2300, 847}},
      {"SecondScreenLeftPanel", second, {1290, 500}, kTL, {1, 384, 0, 0}, {1281, 384}},
      // A screen smaller than the pop-up: its left edge one pixel in, the far margin negative.
      {"TinyScreen", QRect(0, 0, 300, 200), {150, 190}, kBR, {0, 0, -101, 1}, {1, -33}},
  };
  for (const auto& r : rows) {
    const layer_placement::Placement p = layer_placement::anchored_at(r.screen, kPopup, r.anchor);
    EXPECT_EQ(p.anchors, r.anchors) << r.name;
    EXPECT_EQ(p.margins, r.margins) << r.name;
    EXPECT_EQ(p.topLeft, r.topLeft) << r.name;
  }
}

// The user drop-down (160 x 100) opened inside the pop-up stays where it is
// drawn relative to the pop-up, whatever edges the pop-up hangs from.
TEST(LayerPlacement, NestedKeepsItsPlaceBesideThePopup) {
  const struct {
    Qt::Edges anchors;
    QMargins parentMargins;
    QPoint offset;
    QMargins margins;
  } rows[] = {
      {kBR, {0, 0, 10, 1}, {230, 40}, {0, 0, 20, 93}},
      {kTL, {100, 1, 0, 0}, {230, 40}, {330, 41, 0, 0}},
      {kTR, {0, 1, 1, 0}, {230, 40}, {0, 41, 11, 0}},
      {kBR, {0, 0, 0, 0}, {300, 200}, {0, 0, 0, 0}},  // past the far edges: the margin stops at 0
  };
  for (const auto& r : rows) {
    const layer_placement::Placement parent{r.anchors, r.parentMargins, QPoint(500, 300)};
    const auto p = layer_placement::nested_in(parent, kPopup, r.offset, QSize(160, 100));
    EXPECT_EQ(p.anchors, r.anchors);
    EXPECT_EQ(p.margins, r.margins) << r.offset.x();
    EXPECT_EQ(p.topLeft, QPoint(500, 300) + r.offset);
  }
}

}  // namespace
