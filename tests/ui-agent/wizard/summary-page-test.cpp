// The summary page shows what summary_text decides (summary-text.tsv): one
// site, several sites and switching between them, the "nimbra" account, and
// answers with members of the wrong types.

#include <QComboBox>
#include <QLabel>
#include <QSignalSpy>

#include "tests/ui-agent/wizard/wizard-fixture.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/wizard/summary-page.h"
#include "ui-agent/wizard/summary-widget.h"

namespace {

using agent_test::parse;
using string_display::text;

class SummaryPageTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { wizard_test::loadLook(); }
  void SetUp() override { page_.show(); }

  QComboBox* chooser() { return page_.findChild<QComboBox*>("SummaryComboBox"); }
  QString label(const char* name) { return page_.findChild<QLabel*>(name)->text(); }
  bool visible(const char* name) { return page_.findChild<QWidget*>(name)->isVisible(); }

  SummaryPage page_;
};

TEST_F(SummaryPageTest, OneSiteShowsAPlainLabelInsteadOfTheChooser) {
  page_.setSiteInfo(wizard_test::oneSite());
  EXPECT_FALSE(chooser()->isVisible());
  EXPECT_TRUE(visible("SummarySingleSite"));
  EXPECT_EQ(label("SummarySingleSite"), text(Str::region_taiwan));
  EXPECT_EQ(page_.siteCode(), "TW");
  EXPECT_EQ(page_.subIdForSite(), "sub-tw");
  EXPECT_EQ(page_.accountType(), "vell");
  EXPECT_TRUE(label("SummaryIntro").contains("href=\"https://tw.example\""));
}

TEST_F(SummaryPageTest, ChoosingAnotherSiteUpdatesEveryRowTheLinkAndTheSite) {
  page_.setSiteInfo(wizard_test::threeSites());
  ASSERT_TRUE(chooser()->isVisible());
  ASSERT_EQ(chooser()->count(), 3);
  EXPECT_EQ(chooser()->currentIndex(), 0);
  EXPECT_EQ(chooser()->itemText(2), "Region JP-City");
  EXPECT_EQ(label("SummaryPolicy"), text(Str::default_policy_endpoint));
  EXPECT_FALSE(visible("SummaryMoreInfo"));
  // After loading the intro carries element 0's own console address.
  EXPECT_TRUE(label("SummaryIntro").contains("href=\"https://us.example\""));
  EXPECT_EQ(chooser()->accessibleName(), text(Str::desc_data_center) + text(Str::colon));

  QSignalSpy changes(page_.findChild<SummaryWidget*>(), &SummaryWidget::sigSiteChange);
  chooser()->setCurrentIndex(1);
  ASSERT_EQ(changes.count(), 1);
  EXPECT_EQ(changes.at(0).at(0).toString(), "EU");
  EXPECT_EQ(label("SummaryPolicy"), "Finance laptops");
  EXPECT_EQ(label("SummaryPolicy"), page_.findChild<QLabel*>("SummaryPolicy")->toolTip());
  EXPECT_TRUE(label("SummarySchedule").startsWith(QStringLiteral("Weekly")));
  EXPECT_TRUE(label("SummaryScope").contains(QStringLiteral("C:, D:, E:...")));
  // Screen readers hear each value with its caption.
  EXPECT_EQ(page_.findChild<QLabel*>("SummarySchedule")->accessibleDescription(), "Backup schedule");
  EXPECT_EQ(page_.findChild<QLabel*>("SummaryScope")->accessibleDescription(), "Backup scope");
  EXPECT_TRUE(visible("SummaryMoreInfo"));
  EXPECT_TRUE(label("SummaryIntro").contains("href=\"https://eu.example\""));
  EXPECT_EQ(page_.siteCode(), "EU");
  EXPECT_EQ(page_.subIdForSite(), "sub-eu");

  chooser()->setCurrentIndex(2);
  EXPECT_FALSE(visible("SummaryMoreInfo"));
  EXPECT_EQ(page_.siteCode(), "JP");
}

TEST_F(SummaryPageTest, NimbraAccountSkipsTheSummaryWithElementZerosSite) {
  page_.setSiteInfo(wizard_test::threeSites());
  QSignalSpy done(&page_, &SummaryPage::sigReviewSummaryDone);
  Json::Value answer = wizard_test::threeSites();
  answer["data"][0]["backup_policy"]["account_type"] = "nimbra";
  answer["data"][0]["billing"]["region"]["code"] = "EU";
  page_.setSiteInfo(answer);
  EXPECT_EQ(done.count(), 1);
  EXPECT_EQ(page_.siteCode(), "EU");
  EXPECT_EQ(page_.accountType(), "nimbra");
  const char* const parts[] = {"SummaryHeader", "SummaryIntro", "SummaryWidget", "SummaryDone"};
  for (const char* name : parts) EXPECT_FALSE(visible(name)) << name;
  // The next ordinary answer shows the summary again.
  page_.setSiteInfo(wizard_test::oneSite());
  EXPECT_EQ(done.count(), 1);
  for (const char* name : parts) EXPECT_TRUE(visible(name)) << name;
}

TEST_F(SummaryPageTest, EmptyDataChangesNothing) {
  page_.setSiteInfo(wizard_test::threeSites());
  chooser()->setCurrentIndex(1);
  for (const char* answer : {R"({"data":[]})", R"({"data":{"0":{}}})", R"({"data":"US"})", R"({})"}) {
    page_.findChild<SummaryWidget*>()->setData(parse(answer));
    EXPECT_EQ(chooser()->count(), 3) << answer;
    EXPECT_EQ(chooser()->currentIndex(), 1) << answer;
    EXPECT_EQ(label("SummaryPolicy"), "Finance laptops") << answer;
  }
}

TEST_F(SummaryPageTest, MembersOfTheWrongTypeShowWhatTheyCan) {
  page_.setSiteInfo(parse(R"({"data":[
      {"billing":"US","backup_policy":{"is_default":"yes","policy_name":5,"source_type":"3",
       "schedule_setting_type":2,"sched_content":{"time":"21:30"}},"web_console_url":["x"]},
      7,
      {"billing":{"region":{"code":"EU"},"subscription_id":{"id":1}},"backup_policy":[],
       "web_console_url":"https://eu.example/\"><b>x</b>"}]})"));
  ASSERT_EQ(chooser()->count(), 3);
  chooser()->setCurrentIndex(1);  // not an object at all
  EXPECT_EQ(page_.siteCode(), "");
  chooser()->setCurrentIndex(2);
  EXPECT_EQ(page_.siteCode(), "EU");
  EXPECT_EQ(page_.subIdForSite(), "");
  // The console address is text, never markup.
  EXPECT_TRUE(label("SummaryIntro").contains("https://eu.example/&quot;&gt;&lt;b&gt;x&lt;/b&gt;"));
  EXPECT_FALSE(label("SummaryIntro").contains("<b>"));
}

TEST_F(SummaryPageTest, VolumeNamesAreEscapedInTheScopeLine) {
  Json::Value answer = wizard_test::oneSite();
  Json::Value& policy = answer["data"][0]["backup_policy"];
  policy["source_type"] = 3;
  policy["custom_volume"].append("<img src=x>");
  page_.setSiteInfo(answer);
  EXPECT_TRUE(label("SummaryScope").contains("&lt;img src=x&gt;"));
  EXPECT_FALSE(label("SummaryScope").contains("<img"));
}

}  // namespace
