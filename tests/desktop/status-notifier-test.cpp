// The agent on StatusNotifierItem panels (X11). StatusNotifierPanel: a bare
// org.kde.StatusNotifierWatcher (sni-watcher.py) stands for the panel, and
// busctl does what the panel does: reads the item, clicks it (Activate with
// the point of the click) and clicks its menu's entries (dbusmenu Event).
// BothTrays: the watcher beside tint2, coming and going. LateXEmbedTray:
// tint2 starting after the agent. LxqtPanel: a real panel, clicked with the
// pointer.
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include "desktop/agent-desktop.h"

namespace desktop_test {
namespace {

class StatusNotifierPanel : public AgentDesktop {
 protected:
  bool withTray() const override { return false; }

  ::testing::AssertionResult startWatcher() {
    if (!QFile::exists("/usr/bin/busctl"))
      return ::testing::AssertionFailure() << "busctl is missing: scripts/setup installs it";
    watcher_ = std::make_unique<nimbra_test::ChildProcess>();
    watcher_->setProcessEnvironment(env_);
    watcher_->setStandardErrorFile(QString::fromStdString(scratch_->path()) + "/sni-watcher.err",
                                   QIODevice::Append);
    watcher_->start("/usr/bin/python3", {source("/tests/desktop/sni-watcher.py")});
    if (!waitUntil(
            [&] {
              watcher_->waitForReadyRead(100);
              return watcher_->readAll().contains("ready") || watcher_->state() == QProcess::NotRunning;
            },
            15000) ||
        watcher_->state() != QProcess::Running)
      return ::testing::AssertionFailure() << "the StatusNotifierWatcher did not come up";
    return ::testing::AssertionSuccess();
  }
  void stopWatcher() {
    watcher_->terminate();
    watcher_->waitForFinished(5000);
  }

  // busctl VERB ARGS..., its options ended before ARGS (which may be negative numbers).
  QString busctl(QStringList args) const {
    args.insert(1, "--");
    return run("busctl", QStringList{"--user", "--json=short"} + args);
  }
  // The "data" of a busctl reply in JSON.
  QJsonValue reply(const QStringList& args) const {
    const QJsonObject o = QJsonDocument::fromJson(busctl(args).toUtf8()).object();
    return o.value("data");
  }
  // The agent's item as the watcher lists it; empty until it registered.
  QString item() const {
    const QJsonArray items = reply({"get-property", "org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher",
                                    "org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems"})
                                 .toArray();
    return items.isEmpty() ? QString() : items.first().toString();
  }
  QJsonValue itemProperty(const QString& name) const {
    return reply({"get-property", item(), "/StatusNotifierItem", "org.kde.StatusNotifierItem", name});
  }
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
  void clickItem(int x, int y) {
    busctl({"call", item(), "/StatusNotifierItem", "org.kde.StatusNotifierItem", "Activate", "ii",
            QString::number(x), QString::number(y)});
  }
  // The pop-up's place once it is up.
  QRect popupAfterClickAt(int x, int y) {
    clickItem(x, y);
    if (!waitUntil([&] { return !popup().isEmpty(); }, 10000)) return {};
    QRect r;
    waitUntil(
        [&] {
          r = windowRect(popup());
          return !r.isEmpty();
        },
        5000);
    return r;
  }
  bool closePopup() {
    return pressUntil(
        "Escape", [&] { return popup().isEmpty(); }, 10000);
  }

  void TearDown() override {
    if (watcher_) stopWatcher();
    AgentDesktop::TearDown();
  }

