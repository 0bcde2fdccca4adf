// The service error message table: code -> catalogue row, the generic
// fallback, and the console link of 17 and 18 filled from the answer.

#include <gtest/gtest.h>

#include "agent-test.h"
#include "core/service-error-text.h"
#include "string-display.h"

namespace {

struct Row {
  int code;
  Str row;
};
void PrintTo(const Row& r, std::ostream* os) { *os << "code " << r.code; }

class ServiceErrorTable : public ::testing::TestWithParam<Row> {};

TEST_P(ServiceErrorTable, CodeGivesItsRow) {
  EXPECT_EQ(service_error::message_row(GetParam().code), GetParam().row) << "code " << GetParam().code;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ServiceErrorTable,
    ::testing::Values(Row{4, Str::err_general_server_error}, Row{5, Str::err_connection},
                      Row{6, Str::err_version_too_low}, Row{7, Str::err_http_forbidden},
                      Row{8, Str::err_certificate_verified_failed}, Row{9, Str::err_device_removed},
                      Row{10, Str::err_device_conflict}, Row{13, Str::err_quota}, Row{15, Str::err_auth_failed},
                      Row{16, Str::err_time_skew}, Row{17, Str::master_key_not_set},
                      Row{18, Str::dedup_key_not_set}, Row{25, Str::err_backup_role_invalid},
                      // the generic text: 12, 19, codes without a row, and outside 4..25
                      Row{12, Str::err_operation_timedout}, Row{19, Str::err_operation_timedout},
                      Row{11, Str::err_operation_timedout}, Row{14, Str::err_operation_timedout},
                      Row{3, Str::err_operation_timedout}, Row{26, Str::err_operation_timedout},
                      Row{0, Str::err_operation_timedout}, Row{-5, Str::err_operation_timedout}),
    [](const ::testing::TestParamInfo<Row>& p) {
      const int c = p.param.code;
      return (c < 0 ? "code_minus" : "code") + std::to_string(c < 0 ? -c : c);
    });

TEST(ServiceErrorMessage, ConsoleLinkIsFilledFromBaseUrlAndEscaped) {
  const auto answer = agent_test::parse(
      R"({"error":{"code":17,"base_url":"https://x.example/\"><img src=a>"}})");
  const QString text = service_error::message(service_error::code_of(answer), answer);
  EXPECT_TRUE(text.contains(QStringLiteral("href=\"https://x.example/&quot;&gt;&lt;img src=a&gt;\"")))
      << text.toStdString();
  EXPECT_FALSE(text.contains(QStringLiteral("<img")));
  EXPECT_FALSE(text.contains(QStringLiteral("%1")));
}

TEST(ServiceErrorMessage, WrongTypesReadAsMissing) {
  const auto answer = agent_test::parse(R"({"error":{"code":"18","base_url":7}})");
  EXPECT_EQ(service_error::code_of(answer), 0);
  const QString text = service_error::message(18, answer);
  EXPECT_TRUE(text.contains(QStringLiteral("href=\"\""))) << text.toStdString();
  EXPECT_EQ(service_error::code_of(agent_test::parse(R"({"error":[1]})")), 0);
  EXPECT_EQ(service_error::message(12), string_display::text(Str::err_operation_timedout));
}

}  // namespace
