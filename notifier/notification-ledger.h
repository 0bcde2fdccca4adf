#pragma once
// The id of the last notification of each kind (its title) that the
// notifier showed, kept between runs in a small file, so that a repeated
// event replaces its earlier notification instead of stacking beside it.
// The ids belong to one instance of the notification service: a ledger of
// another instance (a restarted service, another session) is not used.

#include <QByteArray>
#include <QHash>
#include <QString>

#include <functional>
#include <vector>

#include "notifier/notification-request.h"

namespace notifier {

struct Ledger {
  QString server;              // the service instance: bus id and the service's unique name
  QHash<QString, uint> ids;    // kind (title) -> id
  QHash<uint, qint64> owners;  // id -> the notifier process that shows it now
};

// The file's JSON; anything else (not JSON, wrong types, ids out of range)
// gives an empty ledger and a one-line `problem`.
Ledger parse_ledger(const QByteArray& json, QString* problem);
QByteArray serialize_ledger(const Ledger& ledger);

// The id that the first notification of a run replaces: the one of the kind
// the run ends with (a run's notifications replace each other in order, so
// its last one is what stays), when the ledger is `server`'s; 0 otherwise.
uint replaced_id(const Ledger& ledger, const QString& server, const std::vector<NotifyCall>& calls);
// After a run (process `pid`) whose last notification `kind` shows as `id`:
// that kind maps to `id`, no other kind keeps that id, and `pid` owns it.
void record_shown(Ledger& ledger, const QString& server, const QString& kind, uint id, qint64 pid);
// Whether a later run has taken `id` over from process `pid`: then `pid`
// neither closes it when its time is over nor acts on its buttons.
bool handed_over(const Ledger& ledger, const QString& server, uint id, qint64 pid);

// "<state folder>/NimbraBackupAgent/notifier-ids.json", beside the log folder;
// empty when there is none.
QString ledger_path();

// Reads the ledger at `path` under a lock file (runs may overlap), lets
// `use` read and change it, and writes it back when `use` returns true.
// Without a usable file `use` gets an empty ledger; a failure is logged.
void with_ledger(const QString& path, const std::function<bool(Ledger&)>& use);

}  // namespace notifier
