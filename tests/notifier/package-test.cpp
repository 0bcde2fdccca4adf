// `cpack -G DEB`: two packages, the agent and the simulator, laid out as
// Debian wants (the application tree under /usr/lib/nimbra-backup with links
// from /usr/bin, docs in /usr/share/doc), without a lintian error; the
// desktop files and icons where the desktop looks, the dependencies of the
// programs and the registered URL handler.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include "tests/notifier/install-check.h"
#include "tests/support/qt-print.h"
#include "tests/support/temp-dir.h"

using namespace notifier_test;
using ::testing::HasSubstr;

namespace {

constexpr const char* kAppDir = "/usr/lib/nimbra-backup/";

// The one package called `name` in `folder`.
QString package_file(const QString& folder, const QString& name) {
  const QStringList debs = QDir(folder).entryList({name + "_*_*.deb"}, QDir::Files);
  return debs.size() == 1 ? folder + "/" + debs.first() : QString();
}

QStringList paths_in(const QString& deb) {
  const Ran list = run_program("dpkg-deb", {"--contents", deb});
  EXPECT_EQ(list.code, 0) << list.err.toStdString();
  QStringList paths;
  for (const QString& line : list.out.split('\n', Qt::SkipEmptyParts)) {
    // "<mode> <owner> <size> <date> <time> ./usr/... [-> target]"
    paths << line.mid(line.indexOf(" ./") + 2).section(" -> ", 0, 0);
  }
  return paths;
}

TEST(DebianPackage, AgentAndSimulatorApartLaidOutAsDebianWantsWithoutLintianErrors) {
  nimbra_test::TempDir tmp;
  const QString out = QString::fromStdString(tmp.path());
  const QString build = QString::fromLocal8Bit(qgetenv("NIMBRA_BUILD_DIR"));
  const Ran pack =
      run_program(NIMBRA_CPACK_COMMAND, {"-G", "DEB", "-B", out, "--config", build + "/CPackConfig.cmake"},
                  QProcessEnvironment::systemEnvironment(), 500000);
  ASSERT_EQ(pack.code, 0) << pack.out.toStdString() << pack.err.toStdString();
  const QString deb = package_file(out, "nimbra-backup-agent");
  const QString sim = package_file(out, "nimbra-service-sim");
  ASSERT_FALSE(deb.isEmpty() || sim.isEmpty()) << pack.out.toStdString();

  // Errors fail; the warnings kept are listed in the README.
  const Ran lint = run_program("lintian", {"--tag-display-limit", "0", deb, sim},
                               QProcessEnvironment::systemEnvironment(), 300000);
  const QStringList errors = lint.out.split('\n').filter(QRegularExpression("^E: "));
  EXPECT_TRUE(lint.code == 0 && errors.isEmpty()) << lint.code << "\n"
                                                  << lint.out.toStdString() << lint.err.toStdString();

  // What the install holds is install-test's; here where the package puts it.
  const QStringList paths = paths_in(deb);
  EXPECT_TRUE(paths.contains(QString(kAppDir) + "bin/nimbra-backup-notifier"));
  for (const QString& f : expected_desktop_files()) {
    const QString system = f.startsWith("etc/") ? "/" + f : "/usr/" + f;
    EXPECT_TRUE(paths.contains(system)) << system.toStdString();
  }
  for (const char* f : {"/usr/bin/nimbra-backup-agent", "/usr/share/doc/nimbra-backup-agent/copyright",
                        "/usr/share/doc/nimbra-backup-agent/changelog.Debian.gz"})
    EXPECT_TRUE(paths.contains(f)) << f;
  // Nothing in /opt or /usr/local, no translation sources, no simulator.
  EXPECT_EQ(paths.filter(QRegularExpression("^/(opt|usr/local)/|\\.ts$|service-sim")), QStringList());

  const QStringList simPaths = paths_in(sim);
  for (const char* f : {"/usr/bin/nimbra-service-sim", "/usr/lib/nimbra-backup/bin/nimbra-service-sim",
                        "/usr/share/doc/nimbra-service-sim/copyright"})
    EXPECT_TRUE(simPaths.contains(f)) << f;
  EXPECT_FALSE(simPaths.filter(QRegularExpression("/scenarios/.+\\.json$")).isEmpty());
  EXPECT_EQ(simPaths.filter(QRegularExpression("agent|notifier|^/etc/")), QStringList());

  const Ran depends = run_program("dpkg-deb", {"--field", deb, "Depends"});
  for (const char* lib : {"libqt5core5a", "libqt5dbus5", "libjsoncpp", "hicolor-icon-theme"})
    EXPECT_THAT(depends.out.toStdString(), HasSubstr(lib));

  const Ran control = run_program("dpkg-deb", {"--info", deb, "postinst"});
  EXPECT_THAT(control.out.toStdString(), HasSubstr("update-desktop-database"));
  const Ran conffiles = run_program("dpkg-deb", {"--info", deb, "conffiles"});
  EXPECT_EQ(conffiles.out.trimmed(), "/etc/xdg/autostart/nimbra-backup-agent.desktop");

  // The desktop file names the program where the package puts it (its
  // validity is install-test's).
  const QString root = out + "/root";
  ASSERT_EQ(run_program("dpkg-deb", {"--extract", deb, root}).code, 0);
  QFile f(root + "/usr/share/applications/nimbra-backup-agent.desktop");
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  EXPECT_THAT(f.readAll().toStdString(),
              HasSubstr("\nExec=/usr/lib/nimbra-backup/bin/nimbra-backup-agent %u\n"));
}

}  // namespace
