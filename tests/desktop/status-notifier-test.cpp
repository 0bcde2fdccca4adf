// The agent on StatusNotifierItem panels (X11): lxqt-panel with its
// statusnotifier plugin along the bottom, and busctl doing what any panel
// does: reads the item, clicks it (Activate with the point of the click) and
// clicks its menu's entries (dbusmenu Event). BothTrays: the panel beside
// tint2, coming and going; and tint2 or the panel starting after the agent.
// Where the pop-up goes for a point is placement-test's table; here only that
// the click's point reaches it.
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>

#include "tests/desktop/agent-desktop.h"

namespace desktop_test {
namespace {

class StatusNotifierPanel : public AgentDesktop {
 protected:
  bool withTray() const override { return false; }
  void TearDown() override {
    nimbra_test::stop_process(panel_, true);
    AgentDesktop::TearDown();
  }

  // lxqt-panel, once it owns the watcher's name.
  ::testing::AssertionResult startPanel() {
    if (QStandardPaths::findExecutable("lxqt-panel").isEmpty() ||
        QStandardPaths::findExecutable("busctl").isEmpty())
      return ::testing::AssertionFailure() << "scripts/setup installs lxqt-panel and busctl";
    if (!QDir().mkpath(env_.value("XDG_CONFIG_HOME") + "/lxqt") ||
        !nimbra_test::write_text(
            env_.value("XDG_CONFIG_HOME") + "/lxqt/panel.conf",
            "[General]\n__userfile__=true\npanels=panel1\n\n[panel1]\nalignment=-1\n"
            "panelSize=32\niconSize=22\nplugins=statusnotifier\nposition=Bottom\nwidth=100\n"
            "width-percent=true\n\n[statusnotifier]\ntype=statusnotifier\n"))
      return ::testing::AssertionFailure() << "cannot write lxqt's panel.conf";
    panel_ = std::make_unique<nimbra_test::ChildProcess>();
    panel_->setProcessEnvironment(env_);
    panel_->setStandardOutputFile(scratch() + "/panel.log", QIODevice::Append);
    panel_->setStandardErrorFile(scratch() + "/panel.log", QIODevice::Append);
    panel_->start("lxqt-panel", QStringList());
    if (!waitUntil(
            [&] {
              return run("busctl", {"--user", "list"}).contains("org.kde.StatusNotifierWatcher");
            },
            30000))
      return ::testing::AssertionFailure() << "lxqt-panel's watcher did not come up";
    return ::testing::AssertionSuccess();
  }
  // The "data" of a busctl call in JSON (its options ended before the
  // arguments, which may be negative numbers).
  QJsonValue busctl(QStringList args) const {
    args.insert(1, "--");
    return QJsonDocument::fromJson(run("busctl", QStringList{"--user", "--json=short"} + args).toUtf8())
        .object()
        .value("data");
  }
  // The agent's item as the watcher lists it ("service/path" or just the
  // service): its service, empty until it registered, and its path.
  QString item(QString* path = nullptr) const {
    const QString listed = busctl({"get-property", "org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher",
                                   "org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems"})
                               .toArray()
                               .first()
                               .toString();
    if (path) *path = listed.contains('/') ? listed.mid(listed.indexOf('/')) : "/StatusNotifierItem";
    return listed.section('/', 0, 0);
  }
  QJsonValue itemCall(const QString& verb, const QStringList& args) const {
    QString path;
    const QString service = item(&path);
    return busctl(QStringList{verb, service, path, "org.kde.StatusNotifierItem"} + args);
  }
  QJsonValue itemProperty(const QString& name) const { return itemCall("get-property", {name}); }
  // The largest of the item's pictures, as the panel would draw it.
  TrayPicture itemPicture() const {
    QImage best;
    for (const QJsonValue& p : itemProperty("IconPixmap").toArray()) {
      const QJsonArray a = p.toArray();
      const int w = a.at(0).toInt(), h = a.at(1).toInt();
      const QJsonArray bytes = a.at(2).toArray();
      if (w <= best.width() || w <= 0 || h <= 0 || bytes.size() != w * h * 4) continue;
      best = QImage(w, h, QImage::Format_ARGB32);
      for (int i = 0; i < w * h; ++i)
        best.setPixel(i % w, i / w,
                      qRgba(bytes[i * 4 + 1].toInt(), bytes[i * 4 + 2].toInt(), bytes[i * 4 + 3].toInt(),
                            bytes[i * 4].toInt()));
    }
    return classifyTrayPicture(best);
  }
  // A click on the item at (x, y); the pop-up's place once it is up.
  QRect popupAfterClickAt(int x, int y) {
    itemCall("call", {"Activate", "ii", QString::number(x), QString::number(y)});
    QRect r;
    waitUntil([&] { return !(r = windowRect(popup())).isEmpty(); }, 30000);
    return r;
  }
  bool isPopup() const { return run("xwininfo", {"-id", popup()}).contains("Override Redirect State: yes"); }
  bool closePopup() {
    return pressUntil(
        "Escape", [&] { return popup().isEmpty(); }, 30000);
  }

