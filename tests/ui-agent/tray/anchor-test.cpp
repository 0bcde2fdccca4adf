// Which point the pop-up is anchored at, for each kind of tray.
#include <gtest/gtest.h>

#include <climits>

#include "ui-agent/tray/tray-anchor.h"

namespace {

TEST(PopupAnchor, IsWhereTheRuleSays) {
  const QRect kIcon(1117, 774, 22, 22);
  const QVector<QRect> kScreens{QRect(0, 0, 1280, 800), QRect(1280, 0, 1920, 1080)};
  const struct {
    const char* name;
    tray_anchor::Facts facts;
    QPoint anchor;
  } rows[] = {
      // XEmbed: the icon's centre, whatever else is known.
      {"XEmbedIconCentre", {kIcon, QPoint(5, 5), QPoint(6, 6), kScreens, {}}, kIcon.center()},
      // A StatusNotifierItem panel's point, on either screen.
      {"PanelPoint", {{}, QPoint(900, 700), QPoint(6, 6), kScreens, {}}, {900, 700}},
      {"PanelPointOnTheSecondScreen", {{}, QPoint(3000, 20), QPoint(6, 6), kScreens, {}}, {3000, 20}},
      // No usable point from the panel: the pointer (X11).
      {"PanelSentZeroPointer", {{}, QPoint(0, 0), QPoint(640, 790), kScreens, {}}, {640, 790}},
      {"PanelPointOffScreenPointer", {{}, QPoint(-5, 9000), QPoint(640, 790), kScreens, {}}, {640, 790}},
      {"NoPanelPointPointer", {{}, std::nullopt, QPoint(640, 790), kScreens, {}}, {640, 790}},
      // No pointer either (Wayland): the panel's point, kept on the primary screen.
      {"ZeroWithoutPointer", {{}, QPoint(0, 0), std::nullopt, kScreens, {}}, {0, 0}},
      {"HostilePointClamped", {{}, QPoint(INT_MIN, INT_MAX), std::nullopt, kScreens, {}}, {0, 799}},
      // An icon place off every screen (Wine's tray) is no place: the pointer.
      {"IconOffScreenPointer",
       {QRect(-40, -40, 22, 22), std::nullopt, QPoint(640, 790), kScreens, {}},
       {640, 790}},
      // Nothing known ("open" from a second launch without a tray place): the
      // middle of the taskbar at the end of the work area.
      {"BottomBar", {{}, std::nullopt, std::nullopt, kScreens, QRect(0, 0, 1280, 760)}, {1279, 779}},
      {"TopBar", {{}, std::nullopt, std::nullopt, kScreens, QRect(0, 40, 1280, 760)}, {1279, 20}},
      {"RightBar", {{}, std::nullopt, std::nullopt, kScreens, QRect(0, 0, 1220, 800)}, {1249, 799}},
      {"LeftBar", {{}, std::nullopt, std::nullopt, kScreens, QRect(60, 0, 1220, 800)}, {30, 799}},
      {"NoBarBottomRight", {{}, std::nullopt, std::nullopt, kScreens, {}}, {1279, 799}},
      {"NoScreens", {{}, QPoint(7, 8), std::nullopt, {}, {}}, {7, 8}},
  };
  for (const auto& r : rows) EXPECT_EQ(tray_anchor::anchor_for(r.facts), r.anchor) << r.name;
}

}  // namespace
