#include "service-sim/sim-cli.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <system_error>

#include "ipc/win-ipc.h"
#include "logging/logger.h"
#include "service-sim/agent-client.h"
#include "service-sim/device-model.h"
#include "service-sim/pipe-service.h"
#include "service-sim/quit-signals.h"
#include "service-sim/scenario.h"
#include "service-sim/signin-server.h"
#include "service-sim/sim-log.h"
#include "vantor-core/lib/env.h"
#include "vantor-core/lib/json-access.h"

namespace sim {

namespace {

// Command-line options of the form --name VALUE and --flag.
class Options {
 public:
  Options(const std::vector<std::string>& args, std::vector<std::string> flags) {
    for (std::size_t i = 0; i < args.size(); ++i) {
      const std::string& a = args[i];
      if (a.rfind("--", 0) == 0 && a.size() > 2) {
        std::string name = a.substr(2);
        const auto eq = name.find('=');
        if (eq != std::string::npos) {
          values_[name.substr(0, eq)] = name.substr(eq + 1);
        } else if (std::find(flags.begin(), flags.end(), name) != flags.end()) {
          values_[name] = "1";
        } else if (i + 1 < args.size()) {
          values_[name] = args[++i];
        } else {
          error_ = "option --" + name + " needs a value";
        }
      } else {
        positional_.push_back(a);
      }
    }
  }
  bool has(const std::string& name) const { return values_.count(name) > 0; }
  std::string get(const std::string& name, const std::string& fallback = std::string()) const {
    const auto it = values_.find(name);
    return it == values_.end() ? fallback : it->second;
  }
  const std::vector<std::string>& positional() const { return positional_; }
  const std::string& error() const { return error_; }
  // Names not in `known`.
  std::string unknown(const std::vector<std::string>& known) const {
    for (const auto& [name, value] : values_)
      if (std::find(known.begin(), known.end(), name) == known.end()) return name;
    return std::string();
  }

