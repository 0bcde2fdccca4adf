// Where the pop-up goes for every taskbar position, and which presses count
// as on it.
#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>

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

struct AnchorRow {
  const char* name;
  QRect icon;
  std::optional<QPoint> press;
  QRect available;
  QPoint anchor;
};
void PrintTo(const AnchorRow& r, std::ostream* os) {
  *os << r.name;
}

class PopupAnchor : public ::testing::TestWithParam<AnchorRow> {};

TEST_P(PopupAnchor, IconThenPressThenTheTaskbarCorner) {
  const AnchorRow& r = GetParam();
  EXPECT_EQ(tray_placement::anchor(r.icon, r.press, kNoBar, r.available), r.anchor);
}

// The icon at 1213,774 (22 x 22) in a bottom panel; the person pressed 1220,780.
const QRect kIcon(1213, 774, 22, 22);
INSTANTIATE_TEST_SUITE_P(
    Rows, PopupAnchor,
    ::testing::Values(
        AnchorRow{"IconCentre", kIcon, QPoint(1220, 780), kBottomBar, {1223, 784}},
        // No place told (an invalid or empty rectangle, or one off the screen): the press.
        AnchorRow{"NoPlaceThePress", QRect(), QPoint(1220, 780), kBottomBar, {1220, 780}},
        AnchorRow{"EmptyPlaceThePress", QRect(0, 0, 0, 0), QPoint(1220, 780), kBottomBar, {1220, 780}},
        AnchorRow{"OffScreenThePress", QRect(-40, -40, 22, 22), QPoint(1220, 780), kBottomBar, {1220, 780}},
        // No place and no press ("open" from a second launch): the taskbar's corner.
        AnchorRow{"BottomBar", QRect(), std::nullopt, kBottomBar, {1279, 779}},
        AnchorRow{"TopBar", QRect(), std::nullopt, kTopBar, {1279, 20}},
        AnchorRow{"RightBar", QRect(), std::nullopt, kRightBar, {1249, 799}},
        AnchorRow{"LeftBar", QRect(), std::nullopt, kLeftBar, {30, 799}},
        AnchorRow{"NoBarBottomRight", QRect(), std::nullopt, kNoBar, {1279, 799}}),
    [](const auto& row) { return std::string(row.param.name); });

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

}  // namespace
