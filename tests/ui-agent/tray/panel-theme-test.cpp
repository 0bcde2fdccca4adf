// The panel colour from the settings portal, served on a private session
// bus: the first answer, a change of scheme re-picking the tray picture, and
// values of the wrong type.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QProcess>
#include <QSignalSpy>
#include <QStyle>
#include <QTest>

#include <memory>

#include "ui-agent/tray/system-tray.h"
#include "ui-agent/tray/tray-theme.h"

namespace {

// The portal's Settings interface, answering color-scheme as the portal
// does: a variant inside a variant.
class FakeSettings : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
 public:
  QVariant value = QVariant::fromValue(1u);
  QVariant contrast = QVariant::fromValue(0u);

 public slots:
  QDBusVariant Read(const QString& nameSpace, const QString& key) {
    if (nameSpace != QLatin1String("org.freedesktop.appearance")) return QDBusVariant(QVariant());
    if (key == QLatin1String("color-scheme")) return QDBusVariant(QVariant::fromValue(QDBusVariant(value)));
    if (key == QLatin1String("contrast")) return QDBusVariant(QVariant::fromValue(QDBusVariant(contrast)));
    return QDBusVariant(QVariant());
  }
};

// One private session bus for the whole executable, in place before any test
// runs: Qt connects its session bus once per process, so a bus started by a
// later test would never reach a tray made there.
class PrivateSessionBus : public ::testing::Environment {
 public:
  static QString address;

  void SetUp() override {
    daemon_.start(QStringLiteral("dbus-daemon"), {"--session", "--nofork", "--print-address=1"});
    ASSERT_TRUE(daemon_.waitForReadyRead(10000)) << "dbus-daemon did not start";
    address = QString::fromUtf8(daemon_.readLine().trimmed());
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.toUtf8());
  }
  void TearDown() override {
    daemon_.kill();
    daemon_.waitForFinished(3000);
  }

 private:
  QProcess daemon_;
};
QString PrivateSessionBus::address;
::testing::Environment* const kBus = ::testing::AddGlobalTestEnvironment(new PrivateSessionBus);

// The portal on that bus, for one test.
class PanelTheme : public ::testing::Test {
 protected:
  void SetUp() override {
    address_ = PrivateSessionBus::address;
    portalBus_ = std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(address_, "portal"));
    ASSERT_TRUE(portalBus_->isConnected());
    ASSERT_TRUE(portalBus_->registerObject("/org/freedesktop/portal/desktop", &settings_,
                                           QDBusConnection::ExportAllSlots));
    ASSERT_TRUE(portalBus_->registerService("org.freedesktop.portal.Desktop"));
  }
  void TearDown() override {
    if (!portalBus_) return;
    portalBus_->unregisterService("org.freedesktop.portal.Desktop");
    portalBus_->unregisterObject("/org/freedesktop/portal/desktop");
    portalBus_.reset();
    QDBusConnection::disconnectFromBus("portal");
  }
  void changeScheme(const QVariant& v, const QString& key = QStringLiteral("color-scheme")) {
    QDBusMessage signal = QDBusMessage::createSignal("/org/freedesktop/portal/desktop",
                                                     "org.freedesktop.portal.Settings", "SettingChanged");
    signal << QStringLiteral("org.freedesktop.appearance") << key << QVariant::fromValue(QDBusVariant(v));
    ASSERT_TRUE(portalBus_->send(signal));
  }

  QString address_;
  std::unique_ptr<QDBusConnection> portalBus_;
  FakeSettings settings_;
};

