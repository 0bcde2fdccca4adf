// Which point the pop-up is anchored at, for each kind of tray.
#include <gtest/gtest.h>

#include <climits>
#include <ostream>
#include <string>

#include "tray/tray-anchor.h"

namespace {

struct AnchorRow {
  const char* name;
  tray_anchor::Facts facts;
  QPoint anchor;
};
void PrintTo(const AnchorRow& r, std::ostream* os) {
  *os << r.name;
}

class PopupAnchor : public ::testing::TestWithParam<AnchorRow> {};

TEST_P(PopupAnchor, IsWhereTheRuleSays) {
  EXPECT_EQ(tray_anchor::anchorFor(GetParam().facts), GetParam().anchor);
}

const QRect kIcon(1117, 774, 22, 22);
const QVector<QRect> kScreens{QRect(0, 0, 1280, 800), QRect(1280, 0, 1920, 1080)};

INSTANTIATE_TEST_SUITE_P(
    Rows, PopupAnchor,
    ::testing::Values(
        // XEmbed: the icon's centre, whatever else is known.
        AnchorRow{"XEmbedIconCentre", {kIcon, QPoint(5, 5), QPoint(6, 6), kScreens, {}}, kIcon.center()},
        // A StatusNotifierItem panel's point, on either screen.
        AnchorRow{"PanelPoint", {{}, QPoint(900, 700), QPoint(6, 6), kScreens, {}}, {900, 700}},
        AnchorRow{
            "PanelPointOnTheSecondScreen", {{}, QPoint(3000, 20), QPoint(6, 6), kScreens, {}}, {3000, 20}},
        // No usable point from the panel: the pointer (X11).
        AnchorRow{"PanelSentZeroPointer", {{}, QPoint(0, 0), QPoint(640, 790), kScreens, {}}, {640, 790}},
        AnchorRow{
            "PanelPointOffScreenPointer", {{}, QPoint(-5, 9000), QPoint(640, 790), kScreens, {}}, {640, 790}},
        AnchorRow{"NoPanelPointPointer", {{}, std::nullopt, QPoint(640, 790), kScreens, {}}, {640, 790}},
        // No pointer either (Wayland): the panel's point, kept on the primary screen.
        AnchorRow{"ZeroWithoutPointer", {{}, QPoint(0, 0), std::nullopt, kScreens, {}}, {0, 0}},
        AnchorRow{
            "HostilePointClamped", {{}, QPoint(INT_MIN, INT_MAX), std::nullopt, kScreens, {}}, {0, 799}},
        // An icon place off every screen (Wine's tray) is no place: the pointer.
        AnchorRow{"IconOffScreenPointer",
                  {QRect(-40, -40, 22, 22), std::nullopt, QPoint(640, 790), kScreens, {}},
                  {640, 790}},
        // Nothing known ("open" from a second launch without a tray place): the
        // middle of the taskbar at the end of the work area.
        AnchorRow{
            "BottomBar", {{}, std::nullopt, std::nullopt, kScreens, QRect(0, 0, 1280, 760)}, {1279, 779}},
        AnchorRow{"TopBar", {{}, std::nullopt, std::nullopt, kScreens, QRect(0, 40, 1280, 760)}, {1279, 20}},
        AnchorRow{
            "RightBar", {{}, std::nullopt, std::nullopt, kScreens, QRect(0, 0, 1220, 800)}, {1249, 799}},
        AnchorRow{"LeftBar", {{}, std::nullopt, std::nullopt, kScreens, QRect(60, 0, 1220, 800)}, {30, 799}},
        AnchorRow{"NoBarBottomRight", {{}, std::nullopt, std::nullopt, kScreens, {}}, {1279, 799}},
        AnchorRow{"NoScreens", {{}, QPoint(7, 8), std::nullopt, {}, {}}, {7, 8}}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
