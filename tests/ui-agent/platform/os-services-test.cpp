// The platform layer's rules that hold on every system: the taskbar colour
// rule, the renderer choice and what the mouse hook reports.
#include <gtest/gtest.h>

#include <vector>

#include "ui-agent/platform/os-services.h"

namespace {

using os_services::WindowsVersion;

TEST(TaskbarTheme, DarkExactlyWhenTheRuleSays) {
  struct {
    unsigned long major;
    bool has_value;
    unsigned long value;
    bool dark;
  } const rows[] = {{10, true, 1, false}, {10, true, 0, true},  {10, false, 0, true}, {10, true, 2, false},
                    {6, true, 0, false},  {6, false, 0, false}, {11, true, 0, true}};
  for (const auto& r : rows)
    EXPECT_EQ(os_services::is_dark_taskbar(WindowsVersion{r.major, 3}, r.has_value, r.value), r.dark)
        << r.major << " " << r.has_value << " " << r.value;
}

TEST(AgentRenderer, WarpOnlyForMajorVersionSix) {
  EXPECT_TRUE(os_services::wants_warp_renderer(WindowsVersion{6, 1}));
  EXPECT_TRUE(os_services::wants_warp_renderer(WindowsVersion{6, 3}));
  EXPECT_FALSE(os_services::wants_warp_renderer(WindowsVersion{10, 0}));
  EXPECT_FALSE(os_services::wants_warp_renderer(WindowsVersion{5, 1}));
  EXPECT_FALSE(os_services::wants_warp_renderer(WindowsVersion{}));
}

TEST(AgentMouseHook, ReportsLeftPressesOnlyWithTheirPosition) {
  std::vector<std::pair<int, int>> seen;
  os_services::detail::set_hook_callback([&](int x, int y) { seen.emplace_back(x, y); });
  EXPECT_FALSE(os_services::MouseHook::dispatch(0x0200, 5, 6));  // move
  EXPECT_FALSE(os_services::MouseHook::dispatch(0x0202, 5, 6));  // left release
  EXPECT_FALSE(os_services::MouseHook::dispatch(0x0204, 5, 6));  // right press
  EXPECT_TRUE(os_services::MouseHook::dispatch(0x0201, -1920, 1079));
  os_services::detail::set_hook_callback(nullptr);
  EXPECT_TRUE(os_services::MouseHook::dispatch(0x0201, 1, 1));  // nobody listening: no crash
  ASSERT_EQ(seen.size(), 1u);
  EXPECT_EQ(seen[0], std::make_pair(-1920, 1079));
}

}  // namespace
