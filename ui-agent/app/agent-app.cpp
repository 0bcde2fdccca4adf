#include "ui-agent/app/agent-app.h"

#include <QDir>
#include <QElapsedTimer>
#include <QIcon>
#include <QLoggingCategory>
#include <QMouseEvent>
#include <QSurfaceFormat>
#include <QThread>
#include <QTranslator>

#include "logging/logger.h"
#include "logging/paths.h"
#include "ui-agent/app/client-manager.h"
#include "ui-agent/core/global-connecter.h"
#include "ui-agent/core/language-font.h"
#include "ui-agent/core/string-display.h"
#include "ui-agent/platform/os-services.h"
#include "widgets/component-strings.h"
#include "widgets/image-manager.h"
#include "widgets/machine-lock.h"
#include "widgets/single-application.h"
#include "widgets/style-manager.h"
#include "widgets/ui-path-manager.h"
#include "widgets/vell-locale.h"
#include "widgets/vell-message-sheet.h"

namespace agent_app {

QString messageForRunning(const QStringList& arguments) {
  return arguments.size() > 1 ? arguments.at(1) : QStringLiteral("open");
}

bool wantsOpenLog(const QStringList& arguments) {
  return arguments.contains(QStringLiteral("open_log"));
}

bool becomePrimary(const std::function<bool()>& isRunning, const std::function<qint64()>& elapsedMs,
                   const std::function<void()>& pause, qint64 budgetMs) {
  for (;;) {
    if (!isRunning()) return true;
    if (elapsedMs() >= budgetMs) return false;
    pause();
  }
}

bool PositionClickFilter::eventFilter(QObject* watched, QEvent* event) {
  // Only window-level presses: the same press also reaches every widget
  // under the window on its way.
  if (event->type() == QEvent::MouseButtonPress && watched->isWindowType()) {
    const auto* press = static_cast<QMouseEvent*>(event);
    if (press->button() == Qt::LeftButton)
      emit GlobalConnecter::instance().sigPositionClicked(press->globalPos());
  }
  return QObject::eventFilter(watched, event);
}

namespace {

std::wstring wide(const QString& s) {
  return s.toStdWString();
}

// Registers the well-known folders and returns the log folder.
QString registerPaths() {
  UIPathManager* paths = UIPathManager::getInstance();
  QString logPath = QString::fromStdWString(vlog::log_path());
  if (!logPath.isEmpty()) QDir().mkpath(logPath);
  const QString app = QCoreApplication::applicationDirPath();
  paths->setPath(QStringLiteral("application_path"), QDir::cleanPath(app));
  paths->setPath(QStringLiteral("resource_path"), QDir::cleanPath(app + QStringLiteral("/../resource")));
  const QString userData = QDir::cleanPath(app + QStringLiteral("/../../data"));
  paths->setPath(QStringLiteral("user_data_path"), userData);
  paths->setPath(QStringLiteral("log_path"), QDir::cleanPath(logPath));
  paths->setPath(QStringLiteral("appdata_path"), QDir::cleanPath(logPath + QStringLiteral("/../")));
  QDir().mkpath(userData);
  return logPath;
}

// The client manager: its constructor starts the worker threads and builds
// the hidden windows; start() shows the tray icon.
std::unique_ptr<QObject> startClientManager(bool openLog) {
  auto manager = std::make_unique<ClientManager>();
  manager->start(openLog);
  return manager;
}

}  // namespace

int run(int argc, char** argv, const Options& options) {
  // 1-2. Graphics: an alpha channel for translucent windows; the back end.
  QSurfaceFormat format;
  format.setAlphaBufferSize(8);
  QSurfaceFormat::setDefaultFormat(format);
  platform::prepareGraphics();
  // Whichever way start-up ends, the font configuration's helper thread
  // (see prepareGraphics) is joined first.
  struct JoinFontThread {
    ~JoinFontThread() { platform::fontsNeeded(); }
  } joinFontThread;

  // 3-4. The application, which is also the per-user single instance.
  QtSingleApplication app(argc, argv, true);
  QLoggingCategory::setFilterRules(QStringLiteral("debug.message=false"));
  if (options.applicationReady) options.applicationReady(app);

  // 5-6. Folders; the process services (Winsock, error mode on Windows).
  const QString logPath = registerPaths();
  os_services::start_process_services();

  // 7. Look.
  app.setStyleSheet(QStringLiteral("QLabel { color: #505A64; }"));
  QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);

  // 8. Logging.
  UIPathManager* paths = UIPathManager::getInstance();
  const QString resources = paths->getPath(QStringLiteral("resource_path"));
  if (!logPath.isEmpty()) QDir().mkpath(logPath);
  const int logged = vlog::init(vlog::kRotatingFile, wide(logPath + QStringLiteral("/ui.txt")),
                                wide(resources + QStringLiteral("/agent.debug")), "", 50, 1);
  LOG_INFO(vlog::kDefaultComponent, "Application start with log %d", logged);

