#pragma once
// What the notifier sends to the desktop's notification service for the
// elements of one run: one Notify call per element, in order. Pure values, so
// the rules (markup, actions, skipped elements, icon) are tested without a bus.

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <vector>

#include "notifier/notifier-args.h"

namespace notifier {

// Names that the installed files share with the notifier.
inline constexpr const char* kAgentProgram = "nimbra-backup-agent";
inline constexpr const char* kAgentDesktopEntry = "nimbra-backup-agent";  // .desktop file, without suffix
inline constexpr const char* kIconName = "nimbra-backup-agent";           // hicolor icon name
// The argument that makes a second agent tell the running one to open.
inline constexpr const char* kAgentOpenArgument = "open";
// Action key of a click on the notification itself (freedesktop convention).
inline constexpr const char* kDefaultActionKey = "default";

// What the service said about itself (GetCapabilities).
struct ServerTraits {
  bool body_markup = false;  // renders the body as markup
  bool actions = false;      // shows buttons
};
ServerTraits traits_from_capabilities(const QStringList& capabilities);

// The arguments of one org.freedesktop.Notifications.Notify call, less the
// id it replaces (known only once the previous call has answered).
struct NotifyCall {
  QString app_name;
  QString app_icon;
  QString summary;
  QString body;
  QStringList actions;  // key, label, key, label ...
  QVariantMap hints;
  int expire_timeout = -1;  // the server's default
  QString button_key;       // the key of the element's button, empty without one
};

// Markup characters as entities, for servers that render the body as markup.
// Titles are plain text for every server and stay as they are.
QString escape_markup(const QString& text);

// One call per element that has something to say; elements whose title and
// text are both empty (a notification type the agent has no words for) are
// left out. Each call carries the element's button as an action keyed by its
// action type, and the same action on a click of the notification itself.
std::vector<NotifyCall> build_notify_calls(const NotifierRequest& request, const ServerTraits& traits,
                                           const QString& app_name, const QString& app_icon);

// The icon: the rendered PNG of the installed tree beside `app_dir` (the
// folder of the executables) when `exists` finds it, else the icon's name in
// the theme (the Debian package puts it into the system's hicolor theme).
QString notification_icon(const QString& app_dir, const std::function<bool(const QString&)>& exists);

// The agent in the same folder as the notifier.
QString agent_program(const QString& app_dir);

}  // namespace notifier
