#include "accessible-text.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QWidget>

namespace accessible_text {

namespace {

const char kRoleProperty[] = "_nimbra_window_role";

// Consulted for every class of an object's hierarchy, most derived first:
// a window given a role answers for its own class already.
QAccessibleInterface* windowWithRole(const QString&, QObject* object) {
  if (!object || !object->isWidgetType()) return nullptr;
  const QVariant role = object->property(kRoleProperty);
  if (!role.isValid()) return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(object),
                               static_cast<WindowRole>(role.toInt()) == WindowRole::Dialog
                                   ? QAccessible::Dialog
                                   : QAccessible::Window);
}

QString withoutColon(QString caption) {
  caption = caption.trimmed();
  while (caption.endsWith(QLatin1Char(':')) || caption.endsWith(QChar(0xFF1A)))  // also the full-width colon
    caption.chop(1);
  return caption.trimmed();
}

}  // namespace

void setWindowRole(QWidget* window, WindowRole role) {
  static const bool installed = [] {
    QAccessible::installFactory(&windowWithRole);
    return true;
  }();
  (void)installed;
  window->setProperty(kRoleProperty, static_cast<int>(role));
  // Qt makes a window's interface as soon as something about it changes
  // while accessibility is on (its name being set, say); one made before the
  // role was given is dropped, so that the next one takes it.
  QAccessibleInterface* made = QAccessible::queryAccessibleInterface(window);
  const QAccessible::Role wanted = role == WindowRole::Dialog ? QAccessible::Dialog : QAccessible::Window;
  if (made && made->role() != wanted) QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
}

Spoken forValue(const QString& caption, const QString& value) {
  const QString plain =
      Qt::mightBeRichText(value) ? QTextDocumentFragment::fromHtml(value).toPlainText() : value;
  return {plain.simplified(), withoutColon(caption)};
}

namespace {
void apply(QWidget* widget, const Spoken& spoken) {
  if (widget->accessibleName() != spoken.name) widget->setAccessibleName(spoken.name);
  if (widget->accessibleDescription() != spoken.description)
    widget->setAccessibleDescription(spoken.description);
}
}  // namespace

void describeValue(QWidget* value, const QString& caption, const QString& text) {
  apply(value, forValue(caption, text));
}

}  // namespace accessible_text
