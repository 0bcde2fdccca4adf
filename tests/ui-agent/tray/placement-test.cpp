// Where the pop-up goes for every taskbar position (by coordinates, and as
// a Wayland layer surface), and which presses count as on it.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "tray/layer-placement.h"
#include "tray/tray-placement.h"

namespace {

using tray_placement::AboveAnchor;
using tray_placement::NotPlaced;
using tray_placement::TopEdge;

const QSize kPopup(400, 232);

struct PlaceRow {
  const char* name;
  QRect available;
  QPoint anchor;
  int sideBefore;
  QPoint pos;
  int side;
};
void PrintTo(const PlaceRow& r, std::ostream* os) {
  *os << r.name;
}

class PopupPlacement : public ::testing::TestWithParam<PlaceRow> {};

TEST_P(PopupPlacement, LandsWhereTheRuleSays) {
  const PlaceRow& r = GetParam();
  const tray_placement::Placement p = tray_placement::place(r.available, kPopup, r.anchor, r.sideBefore);
  EXPECT_EQ(p.pos, r.pos);
  EXPECT_EQ(p.side, r.side);
}

// A 1280 x 800 screen; the taskbar takes 40 pixels (60 on the sides).
const QRect kBottomBar(0, 0, 1280, 760), kTopBar(0, 40, 1280, 760), kRightBar(0, 0, 1220, 800),
    kLeftBar(60, 0, 1220, 800), kNoBar(0, 0, 1280, 800);

INSTANTIATE_TEST_SUITE_P(
    Rows, PopupPlacement,
    ::testing::Values(
        // Bottom taskbar: one pixel above the work area, centred on the icon.
        PlaceRow{"BottomBarCentred", kBottomBar, {640, 780}, NotPlaced, {440, 526}, AboveAnchor},
        PlaceRow{"BottomBarFarRightKeptInside", kBottomBar, {1270, 780}, NotPlaced, {879, 526}, AboveAnchor},
        PlaceRow{"BottomBarFarLeftKeptInside", kBottomBar, {10, 780}, NotPlaced, {1, 526}, AboveAnchor},
        // Top taskbar: one pixel below the work area's top.
        PlaceRow{"TopBarHangsBelow", kTopBar, {1200, 20}, NotPlaced, {879, 41}, TopEdge},
        PlaceRow{"TopBarCentred", kTopBar, {640, 20}, NotPlaced, {440, 41}, TopEdge},
        // Right and left taskbars: beside them, below the anchor when it fits.
        PlaceRow{"RightBarLowIconGoesAbove", kRightBar, {1250, 700}, NotPlaced, {819, 467}, AboveAnchor},
        PlaceRow{"RightBarHighIconStaysAtAnchor", kRightBar, {1250, 100}, NotPlaced, {819, 100}, NotPlaced},
        PlaceRow{"LeftBarLowIcon", kLeftBar, {30, 700}, NotPlaced, {61, 467}, AboveAnchor},
        PlaceRow{"LeftBarHighIcon", kLeftBar, {30, 100}, NotPlaced, {61, 100}, NotPlaced},
        // The bottom bound: fits exactly, then one pixel too many.
        PlaceRow{"FitsExactlyBelow", kNoBar, {640, 568}, NotPlaced, {440, 568}, NotPlaced},
        PlaceRow{"OnePixelTooLow", kNoBar, {640, 569}, NotPlaced, {440, 336}, AboveAnchor},
        // A side once taken is kept (re-placing on resize).
        PlaceRow{"AboveKeptWhereBelowWouldFit", kNoBar, {640, 400}, AboveAnchor, {440, 167}, AboveAnchor},
        PlaceRow{"TopEdgeKeptForAnchorInside", kTopBar, {640, 100}, TopEdge, {440, 41}, TopEdge}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(PopupPlacement, ResizeKeepsTheSideAndTheBottomEdge) {
  const auto first = tray_placement::place(kBottomBar, kPopup, {640, 780}, NotPlaced);
  const auto grown = tray_placement::place(kBottomBar, QSize(400, 300), {640, 780}, first.side);
  EXPECT_EQ(grown.side, AboveAnchor);
  EXPECT_EQ(grown.pos.y() + 300, first.pos.y() + kPopup.height());
}

struct PressRow {
  const char* name;
  QPoint p;
  bool inside;
};
void PrintTo(const PressRow& r, std::ostream* os) {
  *os << r.name;
}

class OutsidePress : public ::testing::TestWithParam<PressRow> {};

TEST_P(OutsidePress, BothBoundsInclusive) {
  const QRect popup(100, 200, 400, 232);
  EXPECT_EQ(tray_placement::pressInside(popup, GetParam().p), GetParam().inside);
}

INSTANTIATE_TEST_SUITE_P(Rows, OutsidePress,
                         ::testing::Values(PressRow{"TopLeftCorner", {100, 200}, true},
                                           PressRow{"RightEdgePlusWidth", {500, 300}, true},
                                           PressRow{"BottomEdgePlusHeight", {300, 432}, true},
                                           PressRow{"FarCornerInclusive", {500, 432}, true},
                                           PressRow{"OnePastRight", {501, 300}, false},
                                           PressRow{"OnePastBottom", {300, 433}, false},
                                           PressRow{"OneLeft", {99, 300}, false},
                                           PressRow{"OneAbove", {300, 199}, false}),
                         [](const auto& row) { return std::string(row.param.name); });

// ---- Wayland layer surfaces: anchored edges and margins -----------------

struct LayerRow {
  const char* name;
  QRect screen;
  QPoint anchor;
  Qt::Edges anchors;
  QMargins margins;  // left, top, right, bottom
  QPoint topLeft;
};
void PrintTo(const LayerRow& r, std::ostream* os) {
  *os << r.name;
}

class LayerPlacement : public ::testing::TestWithParam<LayerRow> {};

TEST_P(LayerPlacement, AnchoredToTheNearestEdge) {
  const LayerRow& r = GetParam();
  const layer_placement::Placement p = layer_placement::anchoredAt(r.screen, kPopup, r.anchor);
  EXPECT_EQ(p.anchors, r.anchors);
  EXPECT_EQ(p.margins, r.margins);
  EXPECT_EQ(p.topLeft, r.topLeft);
}

const QRect kScreen(0, 0, 1280, 800), kSecond(1280, 0, 1920, 1080);
constexpr Qt::Edges kBR = Qt::BottomEdge | Qt::RightEdge, kBL = Qt::BottomEdge | Qt::LeftEdge,
                    kTR = Qt::TopEdge | Qt::RightEdge, kTL = Qt::TopEdge | Qt::LeftEdge;

INSTANTIATE_TEST_SUITE_P(
    Rows, LayerPlacement,
    ::testing::Values(
        // A bottom panel: one pixel above it, centred on the icon, from the
        // nearer side.
        LayerRow{"BottomRightIcon", kScreen, {1000, 790}, kBR, {0, 0, 80, 1}, {800, 567}},
        LayerRow{"BottomLeftIcon", kScreen, {300, 790}, kBL, {100, 0, 0, 1}, {100, 567}},
        LayerRow{"BottomFarRightKeptInside", kScreen, {1279, 799}, kBR, {0, 0, 1, 1}, {879, 567}},
        LayerRow{"BottomFarLeftKeptInside", kScreen, {5, 795}, kBL, {1, 0, 0, 1}, {1, 567}},
        // A top bar (sway's waybar by default).
        LayerRow{"TopRightIcon", kScreen, {1200, 10}, kTR, {0, 1, 1, 0}, {879, 1}},
        // The right half starts at 640.
        LayerRow{"TopCentreGoesRight", kScreen, {640, 10}, kTR, {0, 1, 440, 0}, {440, 1}},
        LayerRow{"TopOneLeftOfCentre", kScreen, {639, 10}, kTL, {439, 1, 0, 0}, {439, 1}},
        // Side panels: beside them, centred on the icon's height.
        LayerRow{"RightPanelLow", kScreen, {1270, 700}, kBR, {0, 0, 1, 1}, {879, 567}},
        LayerRow{"RightPanelMiddle", kScreen, {1270, 450}, kBR, {0, 0, 1, 234}, {879, 334}},
        LayerRow{"LeftPanelHigh", kScreen, {8, 100}, kTL, {1, 1, 0, 0}, {1, 1}},
        LayerRow{"LeftPanelMiddle", kScreen, {8, 300}, kTL, {1, 184, 0, 0}, {1, 184}},
        // Ties: a corner goes to the bottom or top edge.
        LayerRow{"BottomRightCornerTie", kScreen, {1279, 799}, kBR, {0, 0, 1, 1}, {879, 567}},
        LayerRow{"TopLeftCornerTie", kScreen, {0, 0}, kTL, {1, 1, 0, 0}, {1, 1}},
        // A point outside the screen (an unknown place) counts as its
        // nearest point inside.
        LayerRow{"FarBelowAndRight", kScreen, {5000, 5000}, kBR, {0, 0, 1, 1}, {879, 567}},
        LayerRow{"NegativeCoordinates", kScreen, {-40, 300}, kTL, {1, 184, 0, 0}, {1, 184}},
        // A second screen: margins from its own edges.
        LayerRow{"SecondScreenBottom", kSecond, {2500, 1070}, kBR, {0, 0, 500, 1}, {2300, 847}},
        LayerRow{"SecondScreenLeftPanel", kSecond, {1290, 500}, kTL, {1, 384, 0, 0}, {1281, 384}},
        // A screen smaller than the pop-up: its left edge one pixel in, the
        // far margin negative.
        LayerRow{"TinyScreen", QRect(0, 0, 300, 200), {150, 190}, kBR, {0, 0, -101, 1}, {1, -33}}),
    [](const auto& row) { return std::string(row.param.name); });

struct NestedRow {
  const char* name;
  Qt::Edges anchors;
  QMargins parentMargins;
  QPoint offset;
  QMargins margins;
};
void PrintTo(const NestedRow& r, std::ostream* os) {
  *os << r.name;
}

class NestedLayer : public ::testing::TestWithParam<NestedRow> {};

// The user drop-down (160 x 100) opened inside the 400 x 232 pop-up stays
// where it is drawn relative to the pop-up, whatever edges the pop-up hangs
// from.
TEST_P(NestedLayer, KeepsItsPlaceBesideThePopup) {
  const NestedRow& r = GetParam();
  const layer_placement::Placement parent{r.anchors, r.parentMargins, QPoint(500, 300)};
  const auto p = layer_placement::nestedIn(parent, kPopup, r.offset, QSize(160, 100));
  EXPECT_EQ(p.anchors, r.anchors);
  EXPECT_EQ(p.margins, r.margins);
  EXPECT_EQ(p.topLeft, QPoint(500, 300) + r.offset);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NestedLayer,
    ::testing::Values(NestedRow{"FromBottomRight", kBR, {0, 0, 10, 1}, {230, 40}, {0, 0, 20, 93}},
                      NestedRow{"FromTopLeft", kTL, {100, 1, 0, 0}, {230, 40}, {330, 41, 0, 0}},
                      NestedRow{"FromTopRight", kTR, {0, 1, 1, 0}, {230, 40}, {0, 41, 11, 0}},
                      // Past the pop-up's far edges: the margin stops at 0.
                      NestedRow{"PastTheBottomRightEdge", kBR, {0, 0, 0, 0}, {300, 200}, {0, 0, 0, 0}}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
