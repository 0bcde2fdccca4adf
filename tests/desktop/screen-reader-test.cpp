// The first run as a screen reader's user makes it, up to the tray pop-up
// and the activity list: everything read from the accessibility tree
// (AT-SPI) and every button pressed through it, never a key or a click. The
// accessibility bus comes up after the agent, as it does when a screen
// reader is started later.
#include "desktop/agent-desktop.h"
#include "desktop/atspi-tree.h"

namespace desktop_test {
namespace {

using Node = A11yNode;

class ScreenReader : public AgentDesktop {
 protected:
  void TearDown() override {
    AgentDesktop::TearDown();
    a11y_.reset();
  }
  ::testing::AssertionResult startAccessibilityBus() {
    a11y_ = std::make_unique<AtspiTree>(env_, source("/tests/desktop/atspi-driver.py"), agent_->processId());
    return a11y_->startBus(QString::fromStdString(scratch_->path()) + "/at-spi.err");
  }
  QVector<Node> tree() const { return a11y_->nodes(); }
  Node waitForNode(const std::function<bool(const Node&)>& match, int ms) const {
    return a11y_->waitFor(match, ms);
  }
  bool press(const QString& name) const { return a11y_->press(name); }

  std::unique_ptr<AtspiTree> a11y_;
};

TEST_F(ScreenReader, FirstRunThroughAccessibilityActionsAlone) {
  ASSERT_TRUE(startSim("first-run"));
  ASSERT_TRUE(startAgent());
  ASSERT_FALSE(waitForAgentWindow(30000).isEmpty()) << "no wizard";
  ASSERT_TRUE(startAccessibilityBus());

  // The wizard is a frame, as a screen reader expects of an application window.
  const Node start = waitForNode([](const Node& n) { return n.name == "Let's Start"; }, 30000);
  ASSERT_EQ(start.role, "push button") << "the agent never showed on the accessibility bus";
  for (const Node& n : tree()) {
    if (n.depth != 1) continue;
    EXPECT_TRUE(n.role == "frame" || n.role == "dialog") << n.role.toStdString();
  }
  ASSERT_TRUE(press("Let's Start"));
  ASSERT_TRUE(waitForAction("get_site_info", 30000)) << "the browser's return never reached the agent";

  // Every value of the summary is heard whole, with its caption as
  // description (the site chooser's name is the chosen site).
  const auto valueOf = [&](const QString& caption) {
    return waitForNode([&](const Node& n) { return n.description == caption && !n.name.isEmpty(); }, 20000);
  };
  const Node policy = valueOf("Backup Policy"), site = valueOf("Data Center"),
             schedule = valueOf("Backup schedule"), scope = valueOf("Backup scope");
  shot("summary");
  EXPECT_EQ(site.role, "combo box");
  EXPECT_NE(site.name, site.description);
  for (const Node& v : {policy, schedule, scope}) {
    EXPECT_EQ(v.role, "label") << v.description.toStdString();
    EXPECT_NE(v.name, v.description) << "a value read as its caption";
  }

  ASSERT_TRUE(press("Done"));
  ASSERT_TRUE(waitForAction("create_device", 15000));
  // The back-up-now question (a sheet over the wizard) is a dialog; its OK
  // is pressed like any button.
  const Node question = waitForNode([](const Node& n) { return n.role == "dialog"; }, 20000);
  ASSERT_EQ(question.role, "dialog") << "no back-up-now question";
  ASSERT_TRUE(waitUntil([&] { return press("OK"); }, 10000));
  ASSERT_TRUE(waitForAction("backup_now", 15000));

  // The tray pop-up (a pop-up window, which Qt leaves out of the tree) is
  // reached like any window; its activity button opens the list, whose rows
  // are heard.
  ASSERT_EQ(
      waitForNode([](const Node& n) { return n.name == "Activity" && n.role == "push button"; }, 20000).role,
      "push button")
      << "the pop-up is not in the tree";
  shot("popup");
  ASSERT_TRUE(press("Activity"));
  const Node row =
      waitForNode([](const Node& n) { return n.role == "table cell" && !n.name.isEmpty(); }, 20000);
  EXPECT_FALSE(row.name.isEmpty()) << "the activity rows are silent";
  shot("activity");
}

}  // namespace
}  // namespace desktop_test