  std::unique_ptr<QProcess> watcher_;
};

TEST_F(StatusNotifierPanel, PopupOpensAtTheClickAndTheItemDescribesItself) {
  ASSERT_TRUE(startWatcher());
  ASSERT_TRUE(startLinked("idle"));
  ASSERT_TRUE(waitUntil([&] { return !item().isEmpty(); }, 15000)) << "the item never registered";
  EXPECT_EQ(itemProperty("Title").toString().toStdString(), "Nimbra Backup");
  EXPECT_EQ(itemProperty("Id").toString().toStdString(), "nimbra-backup");
  EXPECT_TRUE(waitUntil([&] { return itemPicture() == TrayPicture::Success; }, 20000))
      << pictureName(itemPicture());
  const QJsonArray tip = itemProperty("ToolTip").toArray();
  ASSERT_EQ(tip.size(), 4);
  EXPECT_EQ(tip[2].toString().toStdString(), "Nimbra Backup");
  EXPECT_TRUE(tip[3].toString().contains("Successful")) << tip[3].toString().toStdString();

  // Near the bottom: centred on the click, just above it.
  QRect pop = popupAfterClickAt(900, 700);
  ASSERT_FALSE(pop.isEmpty()) << "a click on the item shows no pop-up";
  EXPECT_NEAR(pop.center().x(), 900, 2) << pop.x();
  EXPECT_GE(pop.bottom(), 690);
  EXPECT_LT(pop.bottom(), 700);
  EXPECT_TRUE(run("xwininfo", {"-id", popup()}).contains("Override Redirect State: yes")) << "not a pop-up";
  shot("popup-on-sni");
  ASSERT_TRUE(closePopup());
  // At the top-right corner: below the click, inside the screen.
  pop = popupAfterClickAt(1275, 12);
  ASSERT_FALSE(pop.isEmpty());
  EXPECT_EQ(pop.top(), 12);
  EXPECT_LE(pop.right(), 1279);
  EXPECT_GE(pop.right(), 1270);
  ASSERT_TRUE(closePopup());

  // The right-click menu over dbusmenu: its "Activity" entry opens the list.
  const QStringList getLayout{"call", item(), "/MenuBar", "com.canonical.dbusmenu", "GetLayout", "iias",
                              "0",    "-1",   "0"};
  const QJsonArray layout = reply(getLayout).toArray();
  ASSERT_EQ(layout.size(), 2) << busctl(getLayout).toStdString();
  QStringList labels;
  int activity = -1;
  for (const QJsonValue& child : layout[1].toArray().at(2).toArray()) {
    const QJsonArray entry = child.toObject().value("data").toArray();
    const QString label = entry.at(1).toObject().value("label").toObject().value("data").toString();
    labels << label;
    if (label == "Activity") activity = entry.at(0).toInt();
  }
  ASSERT_GE(activity, 0) << labels.join('|').toStdString();
  EXPECT_TRUE(labels.contains("Back up now")) << labels.join('|').toStdString();
  busctl({"call", item(), "/MenuBar", "com.canonical.dbusmenu", "Event", "isvu", QString::number(activity),
          "clicked", "s", "", "0"});
  EXPECT_FALSE(waitForAgentWindow(15000, "^Activity$").isEmpty()) << "the menu's Activity opens nothing";
}

TEST_F(StatusNotifierPanel, IconRegistersWhenThePanelStartsLate) {
  ASSERT_TRUE(startLinked("idle"));
  ASSERT_TRUE(waitForLog("StatusNotifierItem host absent", 15000));
  // Until there is a tray, "open" shows the pop-up as a window of its own.
  EXPECT_EQ(launchAgain({}), 0);
  ASSERT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 15000)) << "\"open\" shows nothing";
  EXPECT_TRUE(run("xwininfo", {"-id", popup()}).contains("Override Redirect State: no"));
  ASSERT_TRUE(activate(popup()));
  ASSERT_TRUE(closePopup());

  ASSERT_TRUE(startWatcher());
  ASSERT_TRUE(waitUntil([&] { return !item().isEmpty(); }, 10000)) << "the item never registered";
  EXPECT_FALSE(popupAfterClickAt(640, 400).isEmpty()) << "a click on the item shows no pop-up";
  EXPECT_TRUE(run("xwininfo", {"-id", popup()}).contains("Override Redirect State: yes")) << "not a pop-up";
}

// A panel that has both kinds of tray (tint2 here, and the watcher).
class BothTrays : public StatusNotifierPanel {
 protected:
  bool withTray() const override { return true; }
};

TEST_F(BothTrays, IconMovesToTheItemPanelWhileItRunsAndBack) {
  ASSERT_TRUE(startLinked("idle"));  // the icon in tint2
  ASSERT_TRUE(startWatcher());
  ASSERT_TRUE(waitUntil([&] { return !item().isEmpty(); }, 10000)) << "the item never registered";
  EXPECT_TRUE(waitUntil([&] { return trayIcon().isEmpty(); }, 10000)) << "the icon shows twice";
  stopWatcher();
  EXPECT_TRUE(waitUntil([&] { return !trayIcon().isEmpty(); }, 10000)) << "the icon is not back in tint2";
  clickTrayIcon();
  EXPECT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 10000)) << "a click on the icon shows no pop-up";
  ASSERT_TRUE(closePopup());
  // The panel starts again.
  ASSERT_TRUE(startWatcher());
  EXPECT_TRUE(waitUntil([&] { return !item().isEmpty(); }, 10000)) << "the item never registered again";
}

class LateXEmbedTray : public AgentDesktop {
 protected:
  bool withTray() const override { return false; }
};

