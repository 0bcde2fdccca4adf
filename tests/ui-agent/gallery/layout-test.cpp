// The widget gallery and the screen gallery put every control and screen on
// screen in each of its states; as they grab each one they check that every
// widget shown is held by its parent's layout (gallery::unplacedWidgets()),
// and exit 1 with a "layout:" line per widget left out.

#include <gtest/gtest.h>

#include <QProcess>

#include "tests/support/temp-dir.h"

namespace {

TEST(Gallery, EveryWidgetShownIsInItsParentsLayoutAt1xAnd2x) {
  const QString bin = qEnvironmentVariable("NIMBRA_BUILD_DIR") + "/bin/";
  const QString resources = qEnvironmentVariable("NIMBRA_BUILD_DIR") + "/resource";
  nimbra_test::TempDir out;
  const QString outDir = QString::fromStdString(out.path());
  const std::vector<QStringList> runs = {
      {"nimbra-gallery", outDir, resources},
      {"nimbra-screen-gallery", outDir, resources, "--scale", "1"},
      {"nimbra-screen-gallery", outDir, resources, "--scale", "2"},
  };
  for (const QStringList& run : runs) {
    SCOPED_TRACE(run.join(' ').toStdString());
    QProcess p;
    p.start(bin + run.first(), run.mid(1));
    ASSERT_TRUE(p.waitForFinished(120000));
    EXPECT_EQ(p.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
  }
}

}  // namespace
