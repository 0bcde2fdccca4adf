// Linux: none of the Windows services exists, and each says so.
#include <gtest/gtest.h>

#include "ui-agent/platform/os-services.h"

TEST(AgentPlatformPosix, WindowsServicesAnswerNotWindows) {
  EXPECT_EQ(os_services::running_windows_version().major, 0u);
  EXPECT_FALSE(os_services::windows_at_least(6));
  unsigned long value = 7;
  EXPECT_FALSE(os_services::read_system_uses_light_theme(value));
  EXPECT_EQ(value, 7u);
  EXPECT_TRUE(os_services::start_process_services());
  os_services::stop_process_services();
  os_services::MouseHook hook;
  EXPECT_FALSE(hook.install([](int, int) {}));
  EXPECT_FALSE(hook.installed());
}
