// The notifier's command line and the Notify calls it makes of it: markup,
// buttons, elements without words, the icon.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "notifier/notification-ledger.h"
#include "notifier/notification-request.h"
#include "notifier/notifier-args.h"
#include "tests/support/qt-print.h"

using namespace notifier;
using ::testing::ElementsAre;

namespace {

QStringList args_of(std::initializer_list<const char*> list) {
  QStringList out;
  for (const char* a : list) out << QString::fromUtf8(a);
  return out;
}

TEST(NotifierArgs, ReadsEveryElementInOrder) {
  const ParseResult r = parse_notifier_args(args_of({"1", "/site/path", "2",                     //
                                                     "Backup successful", "Done.", "Open", "7",  //
                                                     "Storage is full", "95 % (1 GB)", "Settings", "-1"}));
  ASSERT_TRUE(r.ok) << r.error.toStdString();
  EXPECT_EQ(r.request.site_path, "/site/path");
  ASSERT_EQ(r.request.elements.size(), 2u);
  EXPECT_EQ(r.request.elements[0].title, "Backup successful");
  EXPECT_EQ(r.request.elements[0].action_type, 7);
  EXPECT_EQ(r.request.elements[1].text, "95 % (1 GB)");
  EXPECT_EQ(r.request.elements[1].button, "Settings");
  EXPECT_EQ(r.request.elements[1].action_type, -1);
}

TEST(NotifierArgs, ZeroElementsAndEmptyStringsAreWellFormed) {
  EXPECT_TRUE(parse_notifier_args(args_of({"1", "", "0"})).ok);
  const ParseResult r = parse_notifier_args(args_of({"1", "", "1", "", "", "", "0"}));
  ASSERT_TRUE(r.ok);
  EXPECT_TRUE(r.request.elements[0].title.isEmpty());
}

struct BadArgs {
  const char* name;
  QStringList args;
  const char* says;  // a word of the one error line
};
void PrintTo(const BadArgs& b, std::ostream* os) {
  *os << b.name;
}

class NotifierBadArgs : public ::testing::TestWithParam<BadArgs> {};

TEST_P(NotifierBadArgs, GiveOneLineThatSaysWhat) {
  const ParseResult r = parse_notifier_args(GetParam().args);
  EXPECT_FALSE(r.ok);
  EXPECT_FALSE(r.error.contains('\n'));
  EXPECT_TRUE(r.error.contains(GetParam().says)) << r.error.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NotifierBadArgs,
    ::testing::Values(
        BadArgs{"NoCount", args_of({"1", "/s"}), "at least 3"},
        BadArgs{"OtherVersion", args_of({"2", "/s", "0"}), "layout '2'"},
        BadArgs{"CountNotANumber", args_of({"1", "/s", "two"}), "'two'"},
        BadArgs{"CountNegative", args_of({"1", "/s", "-1"}), "'-1'"},
        BadArgs{"CountTooHigh", args_of({"1", "/s", "2", "t", "x", "b", "7"}), "need 8"},
        BadArgs{"CountTooLow", args_of({"1", "/s", "1", "t", "x", "b", "7", "extra"}), "got 5"},
        BadArgs{"HugeCount", args_of({"1", "/s", "2147483647"}), "need 8589934588"},
        BadArgs{"ActionTypeEmpty", args_of({"1", "/s", "1", "t", "x", "b", ""}), "notification 1"},
        BadArgs{"ActionTypeOverflow", args_of({"1", "/s", "1", "t", "x", "b", "2147483648"}), "2147483648"},
        BadArgs{"SecondActionTypeBad", args_of({"1", "/s", "2", "t", "x", "b", "7", "t", "x", "b", "0x8"}),
                "notification 2"}),
    [](const auto& p) { return std::string(p.param.name); });

TEST(NotifierArgs, DecimalNumbersAtTheEdgesOf32Bits) {
  int v = 0;
  EXPECT_TRUE(parse_decimal_int("2147483647", v));
  EXPECT_EQ(v, 2147483647);
  EXPECT_TRUE(parse_decimal_int("-2147483648", v));
  EXPECT_EQ(v, -2147483647 - 1);
  EXPECT_TRUE(parse_decimal_int("+11", v));
  EXPECT_EQ(v, 11);
  EXPECT_FALSE(parse_decimal_int("-2147483649", v));
  EXPECT_FALSE(parse_decimal_int("-", v));
  EXPECT_FALSE(parse_decimal_int("1 ", v));
  EXPECT_FALSE(parse_decimal_int("\xd9\xa3", v));  // an Arabic-Indic digit is not one of ours
}

NotifierRequest request_of(std::vector<NotificationElement> elements) {
  NotifierRequest r;
  r.elements = std::move(elements);
  return r;
}

TEST(NotifyCalls, BodyMarkupIsEscapedOnlyForServersThatRenderIt) {
  const auto req = request_of({{"<b>Storage</b> & co", "Tom & <i>Jerry</i> \"q\" 'a'", "Open", 7}});
  const auto marked = build_notify_calls(req, {true, true}, "Nimbra Backup", "icon");
  ASSERT_EQ(marked.size(), 1u);
  EXPECT_EQ(marked[0].body, "Tom &amp; &lt;i&gt;Jerry&lt;/i&gt; &quot;q&quot; &apos;a&apos;");
  EXPECT_EQ(marked[0].summary, "<b>Storage</b> & co");  // titles are plain text everywhere
  const auto plain = build_notify_calls(req, {false, true}, "Nimbra Backup", "icon");
  EXPECT_EQ(plain[0].body, "Tom & <i>Jerry</i> \"q\" 'a'");
}

TEST(NotifyCalls, TheButtonIsKeyedByItsActionTypeAndAClickDoesTheSame) {
  const auto calls = build_notify_calls(request_of({{"T", "x", "Settings", 11}}), {true, true}, "App", "i");
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_THAT(calls[0].actions, ElementsAre("default", "Settings", "11", "Settings"));
  EXPECT_EQ(calls[0].button_key, "11");
  EXPECT_EQ(calls[0].app_name, "App");
  EXPECT_EQ(calls[0].app_icon, "i");
  EXPECT_EQ(calls[0].hints.value("desktop-entry").toString(), "nimbra-backup-agent");
  EXPECT_EQ(calls[0].expire_timeout, -1);
}

TEST(NotifyCalls, NoButtonsForAServerWithoutActionsAndNoButtonWithoutALabel) {
  const auto req = request_of({{"T", "x", "", 7}});
  EXPECT_TRUE(build_notify_calls(req, {true, false}, "App", "i")[0].actions.isEmpty());
  const auto calls = build_notify_calls(req, {true, true}, "App", "i");
  EXPECT_THAT(calls[0].actions, ElementsAre("default", "App"));
  EXPECT_TRUE(calls[0].button_key.isEmpty());
}

TEST(NotifyCalls, ElementsWithoutWordsAreLeftOutAndTheOrderKept) {
  const auto calls = build_notify_calls(
      request_of(
          {{"", "", "Open", 0}, {"First", "", "Open", 6}, {"", "", "Open", 13}, {"", "Second", "Open", 8}}),
      {true, true}, "App", "i");
  ASSERT_EQ(calls.size(), 2u);
  EXPECT_EQ(calls[0].summary, "First");
  EXPECT_EQ(calls[1].body, "Second");
}

TEST(NotifierIcon, ThePngBesideTheProgramsElseTheThemeName) {
  QString asked;
  const QString found = notification_icon("/opt/x/bin", [&](const QString& f) {
    asked = f;
    return true;
  });
  EXPECT_EQ(found, "/opt/x/share/icons/hicolor/128x128/apps/nimbra-backup-agent.png");
  EXPECT_EQ(asked, found);
  EXPECT_EQ(notification_icon("/opt/x/bin", [](const QString&) { return false; }), "nimbra-backup-agent");
  EXPECT_EQ(agent_program("/opt/x/bin"), "/opt/x/bin/nimbra-backup-agent");
}

}  // namespace

