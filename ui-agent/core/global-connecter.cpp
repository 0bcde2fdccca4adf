#include "ui-agent/core/global-connecter.h"

#include <cstdint>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QThread>

GlobalConnecter& GlobalConnecter::instance() {
  static GlobalConnecter bus;
  return bus;
}

GlobalConnecter::GlobalConnecter() : QObject(nullptr) {
  qRegisterMetaType<std::uint64_t>("uint64_t");
  qRegisterMetaType<Json::Value>("Json::Value");
  qRegisterMetaType<SharedJson>("SharedJson");
  // A spy or a QVariant reads a shared answer as the value it holds.
  QMetaType::registerConverter<SharedJson, Json::Value>([](const SharedJson& v) { return v.value(); });
  qRegisterMetaType<ConnectionInfo>("ConnectionInfo");
  qRegisterMetaType<ServiceStatus>("ServiceStatus");
  // The requester's address rides along with every request and answer.
  qRegisterMetaType<const QObject*>("const QObject*");
  qRegisterMetaType<Qt::ApplicationState>("Qt::ApplicationState");

  // The bus belongs to the main thread even when a worker touches it first.
  QCoreApplication* app = QCoreApplication::instance();
  if (app && thread() != app->thread()) moveToThread(app->thread());

  // The application's own state (active, inactive, hidden) feeds the bus.
  if (auto* gui = qobject_cast<QGuiApplication*>(app)) {
    connect(gui, &QGuiApplication::applicationStateChanged, this,
            &GlobalConnecter::sigApplicationStateChanged);
  }
}