 private:
  std::map<std::string, std::string> values_;
  std::vector<std::string> positional_;
  std::string error_;
};

bool to_int(const std::string& text, long long& out) {
  if (text.empty()) return false;
  char* end = nullptr;
  errno = 0;
  out = std::strtoll(text.c_str(), &end, 10);
  return errno == 0 && end != nullptr && *end == '\0';
}

int usage_error(const std::string& message) {
  std::fprintf(stderr, "nimbra-service-sim: %s\n(see nimbra-service-sim --help)\n", message.c_str());
  return 2;
}

std::string default_state_dir() {
  const char* xdg = std::getenv("XDG_STATE_HOME");
  if (xdg != nullptr && *xdg != '\0') return std::string(xdg) + "/nimbra-service-sim";
  const char* home = std::getenv("HOME");
  if (home != nullptr && *home != '\0') return std::string(home) + "/.local/state/nimbra-service-sim";
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString() +
         "/nimbra-service-sim";
}

}  // namespace

std::string working_space_folder() {
  // The same folder the agent reads: $NIMBRA_WORKING_SPACE, else the
  // machine-wide application-data folder + "/NimbraBackupAgent".
  try {
    return vantor::get_working_space_utf8();
  } catch (const std::exception& e) {
    SIM_ERROR("the working space cannot be found (%s); using the current folder", e.what());
    return ".";
  }
}

std::string help_text() {
  return R"(nimbra-service-sim: a simulated Nimbra Backup service for trying and testing the agent.

It speaks the service's side of the agent's pipe protocol (see docs/protocol.md)
from a stateful model of one device, scripted by a scenario file.

USAGE
  nimbra-service-sim serve [--scenario FILE] [--state DIR] [--record FILE] [options]
  nimbra-service-sim send --pipe NAME JSON
  nimbra-service-sim notify --type N [--data JSON] [options]
  nimbra-service-sim --help

serve
  Serves the service pipe until SIGINT or SIGTERM (Ctrl+C), answering every
  action: get_status, get_connection_info, get_auth, get_token, get_site_info,
  create_device, backup_now, logout, get_portal_link, update_tray_menu,
  get_bandwidth_control, set_bandwidth_control. Also serves the sign-in page
  on http://127.0.0.1:<free port>/signin ("get_auth" answers with it); its
  "Sign in" button sends the browser to
  nimbrabackup://nimbrabackupprotocol?access_token=<token>, and "get_token"
  accepts exactly the tokens issued there, each once. Notifications (backup
  finished: type 7; storage 85%: type 8; 95%: type 9) are pushed to the
  agent's pipe.
    --scenario FILE     scenario to play (service-sim/scenarios/*.json; format
                        in service-sim/scenarios/README.md). Default: a linked,
                        idle device.
    --state DIR         folder of the state file sim-state.json (linked or not,
                        site, bandwidth settings, last result, used bytes, log
                        ids) and of the default log. A restart with the same
                        folder resumes. Default: $XDG_STATE_HOME/nimbra-service-sim
    --fresh             ignore (and overwrite) an existing state file
    --record FILE       append every request received as one JSON line:
                        {"time_ms":..., "time":"...Z", "request":{...}} (or
                        "raw":"..." for text that is not JSON)
    --log FILE          the simulator's log file (default DIR/sim.log)
    --verbose           also print the simulator's log lines on standard error
    --port N            port of the sign-in page (default: any free port)
    --pipe NAME         pipe to serve (default: the service pipe
                        \\.\pipe\nimbrabackup-service)
    --agent-pipe NAME   where notifications go (default: \\.\pipe\nimbrabackup-ui)
    --working-space DIR folder of the "service-status" file (default:
                        $NIMBRA_WORKING_SPACE, else the machine-wide folder)
    --tick-ms N         how often the model moves on (default 100)
  When ready it prints one line on standard output:
    ready pipe=<platform name> signin=<url> state=<DIR>

send --pipe NAME JSON
  One framed exchange with any pipe through the project's client end: JSON is
  sent as given (use - to read it from standard input) and the answer is
  printed on standard output. NAME is "service", "agent" (or "ui"), or a pipe
  name such as \\.\pipe\nimbrabackup-service. A failed exchange prints the
  reason on standard error and exits with 1.
    --timeout MS        how long a busy pipe is retried (default 3000)
  Example:
    nimbra-service-sim send --pipe service '{"action":"get_status","log_id":0}'

notify --type N [--data JSON]
  Pushes one notification to the agent's pipe:
    {"action":"notifications","site_path":...,"notifications":[{"id","type",
     "data","action_type","noti_nimbrauser"}]}
  Types: 6 backup successful, 7 backup finished (data {"status":2|3|4|5}),
  8 storage nearly full and 9 storage full (data {"total_size":BYTES}),
  10 device removed, 11 full disk access, 12 system extension.
    --data JSON         the notification's data (default {})
    --id N              notification id (default 1)
    --action-type N     action_type (default 1)
    --site-path TEXT    site_path (default https://us.console.nimbrabackup.example)
    --nimbra-user       set noti_nimbrauser
    --pipe NAME         default: the agent's pipe
  Exit status: 0 when the agent answered {"success":true}, 3 when it answered
  otherwise, 1 when the exchange failed, 2 for a usage error.

ENVIRONMENT
  NIMBRA_PIPE_NAMESPACE  put before every pipe name on Linux, so that test runs
                         and demos do not meet (set it the same for the agent)
  NIMBRA_WORKING_SPACE   folder of the "service-status" file written during an
                         upgrade scenario ("updating", then "update_error" or
                         an empty file)
)";
}

int run_send(const std::vector<std::string>& args) {
  Options o(args, {});
  if (!o.error().empty()) return usage_error(o.error());
  const std::string bad = o.unknown({"pipe", "timeout"});
  if (!bad.empty()) return usage_error("send does not know --" + bad);
  if (!o.has("pipe")) return usage_error("send needs --pipe NAME");
  if (o.positional().size() != 1) return usage_error("send needs exactly one JSON argument");
  std::string message = o.positional()[0];
  if (message == "-") {
    message.clear();
    char buf[4096];
    std::size_t n = 0;
    while ((n = std::fread(buf, 1, sizeof buf, stdin)) > 0) message.append(buf, n);
  }
  long long timeout = 3000;
  if (o.has("timeout") && (!to_int(o.get("timeout"), timeout) || timeout < 0))
    return usage_error("--timeout must be a number of milliseconds");
  const Exchange ex = exchange(resolve_pipe_name(o.get("pipe")), message, static_cast<int>(timeout));
  if (!ex.ok) {
    std::fprintf(stderr, "nimbra-service-sim send: %s\n", ex.error.c_str());
    return 1;
  }
  std::fwrite(ex.answer.data(), 1, ex.answer.size(), stdout);
  std::fputc('\n', stdout);
  return 0;
}

int run_notify(const std::vector<std::string>& args) {
  Options o(args, {"nimbra-user"});
  if (!o.error().empty()) return usage_error(o.error());
  const std::string bad =
      o.unknown({"type", "data", "id", "action-type", "site-path", "nimbra-user", "pipe"});
  if (!bad.empty()) return usage_error("notify does not know --" + bad);
  if (!o.positional().empty()) return usage_error("notify takes no argument '" + o.positional()[0] + "'");
  long long type = 0, id = 1, action_type = 1;
  if (!to_int(o.get("type"), type)) return usage_error("notify needs --type N (a number)");
  if (o.has("id") && !to_int(o.get("id"), id)) return usage_error("--id must be a number");
  if (o.has("action-type") && !to_int(o.get("action-type"), action_type))
    return usage_error("--action-type must be a number");
  Json::Value data(Json::objectValue);
  if (o.has("data")) {
    std::string error;
    if (!jsonx::parse(o.get("data"), data, &error)) return usage_error("--data is not JSON: " + error);
  }
  const Json::Value request = DeviceModel::notification_request(
      o.get("site-path", "https://us.console.nimbrabackup.example"), id, static_cast<int>(type), data,
      static_cast<int>(action_type), o.has("nimbra-user"));
  const Exchange ex = exchange(resolve_pipe_name(o.get("pipe", "agent")), jsonx::compact(request), 3000);
  if (!ex.ok) {
    std::fprintf(stderr, "nimbra-service-sim notify: %s\n", ex.error.c_str());
    return 1;
  }
  std::fwrite(ex.answer.data(), 1, ex.answer.size(), stdout);
  std::fputc('\n', stdout);
  Json::Value reply;
  return jsonx::parse(ex.answer, reply) && jsonx::get_bool(reply, "success") ? 0 : 3;
}

int run_serve(int argc, char** argv, const std::vector<std::string>& args) {
  Options o(args, {"verbose", "fresh"});
  if (!o.error().empty()) return usage_error(o.error());
  const std::string bad = o.unknown({"scenario", "state", "record", "log", "verbose", "port", "pipe",
                                     "agent-pipe", "working-space", "tick-ms", "fresh"});
  if (!bad.empty()) return usage_error("serve does not know --" + bad);
  if (!o.positional().empty()) return usage_error("serve takes no argument '" + o.positional()[0] + "'");
  long long port = 0, tick = 100;
  if (o.has("port") && (!to_int(o.get("port"), port) || port < 0 || port > 65535))
    return usage_error("--port must be 0..65535");
  if (o.has("tick-ms") && (!to_int(o.get("tick-ms"), tick) || tick < 1 || tick > 60000))
    return usage_error("--tick-ms must be 1..60000");
  verbose() = o.has("verbose");

  Scenario scenario = default_scenario();
  if (o.has("scenario")) {
    std::string error;
    if (!load_scenario(o.get("scenario"), scenario, &error)) {
      std::fprintf(stderr, "nimbra-service-sim: %s\n", error.c_str());
      return 2;
    }
  }
  const std::string state_dir = o.get("state", default_state_dir());
  std::error_code ec;
  std::filesystem::create_directories(state_dir, ec);
  if (ec) {
    std::fprintf(stderr, "nimbra-service-sim: cannot create the state folder %s: %s\n", state_dir.c_str(),
                 ec.message().c_str());
    return 1;
  }
  // Thresholds of the simulator's own log: its lines at information level,
  // the transport's at warning level.
  const std::string settings = state_dir + "/sim.debug";
  {
    std::FILE* f = std::fopen(settings.c_str(), "w");
    if (f != nullptr) {
      std::fputs("service_sim = 6\nwin_ipc = 4\ndefault_component = 4\n", f);
      std::fclose(f);
    }
  }
  const std::string log_file = o.get("log", state_dir + "/sim.log");
  if (vlog::init(vlog::kRotatingFile, std::wstring(log_file.begin(), log_file.end()),
                 std::wstring(settings.begin(), settings.end()), "", 5, 1) != 0)
    std::fprintf(stderr, "nimbra-service-sim: cannot open the log file %s; going on without it\n",
                 log_file.c_str());

  if (o.has("fresh")) std::filesystem::remove(state_dir + "/sim-state.json", ec);

  QCoreApplication app(argc, argv);
  install_quit_handlers(app);

  const std::string ws = o.get("working-space", working_space_folder());
  DeviceModel model(scenario, state_dir, ws);
  const std::string resumed = model.load_state();
  SIM_INFO("scenario '%s' (%s): %s", scenario.name.c_str(),
           scenario.file.empty() ? "built in" : scenario.file.c_str(), resumed.c_str());

  SigninServer signin(model, QString::fromStdString(scenario.email));
  if (!signin.listen(static_cast<quint16>(port))) {
    std::fprintf(stderr, "nimbra-service-sim: the sign-in page cannot listen on port %lld\n", port);
    return 1;
  }
  model.set_signin_url(signin.url().toStdString());

  PipeService::Options po;
  po.pipe_name = resolve_pipe_name(o.get("pipe", "service"));
  po.record_path = o.get("record");
  po.faults = scenario.faults;
  po.hostile = scenario.hostile;
  po.answer_delay_ms = scenario.answer_delay_ms;
  PipeService pipe(model, po);
  std::string error;
  if (!pipe.start(&error)) {
    std::fprintf(stderr, "nimbra-service-sim: %s\n", error.c_str());
    return 1;
  }
  NotificationPusher pusher(resolve_pipe_name(o.get("agent-pipe", "agent")));

  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    model.advance();
    for (const auto& n : model.take_notifications()) pusher.push(n);
  });
  timer.start(static_cast<int>(tick));
  model.advance();

  std::printf("ready pipe=%s signin=%s state=%s\n", WinIpc::platform_pipe_name(po.pipe_name).c_str(),
              signin.url().toUtf8().constData(), state_dir.c_str());
  std::fflush(stdout);

  const int rc = app.exec();
  timer.stop();
  pipe.stop();
  SIM_INFO("stopped after %llu requests", static_cast<unsigned long long>(pipe.received()));
  vlog::shutdown();
  return rc;
}

int run_cli(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  if (args.empty()) {
    std::fputs(help_text().c_str(), stdout);
    return 2;
  }
  const std::string command = args[0];
  const std::vector<std::string> rest(args.begin() + 1, args.end());
  if (command == "--help" || command == "-h" || command == "help") {
    std::fputs(help_text().c_str(), stdout);
    return 0;
  }
  for (const auto& a : rest) {
    if (a == "--help" || a == "-h") {
      std::fputs(help_text().c_str(), stdout);
      return 0;
    }
  }
  if (command == "serve") return run_serve(argc, argv, rest);
  if (command == "send") return run_send(rest);
  if (command == "notify") return run_notify(rest);
  return usage_error("unknown command '" + command + "'");
}

}  // namespace sim
