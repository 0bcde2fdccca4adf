#pragma once
// Shared set-up of the wizard's screen tests: the product's look loaded from
// the source tree, "get_site_info" answers, and helpers to act from inside
// a nested loop and to find the sheet that is up.

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>

#include <functional>

#include "tests/support/qt-print.h"
#include "tests/ui-agent/agent-test.h"
#include "widgets/vell-message-sheet.h"

namespace wizard_test {

// Lengths are checked at scale 1, whatever the offscreen screen reports.
inline void loadLook() {
  qputenv("NIMBRA_UI_SCALE", "1");
  agent_test::loadLook();
}

// Runs `action` once the current nested loop (or the next one) processes
// events.
inline void later(std::function<void()> action, int ms = 0) {
  QTimer::singleShot(ms, qApp, std::move(action));
}

// The innermost running sheet, or null.
inline VellMessageSheet* topSheet() {
  const auto sheets = VellMessageSheet::runningSheets();
  return sheets.isEmpty() ? nullptr : sheets.last();
}

// One site of a "get_site_info" answer.
inline std::string site(const char* code, const char* sub, const char* policy, const char* url) {
  return std::string(R"({"billing":{"region":{"code":")") + code + R"(","i18n":"Region )" + code +
         R"("},"city":{"i18n":"City"},"subscription_id":")" + sub + R"("},"backup_policy":)" + policy +
         R"(,"web_console_link":"https://console.example","web_console_url":")" + url + R"("})";
}

inline const char* kDefaultPolicy =
    R"({"account_type":"vell","is_default":true,"backup_type":1,"source_type":1,"enable_backup_external":true,"schedule_setting_type":4})";
inline const char* kNamedPolicy =
    R"({"account_type":"vell","is_default":false,"policy_name":"Finance laptops","source_type":3,"custom_volume":["C:","D:","E:","F:"],"schedule_setting_type":2,"sched_content":{"time":{"run_hour":21,"run_min":30,"day_choose_by":2,"run_weekday":[1,3,5]}}})";
inline const char* kEventPolicy =
    R"({"account_type":"vell","is_default":true,"backup_type":2,"source_type":2,"schedule_setting_type":3,"sched_content":{"event":{"types":[1,3]}}})";

// US (default policy), EU (named, four volumes, weekly), JP (events).
inline Json::Value threeSites() {
  return agent_test::parse(R"({"data":[)" + site("US", "sub-us", kDefaultPolicy, "https://us.example") + "," +
                           site("EU", "sub-eu", kNamedPolicy, "https://eu.example") + "," +
                           site("JP", "sub-jp", kEventPolicy, "https://jp.example") + "]}");
}

inline Json::Value oneSite() {
  return agent_test::parse(R"({"data":[)" + site("TW", "sub-tw", kDefaultPolicy, "https://tw.example") +
                           "]}");
}

}  // namespace wizard_test