  // 9. Pictures and style sheets.
  ImageManager::getInstance()->initialize(0);
  StyleManager::getInstance()->initialize({resources + QStringLiteral("/agent.stylesheet"),
                                           resources + QStringLiteral("/component.business.stylesheet"),
                                           resources + QStringLiteral("/high-contrast.palette")});

  // 10. Languages and the translator. 11. The catalogue is a table compiled
  // into the program; its texts are translated when looked up, so nothing is
  // read before this point.
  VellLocale* locale = VellLocale::getInstance();
  locale->setLanguageMap(QStringLiteral("de"), QStringLiteral("ger"));
  locale->setLanguageMap(QStringLiteral("fr"), QStringLiteral("fre"));
  locale->setLanguageMap(QStringLiteral("es"), QStringLiteral("spn"));
  locale->setLanguageMap(QStringLiteral("th"), QStringLiteral("tha"));
  // The desktop's messages locale (LC_ALL, LC_MESSAGES, LANG), else the
  // system locale.
  const QString language = language_font::desktop_language();
  QTranslator translator;
  // English is the catalogue's own language: it has no translation file.
  if (language != QLatin1String(VellLocale::kFallbackLanguage) &&
      string_display::load_translation(translator, language) && !translator.isEmpty())
    QCoreApplication::installTranslator(&translator);

  // 12. Font by language (with readable stand-ins where a family is missing):
  // before the first widget is built, which is after the tray icon is shown
  // (loading the font configuration is the slowest step of start-up).
  bool fontSet = false;
  const auto setFont = [&fontSet, language] {
    if (fontSet) return;
    fontSet = true;
    platform::fontsNeeded();
    language_font::install_font_substitutions();
    QApplication::setFont(language_font::application_font(language));
  };

  // 13. The machine-wide lock: another user's agent refuses this one.
  MachineLock lock(MachineLock::kName, options.lockUser);
  // True (after the warning) when another user's agent holds the lock.
  const auto refused = [&setFont](MachineLock::Result r) {
    if (r != MachineLock::HeldByOtherUser && r != MachineLock::Failed) return false;
    LOG_WARN(vlog::kDefaultComponent, "machine lock %s: another user runs the agent",
             MachineLock::resultName(r));
    setFont();
    showWarningMsg(string_display::text(Str::app_name), string_display::text(Str::app_exists));
    os_services::stop_process_services();
    return true;
  };
  if (refused(lock.acquire())) return 0;

  // 14. Single instance: a first instance that is exiting has 500 ms to let go.
  QElapsedTimer clock;
  clock.start();
  const bool primary = becomePrimary([&app] { return app.isRunning(); }, [&clock] { return clock.elapsed(); },
                                     [] { QThread::msleep(10); });
  if (!primary) {
    QThread::msleep(100);
    const QString message = messageForRunning(QCoreApplication::arguments());
    const bool sent = app.sendMessage(message, 5000);
    LOG_INFO(vlog::kDefaultComponent, "another instance runs: message %s", sent ? "delivered" : "lost");
    lock.release();
    os_services::stop_process_services();
    return 0;
  }

  // The primary holds the machine lock for its whole life, also when this
  // user's exiting agent still held it a moment ago.
  if (!lock.held()) {
    const MachineLock::Result kept = lock.acquireForLife(3000);
    if (refused(kept)) return 0;
    if (kept != MachineLock::Acquired)
      LOG_ERROR(vlog::kDefaultComponent, "machine lock still %s: this agent runs without it",
                MachineLock::resultName(kept));
  }

  // 15. The primary instance.
  QObject::connect(&app, &QtSingleApplication::messageReceived, &GlobalConnecter::instance(),
                   &GlobalConnecter::sigMessageReceived);
  ComponentStrings::getInstance()->installStrings(
      {{QStringLiteral("ok"), string_display::text(Str::btn_ok)},
       {QStringLiteral("cancel"), string_display::text(Str::btn_cancel)},
       {QStringLiteral("copy"), string_display::text(Str::act_copy)}});
  // What the windows need, once the event loop runs: the primary shows its
  // tray icon first. (Posted before the primary is made, so that it runs
  // before anything the primary posts.)
  QMetaObject::invokeMethod(
      &app,
      [&app, &setFont] {
        setFont();
        app.setWindowIcon(QIcon(getGlobalImage(QStringLiteral("app_img"))));
      },
      Qt::QueuedConnection);
  const bool openLog = wantsOpenLog(QCoreApplication::arguments());
  std::unique_ptr<QObject> controller =
      options.createPrimary ? options.createPrimary(openLog) : startClientManager(openLog);
  platform::installPositionSource(app);
  if (options.primaryReady) options.primaryReady();

  const int code = QApplication::exec();

  // Teardown, in order: the mouse hook, the process services, the lock, the
  // controller (which stops its threads).
  platform::removePositionSource(app);
  os_services::stop_process_services();
  lock.release();
  controller.reset();
  LOG_INFO(vlog::kDefaultComponent, "Application exit with %d", code);
  return code;
}

}  // namespace agent_app
