#pragma once
// The tray icon as a StatusNotifierItem: the D-Bus tray of KDE Plasma, GNOME
// with the AppIndicator extension, XFCE, LXQt and waybar.
//
// The item exports org.kde.StatusNotifierItem on the session bus under a
// name of its own, with the title "Nimbra Backup", the pictures and tool tip
// it is given and the right-click menu over com.canonical.dbusmenu, and
// registers with the org.kde.StatusNotifierWatcher whenever one appears (a
// panel that starts after the agent, or starts again). It passes on the
// point the panel reports with a click (Activate), which Qt's own tray icon
// drops.
//
// host() says whether a panel shows the item: Unknown until the session bus
// has answered the first question, then Present or Absent; hostChanged()
// follows every change. Windows has no such trays: its item is always Absent.

#include <QIcon>
#include <QObject>
#include <QPoint>
#include <QString>

class QMenu;

class StatusNotifierItem : public QObject {
  Q_OBJECT
 public:
  enum class Host { Unknown, Absent, Present };

  // On the session bus, or on the D-Bus connection named `connection`.
  explicit StatusNotifierItem(QObject* parent = nullptr, const QString& connection = QString());
  ~StatusNotifierItem() override;

  Host host() const { return host_; }

  // The picture, drawn for each of its sizes.
  void setIcon(const QIcon& icon);
  // The first line is the tool tip's title, the others its text.
  void setToolTip(const QString& toolTip);
  // The right-click menu: its entries are what the exported menu holds (it
  // is exported for the item's whole life, empty without one, so that a
  // panel that reads it once at the start sees it change).
  void setMenu(QMenu* menu);

  // The bus name the item is exported under; empty when it is not.
  QString serviceName() const { return service_; }

 signals:
  void hostChanged();
  // A click on the item, at the point the panel gave (0, 0 when it gave none).
  void activated(QPoint point);
  // A panel without menu support asks the application to show its menu.
  void contextMenuRequested(QPoint point);

 private:
  friend class StatusNotifierAdaptor;
  void setHost(Host host);
  void askWatcher();
  void registerWithWatcher();

 private slots:
  // A host registered or left: asks the watcher whether one is left.
  void askHost();

 private:
  Host host_ = Host::Unknown;
  QString connection_;
  QString service_;
  QObject* adaptor_ = nullptr;
  QMenu* exported_ = nullptr;
  int generation_ = 0;  // answers to questions asked before a change are dropped
};
