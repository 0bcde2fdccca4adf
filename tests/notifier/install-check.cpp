#include "tests/notifier/install-check.h"

#include <QFileInfo>
#include <QProcess>

namespace notifier_test {

QStringList expected_app_files(const QString& build_dir) {
  QStringList files{"bin/nimbra-backup-notifier",
                    "bin/nimbra-service-sim",
                    "resource/agent.debug",
                    "resource/agent.stylesheet",
                    "resource/component.business.stylesheet",
                    "resource/images/icon_agent.svg",
                    "resource/images/logo_tray_icn_green.svg"};
  // The agent is installed once it is built.
  if (QFileInfo::exists(build_dir + "/bin/nimbra-backup-agent")) files << "bin/nimbra-backup-agent";
  return files;
}

QStringList expected_desktop_files() {
  QStringList files{"share/applications/nimbra-backup-agent.desktop",
                    "etc/xdg/autostart/nimbra-backup-agent.desktop",
                    "share/icons/hicolor/scalable/apps/nimbra-backup-agent.svg"};
  for (const QString& size : kIconSizes)
    files << QString("share/icons/hicolor/%1x%1/apps/nimbra-backup-agent.png").arg(size);
  return files;
}

Ran run_program(const QString& program, const QStringList& args, const QProcessEnvironment& env,
                int timeout_ms) {
  QProcess p;
  p.setProcessEnvironment(env);
  p.start(program, args);
  Ran r;
  if (!p.waitForStarted(10000)) {
    r.err = program + " does not start: " + p.errorString();
    return r;
  }
  if (!p.waitForFinished(timeout_ms)) {
    p.kill();
    p.waitForFinished(3000);
    r.err = program + " did not finish";
    return r;
  }
  r.code = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
  r.out = QString::fromUtf8(p.readAllStandardOutput());
  r.err += QString::fromUtf8(p.readAllStandardError());
  return r;
}

}  // namespace notifier_test
