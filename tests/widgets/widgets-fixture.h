#pragma once
// Shared set-up of the widget-layer tests: the resource folder of the source
// tree registered and loaded, the names the agent asks for, and a log file
// whose lines a test can read.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStringList>

#include <string>

#include "tests/support/log-capture.h"
#include "widgets/image-manager.h"
#include "widgets/style-manager.h"
#include "widgets/ui-path-manager.h"

namespace widgets_test {

// $NIMBRA_SOURCE_DIR/resource
inline QString sourceResources() {
  return QDir::cleanPath(qEnvironmentVariable("NIMBRA_SOURCE_DIR", QStringLiteral(".")) + "/resource");
}

// Registers the resource folder and loads the pictures and both style sheets.
inline void loadProductLook() {
  const QString res = sourceResources();
  UIPathManager::getInstance()->setPath(QStringLiteral("resource_path"), res);
  ImageManager::getInstance()->initialize(0);
  StyleManager::getInstance()->clear();
  StyleManager::getInstance()->initialize(
      {res + "/agent.stylesheet", res + "/component.business.stylesheet"});
}

// The names listed in a fixture file of this folder, one a line, '#' comments.
inline QStringList namesIn(const char* file) {
  QFile f(QStringLiteral(WIDGETS_TEST_DIR "/") + file);
  QStringList names;
  if (f.open(QIODevice::ReadOnly | QIODevice::Text))
    for (const QByteArray& line : f.readAll().split('\n'))
      if (!line.trimmed().isEmpty() && !line.startsWith('#')) names << QString::fromUtf8(line.trimmed());
  return names;
}
inline const QStringList& agentStyleNames() {
  static const QStringList names = namesIn("style-names.txt");
  return names;
}

using nimbra_test::LogCapture;

}  // namespace widgets_test
