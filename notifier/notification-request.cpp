#include "notifier/notification-request.h"

#include <QDir>

namespace notifier {

ServerTraits traits_from_capabilities(const QStringList& capabilities) {
  ServerTraits t;
  t.body_markup = capabilities.contains("body-markup");
  t.actions = capabilities.contains("actions");
  return t;
}

QString escape_markup(const QString& text) {
  QString out;
  out.reserve(text.size() + text.size() / 8);
  for (const QChar c : text) {
    switch (c.unicode()) {
      case '&':
        out += QLatin1String("&amp;");
        break;
      case '<':
        out += QLatin1String("&lt;");
        break;
      case '>':
        out += QLatin1String("&gt;");
        break;
      case '"':
        out += QLatin1String("&quot;");
        break;
      case '\'':
        out += QLatin1String("&apos;");
        break;
      default:
        out += c;
    }
  }
  return out;
}

std::vector<NotifyCall> build_notify_calls(const NotifierRequest& request, const ServerTraits& traits,
                                           const QString& app_name, const QString& app_icon) {
  std::vector<NotifyCall> calls;
  for (const NotificationElement& el : request.elements) {
    if (el.title.isEmpty() && el.text.isEmpty()) continue;
    NotifyCall c;
    c.app_name = app_name;
    c.app_icon = app_icon;
    c.summary = el.title;
    c.body = traits.body_markup ? escape_markup(el.text) : el.text;
    if (traits.actions) {
      c.actions << kDefaultActionKey << (el.button.isEmpty() ? app_name : el.button);
      if (!el.button.isEmpty()) {
        c.button_key = QString::number(el.action_type);
        c.actions << c.button_key << el.button;
      }
    }
    c.hints.insert("desktop-entry", QString(kAgentDesktopEntry));
    c.hints.insert("urgency", QVariant::fromValue<uchar>(1));
    calls.push_back(c);
  }
  return calls;
}

QString notification_icon(const QString& app_dir, const std::function<bool(const QString&)>& exists) {
  const QString png = QDir::cleanPath(app_dir + "/../share/icons/hicolor/128x128/apps/" +
                                      QLatin1String(kIconName) + QLatin1String(".png"));
  return exists(png) ? png : QString(kIconName);
}

QString agent_program(const QString& app_dir) {
  return app_dir + "/" + QLatin1String(kAgentProgram);
}

}  // namespace notifier
