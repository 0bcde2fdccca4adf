#pragma once
// What the installed tree (a prefix of `cmake --install`, or the Debian
// package unpacked) must hold, and small process helpers for these checks.

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace notifier_test {

inline const QStringList kIconSizes{"16", "22", "24", "32", "48", "64", "128", "256"};

// Paths relative to the application folder (bin/, resource/ ...), for the
// executables built in `build_dir`.
QStringList expected_app_files(const QString& build_dir);
// Paths of the desktop integration relative to its root (share/..., etc/...).
QStringList expected_desktop_files();

struct Ran {
  int code = -1;
  QString out;
  QString err;
};
Ran run_program(const QString& program, const QStringList& args,
                const QProcessEnvironment& env = QProcessEnvironment::systemEnvironment(),
                int timeout_ms = 60000);

}  // namespace notifier_test
