// `cmake --install` into a temporary prefix: the tree of the build plus the
// desktop files and icons, valid desktop files, and the agent registered as
// the handler of nimbrabackup:// addresses, so that opening such an address
// starts the agent (a stand-in here) with the address as its argument.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QThread>

#include "tests/notifier/install-check.h"
#include "tests/support/qt-print.h"
#include "tests/support/temp-dir.h"
#include "tests/support/wait.h"

using namespace notifier_test;
using nimbra_test::wait_until;
using ::testing::HasSubstr;

namespace {

QString build_dir() {
  return QString::fromLocal8Bit(qgetenv("NIMBRA_BUILD_DIR"));
}

QString read_text(const QString& path) {
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

class InstallTree : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    tmp_ = new nimbra_test::TempDir;
    prefix_ = QString::fromStdString(tmp_->path()) + "/prefix";
    install_ = run_program(NIMBRA_CMAKE_COMMAND, {"--install", build_dir(), "--prefix", prefix_});
  }
  static void TearDownTestSuite() {
    delete tmp_;
    tmp_ = nullptr;
  }
  void SetUp() override { ASSERT_EQ(install_.code, 0) << install_.err.toStdString(); }

  // A desktop session that knows only the prefix's folders.
  static QProcessEnvironment xdg_environment() {
    QProcessEnvironment env;
    env.insert("PATH", qEnvironmentVariable("PATH"));
    env.insert("HOME", prefix_ + "/home");
    env.insert("XDG_DATA_HOME", prefix_ + "/home/.local/share");
    env.insert("XDG_CONFIG_HOME", prefix_ + "/home/.config");
    env.insert("XDG_DATA_DIRS", prefix_ + "/share");
    env.insert("XDG_CONFIG_DIRS", prefix_ + "/etc/xdg");
    // xdg-open hands addresses to desktop files only on a graphical session;
    // nothing here draws.
    env.insert("DISPLAY", ":0");
    return env;
  }

  static nimbra_test::TempDir* tmp_;
  static QString prefix_;
  static Ran install_;
};
nimbra_test::TempDir* InstallTree::tmp_ = nullptr;
QString InstallTree::prefix_;
Ran InstallTree::install_;

TEST_F(InstallTree, HoldsTheBuildTreeAndTheDesktopFiles) {
  for (const QString& f : expected_app_files(build_dir()) + expected_desktop_files())
    EXPECT_TRUE(QFileInfo(prefix_ + "/" + f).isFile()) << f.toStdString();
  for (const char* exe : {"bin/nimbra-backup-notifier", "bin/nimbra-service-sim"})
    EXPECT_TRUE(QFileInfo(prefix_ + "/" + exe).isExecutable()) << exe;
  // The notifier finds the icon beside its folder.
  EXPECT_TRUE(
      QFileInfo::exists(prefix_ + "/bin/../share/icons/hicolor/128x128/apps/nimbra-backup-agent.png"));
}

TEST_F(InstallTree, IconsAreRenderedAtTheirSize) {
  for (const QString& size : kIconSizes) {
    const QImage icon(prefix_ + QString("/share/icons/hicolor/%1x%1/apps/nimbra-backup-agent.png").arg(size));
    ASSERT_FALSE(icon.isNull()) << size.toStdString();
    EXPECT_EQ(icon.width(), size.toInt());
    EXPECT_EQ(icon.height(), size.toInt());
    EXPECT_TRUE(icon.hasAlphaChannel());
    EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0) << "the corner is transparent";
    EXPECT_GT(qAlpha(icon.pixel(icon.width() / 2, icon.height() / 2)), 200) << "the middle is drawn";
  }
}

TEST_F(InstallTree, DesktopFilesAreValidAndStartTheInstalledAgent) {
  const QString app = prefix_ + "/share/applications/nimbra-backup-agent.desktop";
  const QString autostart = prefix_ + "/etc/xdg/autostart/nimbra-backup-agent.desktop";
  const Ran v = run_program("desktop-file-validate", {app, autostart});
  EXPECT_EQ(v.code, 0) << v.out.toStdString() << v.err.toStdString();
  EXPECT_EQ(v.out + v.err, "");

  // (Its Exec and MimeType lines are what xdg-open follows in the next case.)
  EXPECT_THAT(read_text(app).toStdString(), HasSubstr("\nIcon=nimbra-backup-agent\n"));
  const QString login = read_text(autostart);
  EXPECT_THAT(login.toStdString(),
              HasSubstr(("\nExec=" + prefix_ + "/bin/nimbra-backup-agent\n").toStdString()));
}

TEST_F(InstallTree, TheAgentHandlesNimbrabackupAddresses) {
  const QString applications = prefix_ + "/share/applications";
  const Ran db = run_program("update-desktop-database", {applications});
  ASSERT_EQ(db.code, 0) << db.err.toStdString();
  const Ran query =
      run_program("xdg-mime", {"query", "default", "x-scheme-handler/nimbrabackup"}, xdg_environment());
  EXPECT_EQ(query.code, 0) << query.err.toStdString();
  EXPECT_EQ(query.out.trimmed(), "nimbra-backup-agent.desktop");

  // Opening an address starts the program of the desktop file with the
  // address as argument 1: a stand-in for the agent records it.
  const QString agent = prefix_ + "/bin/nimbra-backup-agent";
  const QString record = prefix_ + "/agent-args.txt";
  QFile::remove(agent);
  QFile stand_in(agent);
  ASSERT_TRUE(stand_in.open(QIODevice::WriteOnly));
  stand_in.write(QString("#!/bin/sh\nprintf '%s|' \"$#\" \"$@\" > '%1.part' && mv '%1.part' '%1'\n")
                     .arg(record)
                     .toUtf8());
  stand_in.close();
  stand_in.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  const QString url = "nimbrabackup://nimbrabackupprotocol?access_token=a1b2&c d";
  const Ran open = run_program("xdg-open", {url}, xdg_environment());
  EXPECT_EQ(open.code, 0) << open.err.toStdString();
  ASSERT_TRUE(wait_until([&] { return QFileInfo::exists(record); }, 10000));
  EXPECT_EQ(read_text(record), "1|" + url + "|");
}

}  // namespace
