// `cpack -G DEB`: the package builds, holds the application tree under
// /opt/nimbra-backup and the desktop files and icons where the desktop looks,
// depends on the libraries the programs use and registers the URL handler.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include "install-check.h"
#include "support/qt-print.h"
#include "support/temp-dir.h"

using namespace notifier_test;
using ::testing::HasSubstr;

namespace {

constexpr const char* kAppDir = "/opt/nimbra-backup/";

TEST(DebianPackage, BuildsWithTheTreeTheDependenciesAndTheHandler) {
  nimbra_test::TempDir tmp;
  const QString out = QString::fromStdString(tmp.path());
  const QString build = QString::fromLocal8Bit(qgetenv("NIMBRA_BUILD_DIR"));
  const Ran pack =
      run_program(NIMBRA_CPACK_COMMAND, {"-G", "DEB", "-B", out, "--config", build + "/CPackConfig.cmake"},
                  QProcessEnvironment::systemEnvironment(), 500000);
  ASSERT_EQ(pack.code, 0) << pack.out.toStdString() << pack.err.toStdString();
  const QStringList debs = QDir(out).entryList({"nimbra-backup-agent_*_*.deb"}, QDir::Files);
  ASSERT_EQ(debs.size(), 1) << pack.out.toStdString();
  const QString deb = out + "/" + debs.first();

  const Ran list = run_program("dpkg-deb", {"--contents", deb});
  ASSERT_EQ(list.code, 0) << list.err.toStdString();
  QStringList paths;
  for (const QString& line : list.out.split('\n', Qt::SkipEmptyParts))
    paths << line.section(' ', -1).mid(1);  // "./opt/..." -> "/opt/..."
  for (const QString& f : expected_app_files(build))
    EXPECT_TRUE(paths.contains(kAppDir + f)) << f.toStdString();
  for (const QString& f : expected_desktop_files()) {
    const QString system = f.startsWith("etc/") ? "/" + f : "/usr/" + f;
    EXPECT_TRUE(paths.contains(system)) << system.toStdString();
  }
  EXPECT_TRUE(paths.filter("/usr/local").isEmpty());
  EXPECT_TRUE(paths.filter(QRegularExpression("^/opt/nimbra-backup/(share/applications|etc)")).isEmpty());

  const Ran depends = run_program("dpkg-deb", {"--field", deb, "Depends"});
  for (const char* lib : {"libqt5core5a", "libqt5dbus5", "libjsoncpp", "hicolor-icon-theme"})
    EXPECT_THAT(depends.out.toStdString(), HasSubstr(lib));

  const Ran control = run_program("dpkg-deb", {"--info", deb, "postinst"});
  EXPECT_THAT(control.out.toStdString(), HasSubstr("update-desktop-database"));
  const Ran conffiles = run_program("dpkg-deb", {"--info", deb, "conffiles"});
  EXPECT_EQ(conffiles.out.trimmed(), "/etc/xdg/autostart/nimbra-backup-agent.desktop");

  // The desktop file names the program where the package puts it.
  const QString root = out + "/root";
  ASSERT_EQ(run_program("dpkg-deb", {"--extract", deb, root}).code, 0);
  const QString entry = root + "/usr/share/applications/nimbra-backup-agent.desktop";
  const Ran v =
      run_program("desktop-file-validate", {entry, root + "/etc/xdg/autostart/nimbra-backup-agent.desktop"});
  EXPECT_EQ(v.code, 0) << v.out.toStdString();
  QFile f(entry);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  EXPECT_THAT(f.readAll().toStdString(), HasSubstr("\nExec=/opt/nimbra-backup/bin/nimbra-backup-agent %u\n"));
}

}  // namespace
