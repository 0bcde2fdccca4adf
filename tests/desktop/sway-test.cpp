// The agent on Wayland: sway (headless) with waybar as its StatusNotifierItem
// host. The tray pop-up opens as a layer surface where the agent placed it,
// never as a tile; the wizard floats and takes keys, and a screen
// reader started after the agent finds it. There is no pointer: the icon is
// clicked through its D-Bus Activate, keys come from wtype.
//
// sway refuses to run as root, so it and waybar run as nobody (uid 65534)
// in a runtime folder of their own, on a session bus whose policy lets that
// user in; the agent and the tools run as the test's user.
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include "tests/desktop/agent-desktop.h"
#include "tests/desktop/atspi-tree.h"

namespace desktop_test {
namespace {

class Sway : public AgentDesktop {
 protected:
  bool withTray() const override { return false; }  // no tint2: waybar is the tray

  void SetUp() override {
    AgentDesktop::SetUp();
    if (HasFatalFailure()) return;
    for (const char* program : {"sway", "swaymsg", "waybar", "grim", "wtype", "setpriv", "busctl"})
      ASSERT_FALSE(QStandardPaths::findExecutable(program).isEmpty())
          << program << " is missing: scripts/setup installs the desktop test tools";
    // Readable by nobody, unlike the test's own scratch folder.
    runtime_ = std::make_unique<QTemporaryDir>(QDir::tempPath() + "/nimbra-sway-XXXXXX");
    const QString rt = runtime_->path();
    ASSERT_EQ(::chown(qPrintable(rt), 65534, 65534), 0);
    ASSERT_EQ(::chmod(qPrintable(rt), 0700), 0);
    ASSERT_TRUE(nimbra_test::write_text(rt + "/sway.conf",
                                        "output HEADLESS-1 resolution 1280x800\ndefault_border normal\n"));
    ASSERT_TRUE(nimbra_test::write_text(
        rt + "/waybar.json",
        R"({ "position": "bottom", "height": 30, "modules-right": ["tray"], "tray": {"icon-size": 22} })"));
    ASSERT_TRUE(nimbra_test::write_text(
        rt + "/bus.conf",
        "<busconfig><type>session</type><listen>unix:path=" + rt +
            "/bus</listen><auth>EXTERNAL</auth><policy context=\"default\"><allow user=\"*\"/>"
            "<allow send_destination=\"*\" eavesdrop=\"true\"/><allow eavesdrop=\"true\"/>"
            "<allow own=\"*\"/></policy></busconfig>\n"));
    for (const char* f : {"/sway.conf", "/waybar.json", "/bus.conf"})
      ::chown(qPrintable(rt + f), 65534, 65534);
    start(bus_, "dbus-daemon", {"--config-file=" + rt + "/bus.conf", "--nofork", "--print-address"});
    ASSERT_TRUE(bus_->waitForReadyRead(30000)) << "no session bus";
    env_.insert("DBUS_SESSION_BUS_ADDRESS", QString::fromUtf8(bus_->readLine()).trimmed());
    ASSERT_EQ(::chmod(qPrintable(rt + "/bus"), 0777), 0);
    // timeout: sway and waybar run as another user, out of reach of the
    // death signal that ends the test's other helpers with the test.
    const QStringList asNobody{"--reuid=65534",
                               "--regid=65534",
                               "--clear-groups",
                               "env",
                               "-i",
                               "PATH=/usr/bin:/bin",
                               "HOME=" + rt,
                               "XDG_RUNTIME_DIR=" + rt,
                               "DBUS_SESSION_BUS_ADDRESS=" + env_.value("DBUS_SESSION_BUS_ADDRESS")};
    start(sway_, "setpriv",
          asNobody + QStringList{"WLR_BACKENDS=headless", "WLR_LIBINPUT_NO_DEVICES=1", "WLR_RENDERER=pixman",
                                 "WLR_HEADLESS_OUTPUTS=1", "timeout", "170", "sway", "-c", rt + "/sway.conf"},
          "sway.log");
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(rt + "/wayland-1") && !swaySocket().isEmpty(); }, 30000))
        << "sway did not come up";
    start(waybar_, "setpriv",
          asNobody +
              QStringList{"WAYLAND_DISPLAY=wayland-1", "timeout", "170", "waybar", "-c", rt + "/waybar.json"},
          "waybar.log");
    ASSERT_TRUE(waitUntil(
        [&] {
          return !exec("busctl", {"--user", "status", "org.kde.StatusNotifierWatcher"}).isEmpty();
        },
        30000))
        << "waybar's tray did not come up";
    env_.remove("DISPLAY");
    env_.insert("QT_QPA_PLATFORM", "wayland");
    env_.insert("WAYLAND_DISPLAY", rt + "/wayland-1");
    // A keyboard on the seat for as long as the test runs (without one the
    // first keys are lost).
    start(keyboard_, "wtype", {"-s", "3600000"});
  }

  void TearDown() override {
    if (HasFailure() && runtime_) grim("at-failure-sway");
    AgentDesktop::TearDown();  // the agent first
    for (auto* p : {&keyboard_, &waybar_, &sway_, &bus_}) nimbra_test::stop_process(*p);
    for (const char* log : {"sway.log", "waybar.log"})
      if (runtime_) QFile::copy(runtime_->path() + "/" + log, shotDir_ + "/" + log);
  }

  void start(std::unique_ptr<QProcess>& p, const QString& program, const QStringList& args,
             const QString& log = {}) {
    p = std::make_unique<nimbra_test::ChildProcess>();
    p->setProcessEnvironment(env_);
    if (!log.isEmpty())
      p->setProcessChannelMode(QProcess::MergedChannels),
          p->setStandardOutputFile(runtime_->path() + "/" + log);
    p->start(program, args);
  }
  // Runs a program with the agent's environment; its output, empty when it failed.
  QString exec(const QString& program, const QStringList& args) const {
    nimbra_test::ChildProcess p;
    p.setProcessEnvironment(env_);
    p.start(program, args);
    p.waitForFinished(10000);
    return p.exitCode() == 0 ? QString::fromUtf8(p.readAllStandardOutput()) : QString();
  }
  void keys(const QStringList& names) override {
    for (const QString& k : names) exec("wtype", {"-k", k});
  }
  QString swaySocket() const {
    const QStringList s = QDir(runtime_->path()).entryList({"sway-ipc.*.sock"}, QDir::System);
    return s.isEmpty() ? QString() : runtime_->path() + "/" + s.first();
  }
  // sway's windows of the agent, with their rectangles and whether they float.
  QJsonArray agentTiles() const {
    QJsonArray out;
    std::function<void(const QJsonObject&, bool)> walk = [&](const QJsonObject& node, bool floating) {
      if (node.value("pid").toInt() == agent_->processId()) {
        QJsonObject w = node;
        w.insert("floating", floating);
        out.append(w);
      }
      for (const QJsonValue& c : node.value("nodes").toArray()) walk(c.toObject(), floating);
      for (const QJsonValue& c : node.value("floating_nodes").toArray()) walk(c.toObject(), true);
    };
    walk(QJsonDocument::fromJson(exec("swaymsg", {"-s", swaySocket(), "-t", "get_tree"}).toUtf8()).object(),
         false);
    return out;
  }
  // A screenshot of the output; the picture.
  QImage grim(const QString& step) {
    const QString path =
        QStringLiteral("%1/%2-%3.png").arg(shotDir_).arg(++shots_, 2, 10, QChar('0')).arg(step);
    exec("grim", {path});
    return QImage(path);
  }
  // A click on the agent's icon, as waybar sends it, once waybar shows it.
  ::testing::AssertionResult clickIcon() {
    QRegularExpressionMatch item;
    if (!waitUntil(
            [&] {
              item = QRegularExpression("\"([^\"/]+)(/[^\"]*)\"")
                         .match(exec("busctl", {"--user", "get-property", "org.kde.StatusNotifierWatcher",
                                                "/StatusNotifierWatcher", "org.kde.StatusNotifierWatcher",
                                                "RegisteredStatusNotifierItems"}));
              return item.hasMatch();
            },
            30000))
      return ::testing::AssertionFailure() << "no icon on waybar";
    exec("busctl", {"--user", "call", item.captured(1), item.captured(2), "org.kde.StatusNotifierItem",
                    "Activate", "ii", "1200", "790"});
    return ::testing::AssertionSuccess();
  }

  std::unique_ptr<QTemporaryDir> runtime_;
  std::unique_ptr<QProcess> bus_, sway_, waybar_, keyboard_;
};