TEST_F(PanelTheme, PortalAnswerThenChangesFollow) {
  ASSERT_TRUE(QDBusConnection::connectToBus(address_, "watcher").isConnected());
  PanelThemeWatcher watcher(QStringLiteral("watcher"), nullptr);
  QSignalSpy changed(&watcher, &PanelThemeWatcher::changed);
  ASSERT_TRUE(changed.wait(10000));
  EXPECT_EQ(watcher.portalScheme(), tray_theme::Scheme::Dark);
  EXPECT_TRUE(watcher.isSystemDarkTheme());

  changeScheme(QVariant::fromValue(2u));
  ASSERT_TRUE(changed.wait(10000));
  EXPECT_EQ(watcher.portalScheme(), tray_theme::Scheme::Light);
  EXPECT_FALSE(watcher.isSystemDarkTheme());

  // A string where the number belongs tells nothing: back to "dark when unknown".
  changeScheme(QVariant(QStringLiteral("dark")));
  ASSERT_TRUE(changed.wait(10000));
  EXPECT_EQ(watcher.portalScheme(), tray_theme::Scheme::Unknown);
  EXPECT_TRUE(watcher.isSystemDarkTheme());

  // The desktop asks for high contrast, then no longer.
  EXPECT_FALSE(watcher.highContrast());
  changeScheme(QVariant::fromValue(1u), QStringLiteral("contrast"));
  ASSERT_TRUE(changed.wait(10000));
  EXPECT_TRUE(watcher.highContrast());
  changeScheme(QVariant::fromValue(0u), QStringLiteral("contrast"));
  ASSERT_TRUE(changed.wait(10000));
  EXPECT_FALSE(watcher.highContrast());
  QDBusConnection::disconnectFromBus("watcher");
}

TEST_F(PanelTheme, TrayPictureFollowsTheDesktopScheme) {
  settings_.value = QVariant::fromValue(2u);  // prefers light: dark pictures
  SystemTray tray;
  EXPECT_TRUE(QTest::qWaitFor([&] { return tray.currentIconName() == "logo_tray_icn_connect_dark"; }, 10000))
      << tray.currentIconName().toStdString();
  tray.slotStatusChanged(TraySuccess);
  EXPECT_EQ(tray.currentIconName(), QStringLiteral("logo_tray_icn_green_dark"));
  changeScheme(QVariant::fromValue(1u));
  EXPECT_TRUE(QTest::qWaitFor([&] { return tray.currentIconName() == "logo_tray_icn_green"; }, 10000))
      << tray.currentIconName().toStdString();
}

}  // namespace

#include "panel-theme-test.moc"

namespace {

// A palette whose window colour tells the panel's shade.
QPalette paletteWithWindow(const QColor& window) {
  QPalette p = QApplication::style()->standardPalette();
  p.setColor(QPalette::Window, window);
  return p;
}

}  // namespace

TEST(HighContrastName, TellsTheHighContrastThemes) {
  for (const char* name :
       {"HighContrast", "HighContrastInverse", "Breeze High Contrast", "Adwaita-hc", "Yaru:hc"})
    EXPECT_TRUE(tray_theme::is_high_contrast_theme_name(name)) << name;
  for (const char* name : {"Adwaita", "Adwaita-dark", "", "Orchis"})
    EXPECT_FALSE(tray_theme::is_high_contrast_theme_name(name)) << name;
}

// Without a portal the palette decides; the watcher keeps its verdict between
// questions (the icon asks every second), so a palette change must reach it.
TEST(PanelThemePalette, APaletteChangeIsSeenAtTheNextQuestion) {
  const QPalette before = QApplication::palette();
  PanelThemeWatcher watcher(QStringLiteral("no-such-bus"), nullptr);
  QSignalSpy changed(&watcher, &PanelThemeWatcher::changed);

  QApplication::setPalette(paletteWithWindow(QColor(0xF4, 0xF4, 0xF4)));
  EXPECT_FALSE(watcher.isSystemDarkTheme());
  EXPECT_FALSE(watcher.isSystemDarkTheme());  // asked again: the same answer

  QApplication::setPalette(paletteWithWindow(QColor(0x20, 0x22, 0x25)));
  EXPECT_GE(changed.count(), 1);
  EXPECT_TRUE(watcher.isSystemDarkTheme());

  QApplication::setPalette(paletteWithWindow(QColor(0xF4, 0xF4, 0xF4)));
  EXPECT_FALSE(watcher.isSystemDarkTheme());
  QApplication::setPalette(before);
}
