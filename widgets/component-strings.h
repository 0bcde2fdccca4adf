#pragma once
// Words on the widget layer's own buttons ("ok", "cancel", ...). The agent
// installs its translated texts at start-up; until then English defaults are
// used.

#include <QMap>
#include <QMutex>
#include <QString>

class ComponentStrings {
 public:
  static ComponentStrings* getInstance();

  // Merges `strings` into the table; a key given again replaces its text.
  void installStrings(const QMap<QString, QString>& strings);
  // The installed text for `key`, else the built-in English word, else the
  // key itself.
  QString string(const QString& key) const;
  // Drops every installed text (tests).
  void reset();

 private:
  ComponentStrings() = default;
  mutable QMutex mutex_;
  QMap<QString, QString> strings_;
};
