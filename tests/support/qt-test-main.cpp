// Shared main of the Qt tests: one QApplication on the offscreen platform,
// so widgets can be built, laid out and grabbed without a display.
#include <gmock/gmock.h>

#include <QApplication>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM",
          qgetenv("QT_QPA_PLATFORM").isEmpty() ? QByteArray("offscreen") : qgetenv("QT_QPA_PLATFORM"));
  ::testing::InitGoogleMock(&argc, argv);
  QApplication app(argc, argv);
  return RUN_ALL_TESTS();
}
