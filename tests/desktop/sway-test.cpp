// The agent on Wayland: sway (headless) with waybar as its StatusNotifierItem
// host. The tray pop-up opens as a layer surface where the agent placed it,
// never as a tile; the first run works from the keyboard, and a screen
// reader started after the agent finds it. There is no
// pointer: the icon is clicked through its D-Bus Activate, keys come from
// wtype.
//
// sway refuses to run as root, so it and waybar run as nobody (uid 65534)
// in a runtime folder of their own, on a session bus whose policy lets that
// user in; the agent and the tools run as the test's user.
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include "desktop/agent-desktop.h"
#include "desktop/atspi-tree.h"
#include "support/desktop.h"

namespace desktop_test {
namespace {

constexpr uid_t kNobody = 65534;

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
    ASSERT_TRUE(runtime_->isValid());
    const QString rt = runtime_->path();
    ASSERT_EQ(::chown(qPrintable(rt), kNobody, kNobody), 0);
    ASSERT_EQ(::chmod(qPrintable(rt), 0700), 0);
    write(rt + "/sway.conf",
          "output HEADLESS-1 resolution 1280x800\n"
          "default_border normal\n");
    write(rt + "/waybar.json",
          R"({ "position": "bottom", "height": 30, "modules-right": ["tray"], "tray": {"icon-size": 22} })");
    write(rt + "/bus.conf", "<busconfig><type>session</type><listen>unix:path=" + rt +
                                "/bus</listen><auth>EXTERNAL</auth>"
                                "<policy context=\"default\"><allow user=\"*\"/><allow "
                                "send_destination=\"*\" eavesdrop=\"true\"/>"
                                "<allow eavesdrop=\"true\"/><allow own=\"*\"/>"
                                "</policy></busconfig>\n");

    bus_ = std::make_unique<nimbra_test::ChildProcess>();
    bus_->start("dbus-daemon", {"--config-file=" + rt + "/bus.conf", "--nofork", "--print-address"});
    ASSERT_TRUE(bus_->waitForReadyRead(10000)) << "no session bus";
    busAddress_ = QString::fromUtf8(bus_->readLine()).trimmed();
    ASSERT_EQ(::chmod(qPrintable(rt + "/bus"), 0777), 0);

