// Titles and texts of pushed notifications.
#include <gmock/gmock.h>

#include "core/notification-text.h"
#include "json-access.h"

namespace {

Json::Value parse(const char* text) {
  Json::Value v;
  EXPECT_TRUE(jsonx::parse(text, v)) << text;
  return v;
}

struct NotificationCase {
  int type;
  const char* data;
  const char* title;
  const char* text;
};

void PrintTo(const NotificationCase& c, std::ostream* os) {
  *os << "type " << c.type << " " << c.data;
}

class Notification : public ::testing::TestWithParam<NotificationCase> {};

TEST_P(Notification, TitleAndText) {
  const NotificationCase& c = GetParam();
  const Json::Value data = parse(c.data);
  EXPECT_EQ(notification_text(c.type, data, true), QString::fromUtf8(c.title));
  EXPECT_EQ(notification_text(c.type, data, false), QString::fromUtf8(c.text));
}

INSTANTIATE_TEST_SUITE_P(
    Types, Notification,
    ::testing::Values(
        NotificationCase{6, "{}", "Backup successful", "Your device was backed up."},
        NotificationCase{
            10, "{}", "Device removed",
            "This device has been removed from the account. Go to the Nimbra Backup console for more "
            "information."},
        NotificationCase{11, R"({"status": 4})", "Full Disk Access required",
                         "Enable Full Disk Access in Privacy & Security."},
        NotificationCase{12, "{}", "System extension required",
                         "Go to Privacy & Security and enable system extensions for Nimbra Backup."},
        // No message for these types: empty title and text.
        NotificationCase{0, R"({"status": 2})", "", ""}, NotificationCase{13, "{}", "", ""},
        NotificationCase{-1, "{}", "", ""}, NotificationCase{5, "{}", "", ""}));

const char kFinishText[] = "Check the activity logs in the agent for more information.";

INSTANTIATE_TEST_SUITE_P(
    BackupResult, Notification,
    ::testing::Values(NotificationCase{7, R"({"status": 1})", "Nimbra Backup ", kFinishText},
                      NotificationCase{7, R"({"status": 2})", "Nimbra Backup Successful", kFinishText},
                      NotificationCase{7, R"({"status": 3})", "Nimbra Backup Partially Successful",
                                       kFinishText},
                      NotificationCase{7, R"({"status": 4})", "Nimbra Backup Failed", kFinishText},
                      NotificationCase{7, R"({"status": 5})", "Nimbra Backup Canceled", kFinishText},
                      NotificationCase{7, R"({"status": 6})", "Nimbra Backup ", kFinishText},
                      NotificationCase{7, R"({})", "Nimbra Backup ", kFinishText},
                      // Wrong types read as missing.
                      NotificationCase{7, R"({"status": "4"})", "Nimbra Backup ", kFinishText},
                      NotificationCase{7, R"({"status": 4.5})", "Nimbra Backup ", kFinishText},
                      NotificationCase{7, R"([4])", "Nimbra Backup ", kFinishText},
                      NotificationCase{7, R"({"status": 4294967300})", "Nimbra Backup ", kFinishText}));

INSTANTIATE_TEST_SUITE_P(
    Storage, Notification,
    ::testing::Values(NotificationCase{8, R"({"total_size": 1073741824})", "Storage is almost full",
                                       "You have used 85% of your total storage (1 GB)."},
                      NotificationCase{8, R"({"total_size": 1536})", "Storage is almost full",
                                       "You have used 85% of your total storage (1.5 KB)."},
                      NotificationCase{9, R"({"total_size": 1099511627776})", "Storage is full",
                                       "You have used 95% of your total storage (1 TB)."},
                      NotificationCase{9, R"({"total_size": 999})", "Storage is full",
                                       "You have used 95% of your total storage (999 Bytes)."},
                      NotificationCase{9, R"({"total_size": 5368709120.0})", "Storage is full",
                                       "You have used 95% of your total storage (5 GB)."},
                      NotificationCase{8, R"({})", "Storage is almost full",
                                       "You have used 85% of your total storage (0 Bytes)."},
                      NotificationCase{8, R"({"total_size": "1073741824"})", "Storage is almost full",
                                       "You have used 85% of your total storage (0 Bytes)."},
                      NotificationCase{9, R"({"total_size": -5})", "Storage is full",
                                       "You have used 95% of your total storage (0 Bytes)."}));

TEST(NotificationResult, Words) {
  EXPECT_EQ(notification_result_text(2), QStringLiteral("Successful"));
  EXPECT_EQ(notification_result_text(3), QStringLiteral("Partially Successful"));
  EXPECT_EQ(notification_result_text(4), QStringLiteral("Failed"));
  EXPECT_EQ(notification_result_text(5), QStringLiteral("Canceled"));
  EXPECT_TRUE(notification_result_text(0).isEmpty());
  EXPECT_TRUE(notification_result_text(1).isEmpty());
}

}  // namespace