TEST_F(LateXEmbedTray, IconAppearsWhenThePanelStarts) {
  ASSERT_TRUE(startLinked("idle"));
  ASSERT_TRUE(waitForLog("StatusNotifierItem host absent", 15000));
  const QString why = desktop_->startTray();
  ASSERT_TRUE(why.isEmpty()) << why.toStdString();
  ASSERT_TRUE(waitUntil([&] { return !trayIcon().isEmpty(); }, 15000)) << "no icon in the late tray";
  EXPECT_TRUE(waitForTrayPicture(TrayPicture::Success, 10000)) << pictureName(trayPicture());
  clickTrayIcon();
  EXPECT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 10000)) << "a click on the icon shows no pop-up";
}

// A real StatusNotifierItem panel, clicked as a person clicks it.
class LxqtPanel : public AgentDesktop {
 protected:
  bool withTray() const override { return false; }
  void TearDown() override {
    if (panel_) {
      panel_->kill();
      panel_->waitForFinished(5000);
    }
    AgentDesktop::TearDown();
  }
  ::testing::AssertionResult startPanel() {
    if (QStandardPaths::findExecutable("lxqt-panel").isEmpty())
      return ::testing::AssertionFailure() << "lxqt-panel is missing: scripts/setup installs it";
    const QString config = env_.value("XDG_CONFIG_HOME") + "/lxqt";
    QDir().mkpath(config);
    QFile conf(config + "/panel.conf");
    if (!conf.open(QIODevice::WriteOnly) ||
        conf.write("[General]\n__userfile__=true\npanels=panel1\n\n[panel1]\nalignment=-1\n"
                   "panelSize=32\niconSize=22\nplugins=statusnotifier\nposition=Bottom\nwidth=100\n"
                   "width-percent=true\n\n[statusnotifier]\ntype=statusnotifier\n") < 0)
      return ::testing::AssertionFailure() << "cannot write " << conf.fileName().toStdString();
    conf.close();
    panel_ = std::make_unique<nimbra_test::ChildProcess>();
    panel_->setProcessEnvironment(env_);
    panel_->setStandardOutputFile(QString::fromStdString(scratch_->path()) + "/lxqt-panel.log");
    panel_->setStandardErrorFile(QString::fromStdString(scratch_->path()) + "/lxqt-panel.log",
                                 QIODevice::Append);
    panel_->start("lxqt-panel", QStringList());
    if (!waitUntil(
            [&] {
              return run("busctl", {"--user", "list"}).contains("org.kde.StatusNotifierWatcher");
            },
            15000))
      return ::testing::AssertionFailure() << "lxqt-panel's watcher did not come up";
    return ::testing::AssertionSuccess();
  }
  std::unique_ptr<QProcess> panel_;
};

TEST_F(LxqtPanel, ClickOnTheIconOpensThePopupAboveItAndTheMenuWorks) {
  ASSERT_TRUE(startPanel());
  ASSERT_TRUE(startLinked("idle"));
  // The green picture in the panel along the bottom (768 to 799).
  const QRect panel(0, 768, 1280, 32);
  QPoint icon;
  ASSERT_TRUE(waitUntil(
      [&] {
        icon = findColour(QColor(0x00, 0xA2, 0x82), panel, 60);
        return !icon.isNull();
      },
      20000))
      << "no green icon in the panel";
  clickAt(icon);
  ASSERT_TRUE(waitUntil([&] { return !popup().isEmpty(); }, 10000)) << "a click on the icon shows no pop-up";
  const QRect pop = windowRect(popup());
  EXPECT_LT(pop.bottom(), panel.top()) << "the pop-up covers the panel";
  EXPECT_GT(pop.bottom(), panel.top() - 40) << "the pop-up is far from the icon";
  EXPECT_TRUE(pop.left() <= icon.x() && icon.x() <= pop.right()) << pop.x() << " icon " << icon.x();
  shot("popup-on-lxqt-panel");
  ASSERT_TRUE(pressUntil(
      "Escape", [&] { return popup().isEmpty(); }, 10000));

  // The right-click menu, drawn by the panel: Open, Back up now, Activity.
  // One pixel off the last click: --sync waits for the pointer to move.
  run("xdotool",
      {"mousemove", "--sync", QString::number(icon.x() + 1), QString::number(icon.y()), "click", "3"});
  ASSERT_TRUE(waitUntil([&] { return screenPixels(QColor(0xFF, 0xFF, 0xFF), 0) > 5000; }, 10000))
      << "no menu";
  shot("menu-on-lxqt-panel");
  keys({"Down", "Down", "Down", "Return"});
  EXPECT_FALSE(waitForAgentWindow(15000, "^Activity$").isEmpty()) << "the menu's Activity opens nothing";
}

}  // namespace
}  // namespace desktop_test