namespace {

// ---- the kept ids: a damaged file is an empty ledger ------------------------

struct BadLedger {
  const char* name;
  const char* json;
};
void PrintTo(const BadLedger& b, std::ostream* os) {
  *os << b.name;
}
class NotifierBadLedger : public ::testing::TestWithParam<BadLedger> {};

TEST_P(NotifierBadLedger, IsEmptyWithOneLine) {
  QString problem;
  const Ledger l = parse_ledger(GetParam().json, &problem);
  EXPECT_TRUE(l.server.isEmpty() && l.ids.isEmpty());
  EXPECT_FALSE(problem.isEmpty() || problem.contains('\n')) << problem.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NotifierBadLedger,
    ::testing::Values(BadLedger{"Empty", ""}, BadLedger{"NotJson", "{\"server\""}, BadLedger{"Array", "[]"},
                      BadLedger{"NoIds", R"({"server":"s"})"},
                      BadLedger{"ServerNumber", R"({"server":1,"ids":{}})"},
                      BadLedger{"IdString", R"({"server":"s","ids":{"A":"7"}})"},
                      BadLedger{"IdZero", R"({"server":"s","ids":{"A":0}})"},
                      BadLedger{"IdFraction", R"({"server":"s","ids":{"A":1.5}})"},
                      BadLedger{"OwnerWord", R"({"server":"s","ids":{},"owners":{"x":5}})"},
                      BadLedger{"OwnerString", R"({"server":"s","ids":{},"owners":{"5":"1"}})"},
                      BadLedger{"IdOver32Bits", R"({"server":"s","ids":{"A":4294967296}})"}),
    [](const auto& p) { return std::string(p.param.name); });

NotifyCall call_titled(const QString& title) {
  NotifyCall c;
  c.summary = title;
  return c;
}

TEST(NotifierLedger, ARunReplacesTheKindItEndsWithOfTheSameServiceOnly) {
  Ledger l;
  record_shown(l, "bus :1.4", "Backup failed", 7, 100);
  record_shown(l, "bus :1.4", "Storage full", 9, 101);
  l = parse_ledger(serialize_ledger(l), nullptr);
  EXPECT_EQ(replaced_id(l, "bus :1.4", {call_titled("Storage full"), call_titled("Backup failed")}), 7u);
  EXPECT_EQ(replaced_id(l, "bus :1.4", {call_titled("Backup failed"), call_titled("Storage full")}), 9u);
  EXPECT_EQ(replaced_id(l, "bus :1.4", {call_titled("Device removed")}), 0u);
  EXPECT_EQ(replaced_id(l, "bus :1.5", {call_titled("Backup failed")}), 0u);  // a restarted service
  EXPECT_EQ(replaced_id(l, "bus :1.4", {}), 0u);
  // Kind "Backup failed" now shows in 9 (run 102): "Storage full" is no
  // longer on screen, and run 101 must leave 9 alone.
  record_shown(l, "bus :1.4", "Backup failed", 9, 102);
  EXPECT_EQ(l.ids, (QHash<QString, uint>{{"Backup failed", 9}}));
  EXPECT_TRUE(handed_over(l, "bus :1.4", 9, 101));
  EXPECT_FALSE(handed_over(l, "bus :1.4", 9, 102));
  EXPECT_FALSE(handed_over(l, "bus :1.4", 7, 100));  // closed or unknown: its own
  EXPECT_FALSE(handed_over(l, "bus :1.5", 9, 101));
  record_shown(l, "bus :1.5", "Storage full", 3, 103);
  EXPECT_EQ(l.ids, (QHash<QString, uint>{{"Storage full", 3}}));
  EXPECT_EQ(l.owners, (QHash<uint, qint64>{{3, 103}}));
}

}  // namespace
