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
#include <QVector>

// The high-contrast look: the same style sheets with some colours swapped,
// as a palette file lists them (resource/high-contrast.palette).
namespace high_contrast {

struct Swap {
  QString from;  // as the style sheets write it
  QString to;
};
// One "<colour> <colour>" per line; empty lines and lines starting with "//"
// are skipped, any other line is logged (with `origin`) and skipped.
QVector<Swap> parsePalette(const QString& text, const QString& origin);
// `sheet` with each swap's colour replaced, case ignored.
QString apply(const QString& sheet, const QVector<Swap>& swaps);

}  // namespace high_contrast

class StyleManager {
 public:
  static StyleManager* getInstance();

  // Loads the files in order ("*.palette" as the high-contrast palette).
  // Returns the number of files read; a missing or unreadable file is
  // logged and skipped. Earlier blocks are kept.
  int initialize(const QStringList& files);
  void loadPalette(const QString& text, const QString& origin);
  QVector<high_contrast::Swap> palette() const;

  // The high-contrast look on or off, live: named sheets come with the
  // palette's colours, and the sheet of every widget of the application is
  // converted now (and back when it goes off) and whenever one is set.
  void setHighContrast(bool on);
  bool highContrast() const;
  // Parses `text` as one style-sheet file; `origin` names it in log lines.
  // Returns the number of blocks read.
  int loadFromString(const QString& text, const QString& origin);

  bool contains(const QString& name) const;
  // The block's text (in the look now on), or an empty string when unknown.
  QString styleSheet(const QString& name) const;
  QStringList names() const;
  // Forgets every block (tests).
  void clear();

 private:
  StyleManager() = default;
  mutable QMutex mutex_;
  QHash<QString, QString> sheets_;
  QVector<high_contrast::Swap> palette_;
  bool highContrast_ = false;
};

// The named block, passed through DPIinfo::getScaledStyleSheet when `scaled`
// is true (the default). An unknown name gives an empty sheet and a log line.
QString getStyleSheet(const QString& name, bool scaled = true);
