#include "widgets/accessible-text.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QWidget>
#include <QWindow>

namespace accessible_text {

namespace {

const char kRoleProperty[] = "_nimbra_window_role";

// The application at the root of the tree. Qt's own leaves every pop-up
// window out (its menus come with their buttons); the tray pop-up, a pop-up
// window given a role, is a window of its own to its user and is listed.
class ApplicationRoot : public QAccessibleObject {
 public:
  explicit ApplicationRoot(QObject* app) : QAccessibleObject(app) {}

  QWindow* window() const override { return nullptr; }
  QAccessibleInterface* parent() const override { return nullptr; }
  int childCount() const override { return static_cast<int>(windows().size()); }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child ? static_cast<int>(windows().indexOf(child->object())) : -1;
  }
  QAccessibleInterface* child(int index) const override {
    const QObjectList list = windows();
    return index >= 0 && index < list.size() ? QAccessible::queryAccessibleInterface(list.at(index))
                                             : nullptr;
  }
  QAccessibleInterface* focusChild() const override {
    QWindow* focused = QGuiApplication::focusWindow();
    return focused ? focused->accessibleRoot() : nullptr;
  }
  QString text(QAccessible::Text t) const override {
    if (t == QAccessible::Name) return QGuiApplication::applicationName();
    if (t == QAccessible::Description) return QCoreApplication::applicationFilePath();
    return QString();
  }
  QAccessible::Role role() const override { return QAccessible::Application; }
  QAccessible::State state() const override { return {}; }

 private:
  static QObjectList windows() {
    QObjectList list;
    for (QWindow* w : QGuiApplication::topLevelWindows()) {
      if (w->type() == Qt::Desktop) continue;
      QAccessibleInterface* root = w->accessibleRoot();
      if (!root || !root->object()) continue;
      if (w->type() == Qt::Popup && !root->object()->property(kRoleProperty).isValid()) continue;
      list.append(root->object());
    }
    return list;
  }
};

// Consulted for every class of an object's hierarchy, most derived first:
// a window given a role answers for its own class already.
QAccessibleInterface* windowWithRole(const QString&, QObject* object) {
  if (object && object == QCoreApplication::instance()) return new ApplicationRoot(object);
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

void install() {
  static const bool installed = [] {
    QAccessible::installFactory(&windowWithRole);
    return true;
  }();
  (void)installed;
}

void set_window_role(QWidget* window, WindowRole role) {
  install();
  window->setProperty(kRoleProperty, static_cast<int>(role));
  // Qt makes a window's interface as soon as something about it changes
  // while accessibility is on (its name being set, say); one made before the
  // role was given is dropped, so that the next one takes it.
  QAccessibleInterface* made = QAccessible::queryAccessibleInterface(window);
  const QAccessible::Role wanted = role == WindowRole::Dialog ? QAccessible::Dialog : QAccessible::Window;
  if (made && made->role() != wanted) QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
}

Spoken for_value(const QString& caption, const QString& value) {
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

void describe_value(QWidget* value, const QString& caption, const QString& text) {
  apply(value, for_value(caption, text));
}

}  // namespace accessible_text
