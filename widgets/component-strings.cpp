#include "widgets/component-strings.h"

namespace {

QString builtin(const QString& key) {
  static const QMap<QString, QString> defaults{
      {QStringLiteral("ok"), QStringLiteral("OK")},
      {QStringLiteral("cancel"), QStringLiteral("Cancel")},
      {QStringLiteral("yes"), QStringLiteral("Yes")},
      {QStringLiteral("no"), QStringLiteral("No")},
      {QStringLiteral("apply"), QStringLiteral("Apply")},
      {QStringLiteral("discard"), QStringLiteral("Discard")},
      {QStringLiteral("close"), QStringLiteral("Close")},
      {QStringLiteral("save"), QStringLiteral("Save")},
      {QStringLiteral("retry"), QStringLiteral("Retry")},
      {QStringLiteral("abort"), QStringLiteral("Abort")},
      {QStringLiteral("ignore"), QStringLiteral("Ignore")},
      {QStringLiteral("copy"), QStringLiteral("Copy")},
  };
  return defaults.value(key);
}

}  // namespace

ComponentStrings* ComponentStrings::getInstance() {
  static ComponentStrings instance;
  return &instance;
}

void ComponentStrings::installStrings(const QMap<QString, QString>& strings) {
  QMutexLocker lock(&mutex_);
  for (auto it = strings.constBegin(); it != strings.constEnd(); ++it) strings_.insert(it.key(), it.value());
}

QString ComponentStrings::string(const QString& key) const {
  {
    QMutexLocker lock(&mutex_);
    const auto it = strings_.constFind(key);
    if (it != strings_.constEnd()) return it.value();
  }
  const QString fallback = builtin(key);
  return fallback.isEmpty() ? key : fallback;
}

void ComponentStrings::reset() {
  QMutexLocker lock(&mutex_);
  strings_.clear();
}
