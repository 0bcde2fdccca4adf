#include "notifier/notification-ledger.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QSaveFile>

#include <limits>

#include "logging/logger.h"
#include "logging/paths.h"

namespace notifier {

namespace {

// More kinds than the agent has notification types means a damaged file.
constexpr int kMaxKinds = 64;
// How long a run waits for another run's lock (its calls take a few ms each).
constexpr int kLockWaitMs = 15000;

}  // namespace

Ledger parse_ledger(const QByteArray& json, QString* problem) {
  QJsonParseError error{};
  const QJsonDocument doc = QJsonDocument::fromJson(json, &error);
  Ledger ledger;
  auto bad = [&](const QString& why) {
    if (problem) *problem = why;
    return Ledger();
  };
  if (!doc.isObject()) return bad("not a JSON object (" + error.errorString() + ")");
  const QJsonObject root = doc.object();
  const QJsonValue server = root.value("server");
  const QJsonValue ids = root.value("ids");
  if (!server.isString() || !ids.isObject()) return bad("no \"server\" string or no \"ids\" object");
  if (ids.toObject().size() > kMaxKinds) return bad("too many kinds");
  ledger.server = server.toString();
  const QJsonObject o = ids.toObject();
  for (auto it = o.begin(); it != o.end(); ++it) {
    const double id = it.value().toDouble(-1);
    if (!it.value().isDouble() || id < 1 || id > std::numeric_limits<uint>::max() ||
        id != static_cast<uint>(id))
      return bad("the id of \"" + it.key() + "\" is not a notification id");
    ledger.ids.insert(it.key(), static_cast<uint>(id));
  }
  const QJsonObject owners = root.value("owners").toObject();
  for (auto it = owners.begin(); it != owners.end(); ++it) {
    bool ok = false;
    const uint id = it.key().toUInt(&ok);
    if (!ok || !it.value().isDouble() || it.value().toDouble() < 1)
      return bad("the owner of \"" + it.key() + "\" is not a process");
    ledger.owners.insert(id, static_cast<qint64>(it.value().toDouble()));
  }
  return ledger;
}

QByteArray serialize_ledger(const Ledger& ledger) {
  QJsonObject ids;
  for (auto it = ledger.ids.begin(); it != ledger.ids.end(); ++it)
    ids.insert(it.key(), static_cast<double>(it.value()));
  QJsonObject owners;
  for (auto it = ledger.owners.begin(); it != ledger.owners.end(); ++it)
    owners.insert(QString::number(it.key()), static_cast<double>(it.value()));
  return QJsonDocument(QJsonObject{{"server", ledger.server}, {"ids", ids}, {"owners", owners}})
      .toJson(QJsonDocument::Compact);
}

uint replaced_id(const Ledger& ledger, const QString& server, const std::vector<NotifyCall>& calls) {
  if (calls.empty() || server.isEmpty() || ledger.server != server) return 0;
  return ledger.ids.value(calls.back().summary, 0);
}

void record_shown(Ledger& ledger, const QString& server, const QString& kind, uint id, qint64 pid) {
  if (ledger.server != server) {
    ledger.ids.clear();
    ledger.owners.clear();
    ledger.server = server;
  }
  for (auto it = ledger.ids.begin(); it != ledger.ids.end();) {
    if (it.value() == id)
      it = ledger.ids.erase(it);
    else
      ++it;
  }
  if (id != 0) {
    ledger.ids.insert(kind, id);
    ledger.owners.insert(id, pid);
  }
  // Only the ids still shown keep an owner.
  for (auto it = ledger.owners.begin(); it != ledger.owners.end();) {
    if (!ledger.ids.values().contains(it.key()))
      it = ledger.owners.erase(it);
    else
      ++it;
  }
}

bool handed_over(const Ledger& ledger, const QString& server, uint id, qint64 pid) {
  return !server.isEmpty() && ledger.server == server && ledger.owners.contains(id) &&
         ledger.owners.value(id) != pid;
}

QString ledger_path() {
  const QString logs = QString::fromStdWString(vlog::log_path());
  return logs.isEmpty() ? QString() : QDir::cleanPath(logs + "/../notifier-ids.json");
}

void with_ledger(const QString& path, const std::function<bool(Ledger&)>& use) {
  Ledger ledger;
  if (path.isEmpty() || !QDir().mkpath(QFileInfo(path).path())) {
    LOG_WARN(vlog::kDefaultComponent, "no folder for the notification ids: notifications may stack");
    use(ledger);
    return;
  }
  QLockFile lock(path + ".lock");
  if (!lock.tryLock(kLockWaitMs)) {
    LOG_WARN(vlog::kDefaultComponent, "the notification ids are locked (%d): notifications may stack",
             static_cast<int>(lock.error()));
    use(ledger);
    return;
  }
  QFile in(path);
  if (in.open(QIODevice::ReadOnly)) {
    QString problem;
    ledger = parse_ledger(in.read(64 * 1024), &problem);
    if (!problem.isEmpty())
      LOG_WARN(vlog::kDefaultComponent, "notification ids ignored: %s", problem.toUtf8().constData());
    in.close();
  }
  if (!use(ledger)) return;
  QSaveFile out(path);
  if (!out.open(QIODevice::WriteOnly) || out.write(serialize_ledger(ledger)) < 0 || !out.commit())
    LOG_WARN(vlog::kDefaultComponent, "cannot keep the notification ids: %s",
             out.errorString().toUtf8().constData());
}

}  // namespace notifier
