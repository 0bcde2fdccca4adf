#pragma once
// Named style sheets loaded from style-sheet files.
//
// File format (also described at the top of each file under resource/):
//   - A line whose first non-blank characters are "@@" followed by a name
//     starts the block of that name ("@@ tray_menu"). Names are made of
//     letters, digits, '_', '.' and '-'.
//   - Every following line up to the next "@@" line or the end of the file is
//     the block's text: plain Qt style sheet, kept as written (comments too).
//   - Text before the first "@@" line is the file's preface and is ignored.
//   - "$images" in a block is replaced by the absolute path of the pictures
//     folder (<resource_path>/images), so blocks can use
//     "image: url($images/check_on.svg)".
// A name defined again (in the same or a later file) replaces the earlier
// block, with a log line.

#include <QHash>
#include <QMutex>
#include <QString>
#include <QStringList>

class StyleManager {
 public:
  static StyleManager* getInstance();

  // Loads the files in order. Returns the number of files read; a missing or
  // unreadable file is logged and skipped. Earlier blocks are kept.
  int initialize(const QStringList& files);
  // Parses `text` as one style-sheet file; `origin` names it in log lines.
  // Returns the number of blocks read.
  int loadFromString(const QString& text, const QString& origin);

  bool contains(const QString& name) const;
  // The block's text, or an empty string when unknown.
  QString styleSheet(const QString& name) const;
  QStringList names() const;
  // Forgets every block (tests).
  void clear();

 private:
  StyleManager() = default;
  mutable QMutex mutex_;
  QHash<QString, QString> sheets_;
};

// The named block, passed through DPIinfo::getScaledStyleSheet when `scaled`
// is true (the default). An unknown name gives an empty sheet and a log line.
QString getStyleSheet(const QString& name, bool scaled = true);
