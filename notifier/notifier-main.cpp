#include "notifier/notifier-main.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDir>
#include <QFileInfo>

#include <cstdio>

#include "logging/logger.h"
#include "logging/paths.h"
#include "notifier/detach.h"
#include "notifier/notification-ledger.h"
#include "notifier/notification-request.h"
#include "notifier/notification-session.h"
#include "ui-agent/catalogue/string-catalogue-table.h"

namespace notifier {
namespace {

// How long the program the agent waits for waits in turn for the detached
// process's word; the agent itself gives up after 30 s.
constexpr int kReportWaitMs = 20000;

void init_log(const QString& app_dir) {
  const QString folder = QString::fromStdWString(vlog::log_path());
  if (folder.isEmpty() || !QDir().mkpath(folder)) return;
  const QString settings = QDir::cleanPath(app_dir + "/../resource/agent.debug");
  vlog::init(vlog::kRotatingFile, (folder + "/notifier.txt").toStdWString(), settings.toStdWString(), "", 5,
             1);
}

int linger_ms() {
  bool ok = false;
  const int ms = qEnvironmentVariableIntValue("NIMBRA_NOTIFIER_LINGER_MS", &ok);
  return ok && ms > 0 ? ms : kDefaultLingerMs;
}

bool has_something_to_say(const NotifierRequest& request) {
  for (const NotificationElement& el : request.elements)
    if (!el.title.isEmpty() || !el.text.isEmpty()) return true;
  return false;
}

int fail(int code, const QString& why) {
  std::fprintf(stderr, "nimbra-backup-notifier: %s\n", why.toLocal8Bit().constData());
  LOG_ERROR(vlog::kDefaultComponent, "%s", why.toUtf8().constData());
  return code;
}

// The detached process: shows the notifications, reports, then serves the
// buttons until the session ends.
int show_and_stay(int argc, char** argv, const NotifierRequest& request, const Report& report) {
  QCoreApplication app(argc, argv);
  const QString app_dir = QCoreApplication::applicationDirPath();
  init_log(app_dir);

  NotificationSession session(QDBusConnection::sessionBus(), agent_program(app_dir), linger_ms());
  ServerTraits traits;
  ShowOutcome outcome = session.probe(traits);
  if (outcome.code != kExitShown) return fail(outcome.code, outcome.error);

  const QString app_name =
      QString::fromUtf8(string_display::catalogue_rows()[static_cast<int>(Str::app_name)].source);
  const QString icon = notification_icon(app_dir, [](const QString& f) { return QFileInfo::exists(f); });
  const std::vector<NotifyCall> calls = build_notify_calls(request, traits, app_name, icon);
  // The earlier notification of the same kind is replaced, not stacked.
  with_ledger(ledger_path(), [&](Ledger& ledger) {
    outcome = session.show(calls, replaced_id(ledger, session.server(), calls));
    if (outcome.code != kExitShown || session.server().isEmpty()) return false;
    record_shown(ledger, session.server(), outcome.last_kind, outcome.last_id,
                 QCoreApplication::applicationPid());
    return true;
  });
  session.setHandedOver([&session](uint id) {
    bool over = false;
    with_ledger(ledger_path(), [&](Ledger& ledger) {
      over = handed_over(ledger, session.server(), id, QCoreApplication::applicationPid());
      return false;
    });
    return over;
  });
  if (outcome.code != kExitShown) return fail(outcome.code, outcome.error);

  QObject::connect(&session, &NotificationSession::finished, &app, &QCoreApplication::quit,
                   Qt::QueuedConnection);
  report(kExitShown);
  app.exec();
  vlog::shutdown();
  return kExitShown;
}

}  // namespace

int notifier_main(int argc, char** argv) {
  QStringList args;
  for (int i = 1; i < argc; ++i) args << QString::fromLocal8Bit(argv[i]);
  const ParseResult parsed = parse_notifier_args(args);
  if (!parsed.ok) {
    std::fprintf(stderr, "nimbra-backup-notifier: %s\n", parsed.error.toLocal8Bit().constData());
    return kExitBadArguments;
  }
  if (!has_something_to_say(parsed.request)) return kExitShown;
  return run_detached([&](const Report& report) { return show_and_stay(argc, argv, parsed.request, report); },
                      kReportWaitMs);
}

}  // namespace notifier