TEST_F(Sway, PopupIsALayerSurfaceWhereTheAgentPlacedItNeverATile) {
  ASSERT_TRUE(startLinked("idle"));
  ASSERT_TRUE(clickIcon());
  ASSERT_TRUE(waitForLog("tray pop-up: layer surface for", 30000)) << "the pop-up is no layer surface";
  const QRegularExpressionMatch placed =
      QRegularExpression("layer surface for \\((-?\\d+), (-?\\d+)\\) at \\((-?\\d+), (-?\\d+)\\)")
          .match(logLines("tray pop-up: layer surface for").last());
  ASSERT_TRUE(placed.hasMatch());
  const QRect card(placed.captured(3).toInt(), placed.captured(4).toInt(), 400, 232);

  // On screen where the agent placed it: the card's white fills its
  // rectangle, and the screen's grey is just outside it.
  const auto white = [](const QImage& shot, const QRect& area, bool inside) {
    int n = 0;
    for (int y = 0; y < shot.height(); y += 4)
      for (int x = 0; x < shot.width(); x += 4)
        n += area.contains(x, y) == inside && shot.pixel(x, y) == qRgb(255, 255, 255);
    return n;
  };
  QImage screen;
  ASSERT_TRUE(waitUntil(
      [&] { return white(screen = grim("popup"), card.adjusted(8, 40, -8, -40), true) > 700; }, 30000))
      << "the card is not at " << card.x() << "," << card.y();
  const QPoint outside = card.left() > 4 ? QPoint(card.left() - 3, card.center().y())
                                         : QPoint(card.right() + 4, card.center().y());
  EXPECT_NE(screen.pixel(outside), qRgb(255, 255, 255)) << "the card is wider than its place";
  // No window of the agent's: no tile, no floating window either.
  EXPECT_EQ(agentTiles().size(), 0) << QJsonDocument(agentTiles()).toJson().toStdString();
  EXPECT_FALSE(agentStderr().contains("requestActivate")) << agentStderr().toStdString();

  // Its user drop-down (a menu opened from a layer surface, so a layer
  // surface beside it) comes up from the keyboard: white outside the card.
  const int before = white(screen, card, false);
  keys({"Tab", "Tab", "space"});
  EXPECT_TRUE(waitUntil([&] { return white(grim("user-menu"), card, false) > before + 500; }, 30000))
      << "no user drop-down";
  // Escape closes it, and Escape the pop-up (the keyboard came with it).
  keys({"Escape", "Escape"});
  EXPECT_TRUE(waitUntil([&] { return grim("closed").pixel(card.center()) != qRgb(255, 255, 255); }, 30000))
      << "Escape did not close the pop-up";
}