    // timeout: sway and waybar run as another user, out of reach of the
    // death signal that ends the test's other helpers with the test.
    sway_ = std::make_unique<nimbra_test::ChildProcess>();
    sway_->setStandardErrorFile(rt + "/sway.log");
    sway_->start("setpriv",
                 {"--reuid=65534", "--regid=65534", "--clear-groups", "env", "-i", "PATH=/usr/bin:/bin",
                  "HOME=" + rt, "XDG_RUNTIME_DIR=" + rt, "DBUS_SESSION_BUS_ADDRESS=" + busAddress_,
                  "WLR_BACKENDS=headless", "WLR_LIBINPUT_NO_DEVICES=1", "WLR_RENDERER=pixman",
                  "WLR_HEADLESS_OUTPUTS=1", "timeout", "170", "sway", "-c", rt + "/sway.conf"});
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(rt + "/wayland-1") && !swaySocket().isEmpty(); }, 10000))
        << "sway did not come up";
    waybar_ = std::make_unique<nimbra_test::ChildProcess>();
    waybar_->setStandardOutputFile(rt + "/waybar.log");
    waybar_->setStandardErrorFile(rt + "/waybar.log", QIODevice::Append);
    waybar_->start("setpriv", {"--reuid=65534", "--regid=65534", "--clear-groups", "env", "-i",
                               "PATH=/usr/bin:/bin", "HOME=" + rt, "XDG_RUNTIME_DIR=" + rt,
                               "WAYLAND_DISPLAY=wayland-1", "DBUS_SESSION_BUS_ADDRESS=" + busAddress_,
                               "timeout", "170", "waybar", "-c", rt + "/waybar.json"});
    ASSERT_TRUE(waitUntil(
        [&] {
          return !busRun({"status", "org.kde.StatusNotifierWatcher"}).isEmpty();
        },
        15000))
        << "waybar's tray did not come up";

    env_.remove("DISPLAY");
    env_.insert("QT_QPA_PLATFORM", "wayland");
    env_.insert("WAYLAND_DISPLAY", rt + "/wayland-1");
    env_.insert("DBUS_SESSION_BUS_ADDRESS", busAddress_);
    // A keyboard on the seat for as long as the test runs (without one
    // the first keys are lost).
    keyboard_ = std::make_unique<nimbra_test::ChildProcess>();
    keyboard_->setProcessEnvironment(env_);
    keyboard_->start("wtype", {"-s", "3600000"});
  }

  void TearDown() override {
    if (HasFailure() && runtime_) grim("at-failure-sway");
    AgentDesktop::TearDown();  // the agent first
    for (auto* p : {&keyboard_, &waybar_, &sway_, &bus_}) {
      if (!*p) continue;
      (*p)->terminate();
      if (!(*p)->waitForFinished(5000)) (*p)->kill();
    }
    if (runtime_) {
      for (const char* log : {"sway.log", "waybar.log"})
        QFile::copy(runtime_->path() + "/" + log, shotDir_ + "/" + log);
      runtime_.reset();
    }
  }

  static void write(const QString& path, const QString& text) {
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(text.toUtf8());
    f.close();
    ::chown(qPrintable(path), kNobody, kNobody);
  }
  QString swaySocket() const {
    const QStringList s = QDir(runtime_->path()).entryList({"sway-ipc.*.sock"}, QDir::System);
    return s.isEmpty() ? QString() : runtime_->path() + "/" + s.first();
  }
  QString busRun(const QStringList& args) const {
    nimbra_test::ChildProcess p;
    QProcessEnvironment e = env_;
    e.insert("DBUS_SESSION_BUS_ADDRESS", busAddress_);
    p.setProcessEnvironment(e);
    p.start("busctl", QStringList{"--user"} + args);
    p.waitForFinished(10000);
    return p.exitCode() == 0 ? QString::fromUtf8(p.readAllStandardOutput()) : QString();
  }
  // sway's windows of the agent: its xdg toplevels, with their rectangles.
  QJsonArray agentTiles() const {
    QJsonArray out;
    const QJsonObject root =
        QJsonDocument::fromJson(run("swaymsg", {"-s", swaySocket(), "-t", "get_tree"}).toUtf8()).object();
    std::function<void(const QJsonObject&, bool)> walk = [&](const QJsonObject& node, bool floating) {
      if (node.value("pid").toInt() == agent_->processId()) {
        QJsonObject w = node;
        w.insert("floating", floating);
        out.append(w);
      }
      for (const QJsonValue& c : node.value("nodes").toArray()) walk(c.toObject(), floating);
      for (const QJsonValue& c : node.value("floating_nodes").toArray()) walk(c.toObject(), true);
    };
    walk(root, false);
    return out;
  }
  // A screenshot of the output; the picture.
  QImage grim(const QString& step) {
    const QString path =
        QStringLiteral("%1/%2-%3.png").arg(shotDir_).arg(++shots_, 2, 10, QChar('0')).arg(step);
    QProcessEnvironment e = env_;
    nimbra_test::ChildProcess p;
    p.setProcessEnvironment(e);
    p.start("grim", {path});
    p.waitForFinished(10000);
    return QImage(path);
  }
  void type(const QString& key) {
    nimbra_test::ChildProcess p;
    p.setProcessEnvironment(env_);
    p.start("wtype", {"-k", key});
    p.waitForFinished(5000);
  }
  // Types `key` until `done` holds (3 s after each), as a person presses
  // again when a window that just came up missed the key.
  bool typeUntil(const QString& key, const std::function<bool()>& done, int ms) {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < ms) {
      type(key);
      if (waitUntil(done, 3000)) return true;
    }
    return done();
  }
  // The agent's item on waybar's tray ("service/path"), once registered.
  QString trayItem() const {
    const QRegularExpressionMatch m =
        QRegularExpression("\"([^\"/]+)(/[^\"]*)\"")
            .match(busRun({"get-property", "org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher",
                           "org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems"}));
    return m.hasMatch() ? m.captured(1) + " " + m.captured(2) : QString();
  }

  std::unique_ptr<QTemporaryDir> runtime_;
  std::unique_ptr<nimbra_test::ChildProcess> bus_, sway_, waybar_, keyboard_;
  QString busAddress_;
};

