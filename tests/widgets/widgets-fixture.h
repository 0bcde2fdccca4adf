#pragma once
// Shared set-up of the widget-layer tests: the resource folder of the source
// tree registered and loaded, and a log file whose lines a test can read.

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>

#include <string>

#include "support/temp-dir.h"

namespace widgets_test {

// $NIMBRA_SOURCE_DIR/resource
QString sourceResources();
// Registers the resource folder and loads the pictures and both style sheets.
void loadProductLook();

// Every style-sheet name and picture name the agent asks for.
const QStringList& agentStyleNames();
const QStringList& agentPictureNames();

// Sends the log to a file for the test's lifetime.
class LogCapture {
 public:
  LogCapture();
  ~LogCapture();
  // Everything logged so far.
  std::string text();

 private:
  nimbra_test::TempDir dir_;
  std::string path_;
};

}  // namespace widgets_test