// A compositor without layer-shell (GNOME) is played by Qt's plain
// xdg-shell: the pop-up is then a small fixed-size window, floated, not tiled.
TEST_F(Sway, WithoutLayerShellThePopupIsASmallFloatingWindow) {
  env_.insert("QT_WAYLAND_SHELL_INTEGRATION", "xdg-shell");
  ASSERT_TRUE(startLinked("idle"));
  ASSERT_TRUE(clickIcon());
  QJsonArray tiles;
  ASSERT_TRUE(waitUntil([&] { return (tiles = agentTiles()).size() == 1; }, 30000)) << "no pop-up window";
  grim("popup-framed");
  const QJsonObject window = tiles.first().toObject();
  EXPECT_TRUE(window.value("floating").toBool()) << "the pop-up window is tiled";
  EXPECT_EQ(window.value("window_rect").toObject().value("width").toInt(), 400);
  EXPECT_EQ(window.value("window_rect").toObject().value("height").toInt(), 232);
  EXPECT_FALSE(agentStderr().contains("requestActivate")) << agentStderr().toStdString();
}

TEST_F(Sway, FirstRunByKeyboardInAFloatingWizard) {
  ASSERT_TRUE(startSim("first-run"));
  ASSERT_TRUE(startAgent());
  QJsonArray tiles;
  ASSERT_TRUE(waitUntil([&] { return (tiles = agentTiles()).size() == 1; }, 30000)) << "no wizard";
  EXPECT_TRUE(tiles.first().toObject().value("floating").toBool()) << "the wizard is tiled";
  EXPECT_TRUE(tiles.first().toObject().value("focused").toBool());
  grim("welcome");
  // A screen reader started now finds the wizard, a frame, on Wayland too.
  AtspiTree a11y(env_, source("/tests/desktop/atspi-driver.py"), agent_->processId());
  ASSERT_TRUE(a11y.startBus(runtime_->path() + "/at-spi.err"));
  EXPECT_EQ(a11y.waitFor([](const A11yNode& n) { return n.depth == 1; }, 30000).role, "frame");
  // Keys reach it (the rest of the first run is the FirstRun story's).
  ASSERT_TRUE(pressUntil(
      "Return", [&] { return countOf("get_auth") > 0; }, 30000));
}

}  // namespace
}  // namespace desktop_test