  std::unique_ptr<QProcess> panel_;
};

TEST_F(StatusNotifierPanel, PopupOpensAtTheClickAndTheItemDescribesItself) {
  ASSERT_TRUE(startPanel());
  ASSERT_TRUE(startLinked("idle"));
  ASSERT_TRUE(waitUntil([&] { return !item().isEmpty(); }, 30000)) << "the item never registered";
  EXPECT_EQ(itemProperty("Title").toString().toStdString(), "Nimbra Backup");
  EXPECT_EQ(itemProperty("Id").toString().toStdString(), "nimbra-backup");
  EXPECT_TRUE(waitUntil([&] { return itemPicture() == TrayPicture::Success; }, 30000))
      << pictureName(itemPicture());
  EXPECT_TRUE(itemProperty("ToolTip").toArray().at(3).toString().contains("Successful"));

  const QRect pop = popupAfterClickAt(900, 700);
  EXPECT_NEAR(pop.center().x(), 900, 2) << pop.x();
  EXPECT_TRUE(pop.bottom() >= 690 && pop.bottom() < 700) << pop.bottom();
  EXPECT_TRUE(isPopup());
  shot("popup-on-sni");
  ASSERT_TRUE(closePopup());

  // The right-click menu over dbusmenu: its "Activity" entry opens the list.
  QStringList labels;
  int activity = -1;
  for (const QJsonValue& child :
       busctl({"call", item(), "/MenuBar", "com.canonical.dbusmenu", "GetLayout", "iias", "0", "-1", "0"})
           .toArray()
           .at(1)
           .toArray()
           .at(2)
           .toArray()) {
    const QJsonArray entry = child.toObject().value("data").toArray();
    labels << entry.at(1).toObject().value("label").toObject().value("data").toString();
    if (labels.last() == "Activity") activity = entry.at(0).toInt();
  }
  ASSERT_TRUE(activity >= 0 && labels.contains("Back up now")) << labels.join('|').toStdString();
  busctl({"call", item(), "/MenuBar", "com.canonical.dbusmenu", "Event", "isvu", QString::number(activity),
          "clicked", "s", "", "0"});
  EXPECT_FALSE(waitForAgentWindow(30000, "^Activity$").isEmpty()) << "the menu's Activity opens nothing";
}

TEST_F(StatusNotifierPanel, IconRegistersWhenThePanelStartsLate) {
  ASSERT_TRUE(startLinked("idle"));
  ASSERT_TRUE(waitForLog("StatusNotifierItem host absent", 30000));
  // Until there is a tray, "open" shows the pop-up as a window of its own.
  EXPECT_EQ(launchAgain({}), 0);
  ASSERT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 30000)) << "\"open\" shows nothing";
  EXPECT_FALSE(isPopup());
  ASSERT_TRUE(activate(popup()));
  ASSERT_TRUE(closePopup());
  ASSERT_TRUE(startPanel());
  ASSERT_TRUE(waitUntil([&] { return !item().isEmpty(); }, 30000)) << "the item never registered";
  EXPECT_FALSE(popupAfterClickAt(640, 400).isEmpty()) << "a click on the item shows no pop-up";
  EXPECT_TRUE(isPopup());
}

// A desktop with both kinds of tray (tint2 and the panel).
class BothTrays : public StatusNotifierPanel {
 protected:
  bool withTray() const override { return true; }
};

TEST_F(BothTrays, IconMovesToTheItemPanelWhileItRunsAndBack) {
  ASSERT_TRUE(startLinked("idle"));  // the icon in tint2
  ASSERT_TRUE(startPanel());
  ASSERT_TRUE(waitUntil([&] { return !item().isEmpty(); }, 30000)) << "the item never registered";
  EXPECT_TRUE(waitUntil([&] { return trayIcon().isEmpty(); }, 30000)) << "the icon shows twice";
  nimbra_test::stop_process(panel_);
  EXPECT_TRUE(waitUntil([&] { return !trayIcon().isEmpty(); }, 30000)) << "the icon is not back in tint2";
  clickTrayIcon();
  EXPECT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 30000)) << "a click on the icon shows no pop-up";
  ASSERT_TRUE(closePopup());
  ASSERT_TRUE(startPanel());  // the panel starts again
  EXPECT_TRUE(waitUntil([&] { return !item().isEmpty(); }, 30000)) << "the item never registered again";
}

TEST_F(StatusNotifierPanel, IconAppearsWhenAnXEmbedTrayStartsLate) {
  ASSERT_TRUE(startLinked("idle"));
  ASSERT_TRUE(waitForLog("StatusNotifierItem host absent", 30000));
  const QString why = desktop_->startTray();
  ASSERT_TRUE(why.isEmpty()) << why.toStdString();
  EXPECT_TRUE(waitForTrayPicture(TrayPicture::Success, 30000)) << pictureName(trayPicture());
  clickTrayIcon();
  EXPECT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 30000)) << "a click on the icon shows no pop-up";
}

}  // namespace
}  // namespace desktop_test