TEST_F(Sway, PopupIsALayerSurfaceWhereTheAgentPlacedItNeverATile) {
  ASSERT_TRUE(startLinked("idle"));
  QString item;
  ASSERT_TRUE(waitUntil([&] { return !(item = trayItem()).isEmpty(); }, 20000)) << "no icon on waybar";
  // A click on the icon, as waybar sends it.
  const QStringList serviceAndPath = item.split(' ');
  busRun({"call", serviceAndPath[0], serviceAndPath[1], "org.kde.StatusNotifierItem", "Activate", "ii",
          "1200", "790"});
  ASSERT_TRUE(waitForLog("tray pop-up: layer surface for", 15000)) << "the pop-up is no layer surface";
  const QRegularExpressionMatch placed =
      QRegularExpression("layer surface for \\((-?\\d+), (-?\\d+)\\) at \\((-?\\d+), (-?\\d+)\\)")
          .match(logLines("tray pop-up: layer surface for").last());
  ASSERT_TRUE(placed.hasMatch());
  const QRect card(placed.captured(3).toInt(), placed.captured(4).toInt(), 400, 232);

  // On screen where the agent placed it: the card's white fills its
  // rectangle, and the screen's grey is just outside it.
  QImage screen;
  ASSERT_TRUE(waitUntil(
      [&] {
        screen = grim("popup");
        int white = 0;
        for (int y = card.top() + 40; y < card.bottom() - 40; y += 8)
          for (int x = card.left() + 8; x < card.right() - 8; x += 8)
            white += screen.pixel(x, y) == qRgb(255, 255, 255);
        return white > 200;
      },
      10000))
      << "the card is not at " << card.x() << "," << card.y();
  const QPoint outside = card.left() > 4 ? QPoint(card.left() - 3, card.center().y())
                                         : QPoint(card.right() + 4, card.center().y());
  EXPECT_NE(screen.pixel(outside), qRgb(255, 255, 255)) << "the card is wider than its place";
  // No window of the agent's: no tile, no floating window either.
  EXPECT_EQ(agentTiles().size(), 0) << QJsonDocument(agentTiles()).toJson().toStdString();
  EXPECT_FALSE(agentStderr().contains("requestActivate")) << agentStderr().toStdString();

  // Its user drop-down (a menu opened from a layer surface, so a layer
  // surface beside it) comes up from the keyboard: white outside the card.
  const auto whiteOutside = [&](const QImage& shot) {
    int white = 0;
    for (int y = 0; y < shot.height(); y += 4)
      for (int x = 0; x < shot.width(); x += 4)
        white += !card.contains(x, y) && shot.pixel(x, y) == qRgb(255, 255, 255);
    return white;
  };
  const int before = whiteOutside(screen);
  type("Tab");
  type("Tab");
  type("space");
  EXPECT_TRUE(waitUntil([&] { return whiteOutside(grim("user-menu")) > before + 500; }, 10000))
      << "no user drop-down";
  type("Escape");

  // Escape closes it (the keyboard came with it).
  type("Escape");
  EXPECT_TRUE(waitUntil([&] { return grim("closed").pixel(card.center()) != qRgb(255, 255, 255); }, 10000))
      << "Escape did not close the pop-up";
}

// A compositor without layer-shell (GNOME) is played by Qt's plain
// xdg-shell: the pop-up is then a small fixed-size window, floated, not tiled.
TEST_F(Sway, WithoutLayerShellThePopupIsASmallFloatingWindow) {
  env_.insert("QT_WAYLAND_SHELL_INTEGRATION", "xdg-shell");
  ASSERT_TRUE(startLinked("idle"));
  QString item;
  ASSERT_TRUE(waitUntil([&] { return !(item = trayItem()).isEmpty(); }, 20000)) << "no icon on waybar";
  const QStringList serviceAndPath = item.split(' ');
  busRun({"call", serviceAndPath[0], serviceAndPath[1], "org.kde.StatusNotifierItem", "Activate", "ii",
          "1200", "790"});
  QJsonArray tiles;
  ASSERT_TRUE(waitUntil([&] { return (tiles = agentTiles()).size() == 1; }, 15000)) << "no pop-up window";
  grim("popup-framed");
  const QJsonObject window = tiles.first().toObject();
  EXPECT_TRUE(window.value("floating").toBool()) << "the pop-up window is tiled";
  const QJsonObject content = window.value("window_rect").toObject();
  EXPECT_EQ(content.value("width").toInt(), 400);
  EXPECT_EQ(content.value("height").toInt(), 232);
  EXPECT_FALSE(agentStderr().contains("requestActivate")) << agentStderr().toStdString();
}

TEST_F(Sway, FirstRunByKeyboardInAFloatingWizard) {
  ASSERT_TRUE(startSim("first-run"));
  ASSERT_TRUE(startAgent());
  QJsonArray tiles;
  ASSERT_TRUE(waitUntil([&] { return (tiles = agentTiles()).size() == 1; }, 30000)) << "no wizard";
  const QJsonObject wizard = tiles.first().toObject();
  EXPECT_TRUE(wizard.value("floating").toBool()) << "the wizard is tiled";
  EXPECT_TRUE(wizard.value("focused").toBool());
  grim("welcome");
  // A screen reader started now finds the wizard, a frame, on Wayland too.
  AtspiTree a11y(env_, source("/tests/desktop/atspi-driver.py"), agent_->processId());
  ASSERT_TRUE(a11y.startBus(runtime_->path() + "/at-spi.err"));
  EXPECT_EQ(a11y.waitFor([](const A11yNode& n) { return n.depth == 1; }, 20000).role, "frame");

  ASSERT_TRUE(typeUntil(
      "Return", [&] { return countOf("get_auth") > 0; }, 20000));
  ASSERT_TRUE(waitForAction("get_site_info", 30000)) << "the browser's return never reached the agent";
  grim("summary");
  // Done has the focus; then OK on the back-up-now question.
  ASSERT_TRUE(typeUntil(
      "Return", [&] { return countOf("create_device") > 0; }, 20000));
  ASSERT_TRUE(typeUntil(
      "Return", [&] { return countOf("backup_now") > 0; }, 20000));
  grim("after-backup-now");
  EXPECT_FALSE(agentStderr().contains("requestActivate")) << agentStderr().toStdString();
}

}  // namespace
}  // namespace desktop_test
