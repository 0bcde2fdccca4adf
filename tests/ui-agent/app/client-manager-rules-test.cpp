// The sign-in return message, new log entries, failure limits and the
// notifier's arguments.
#include <gtest/gtest.h>

#include "tests/support/qt-print.h"
#include "tests/support/table.h"
#include "tests/ui-agent/agent-test.h"
#include "ui-agent/app/client-manager-rules.h"

namespace {

using client_manager_rules::SchemeMessage;

class SchemeMessages : public ::testing::TestWithParam<nimbra_test::TableRow> {};

TEST_P(SchemeMessages, SplitAsTheTableSays) {
  const auto& row = GetParam();
  const SchemeMessage m = client_manager_rules::parse_scheme_message(QString::fromStdString(row[0]));
  const SchemeMessage::Kind kind = row[1] == "pair"        ? SchemeMessage::Pair
                                   : row[1] == "malformed" ? SchemeMessage::Malformed
                                                           : SchemeMessage::NotScheme;
  EXPECT_EQ(m.kind, kind);
  if (kind == SchemeMessage::Pair) {
    EXPECT_EQ(m.key, QString::fromStdString(row[2]));
    EXPECT_EQ(m.value, QString::fromStdString(row[3]));
  }
}

NIMBRA_TABLE_SUITE(SchemeMessages, "ui-agent/app/scheme-messages.tsv", 4);

TEST(NewLogEntries, OnlyAboveTheLastIdAscending) {
  const Json::Value logs = agent_test::parse(
      R"([{"id":3,"type":1},{"id":9,"type":2},{"id":5},{"id":"12"},{"id":7,"time":1700000000}])");
  const QList<LogEntry> e = client_manager_rules::new_log_entries(logs, 5);
  ASSERT_EQ(e.size(), 2);
  EXPECT_EQ(e[0].id, 7u);
  EXPECT_EQ(e[0].time, 1700000000u);
  EXPECT_EQ(e[1].id, 9u);
  EXPECT_TRUE(client_manager_rules::new_log_entries(logs, 9).isEmpty());
  EXPECT_TRUE(client_manager_rules::new_log_entries(agent_test::parse(R"({"id":10})"), 0).isEmpty());
}

TEST(FailureCount, ThirtyWhilePollingHundredTwentyBefore) {
  using client_manager_rules::Failure;
  int count = 0;
  for (int i = 0; i < 30; ++i)
    ASSERT_EQ(client_manager_rules::count_failure(count, true), Failure::Tolerated) << i;
  EXPECT_EQ(count, 30);
  EXPECT_EQ(client_manager_rules::count_failure(count, true), Failure::Fatal);  // the 31st
  count = 0;
  for (int i = 0; i < 120; ++i)
    ASSERT_EQ(client_manager_rules::count_failure(count, false), Failure::Retry) << i;
  EXPECT_EQ(client_manager_rules::count_failure(count, false), Failure::Fatal);
  EXPECT_EQ(count, 120);
}

TEST(NotifierArguments, FourPerNotificationAfterTheHeader) {
  QStringList args;
  EXPECT_FALSE(client_manager_rules::notifier_arguments(agent_test::parse(R"({"notifications":{}})"), args));
  EXPECT_TRUE(args.isEmpty());
  ASSERT_TRUE(
      client_manager_rules::notifier_arguments(agent_test::parse(R"({"site_path":"/sites/a","notifications":[
        {"id":1,"type":7,"data":{"status":2},"action_type":3},{"type":11,"action_type":"x"},{"type":0}]})"),
                                               args));
  ASSERT_EQ(args.size(), 3 + 3 * 4);
  EXPECT_EQ(args.mid(0, 3), QStringList({"1", "/sites/a", "3"}));
  EXPECT_EQ(args.mid(3, 4), QStringList({"Nimbra Backup Successful",
                                         "Check the activity logs in the agent for more information.",
                                         "Open Nimbra Backup", "3"}));
  EXPECT_EQ(args.at(9), QStringLiteral("Settings"));
  EXPECT_EQ(args.at(10), QStringLiteral("0"));
  EXPECT_EQ(args.mid(11, 4), QStringList({"", "", "Open Nimbra Backup", "0"}));
}

TEST(NotifierArguments, APushShowsItsLastFive) {
  Json::Value push = agent_test::parse(R"({"site_path":"/s","notifications":[]})");
  int leftOut = -1;
  EXPECT_EQ(client_manager_rules::bounded_notifications(push, leftOut), push);
  EXPECT_EQ(leftOut, 0);
  for (int id = 1; id <= 3000; ++id)
    push["notifications"].append(agent_test::parse(R"({"type":7})"))["id"] = id;
  const Json::Value shown = client_manager_rules::bounded_notifications(push, leftOut);
  EXPECT_EQ(leftOut, 2995);
  ASSERT_EQ(shown["notifications"].size(), 5u);
  EXPECT_EQ(shown["notifications"][0]["id"].asInt(), 2996);
  EXPECT_EQ(shown["site_path"].asString(), "/s");
  // Balloons replace each other: the last one only.
  EXPECT_EQ(client_manager_rules::balloon_notifications(shown["notifications"]),
            agent_test::parse(R"([{"type":7,"id":3000}])"));
  for (const char* none : {"[]", "{}", "null"})
    EXPECT_EQ(client_manager_rules::balloon_notifications(agent_test::parse(none)), agent_test::parse("[]"));
}

}  // namespace
