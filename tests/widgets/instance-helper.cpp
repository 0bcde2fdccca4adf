// A small program the single-instance and lock tests start as "another
// process of the same user".
//   instance-helper primary <appId>            become the primary instance and
//       print every message received; ends after the first one
//   instance-helper hold-lock <name>           hold the machine lock until killed
#include <cstdio>
#include <cstring>

#include "widgets/machine-lock.h"
#include "widgets/single-application.h"

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  const char* mode = argv[1];
  if (std::strcmp(mode, "hold-lock") == 0) {
    MachineLock lock(argv[2]);
    std::printf("%s\n", MachineLock::resultName(lock.acquire()));
    std::fflush(stdout);
    // Hold until stdin closes or the process is killed.
    char buf[16];
    while (std::fread(buf, 1, sizeof buf, stdin) > 0) {
    }
    return 0;
  }
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  int qtArgc = 1;
  // The agent's own application object, as start-up creates it.
  QtSingleApplication app(QString::fromLocal8Bit(argv[2]), qtArgc, argv, true);
  if (std::strcmp(mode, "primary") == 0) {
    if (app.isRunning()) {
      std::printf("RUNNING\n");
      return 4;
    }
    QObject::connect(&app, &QtSingleApplication::messageReceived, [&](const QString& m) {
      std::printf("MESSAGE %s\n", qUtf8Printable(m));
      std::fflush(stdout);
      app.quit();
    });
    std::printf("PRIMARY\n");
    std::fflush(stdout);
    return app.exec();
  }
  return 2;
}
