#pragma once
// The sign-in page of the simulated cloud, served over HTTP on 127.0.0.1 at a
// free port. "get_auth" answers with its address; the page shows the account
// and a "Sign in" button; submitting the form issues a one-time token and
// redirects the browser to nimbrabackup://nimbrabackupprotocol?access_token=...,
// which is how a real cloud sign-in hands the token back to the agent.

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QString>

class QTcpServer;
class QTcpSocket;

namespace sim {

class DeviceModel;

class SigninServer : public QObject {
  Q_OBJECT

 public:
  SigninServer(DeviceModel& model, QString account_email, QObject* parent = nullptr);
  ~SigninServer() override;

  // Listens on 127.0.0.1 (port 0: any free port); false when it cannot.
  bool listen(quint16 port = 0);
  quint16 port() const;
  // http://127.0.0.1:PORT/signin
  QString url() const;

  static QByteArray page_html(const QString& email);

  // A connection whose request is not complete this long after it opened
  // is dropped (10 s unless changed; tests shorten it).
  static constexpr int kIdleTimeoutMs = 10000;
  void setIdleTimeoutMs(int ms) { idle_timeout_ms_ = ms; }
  // Connections not yet answered.
  int pendingConnections() const { return pending_.size(); }

 signals:
  void tokenIssued(const QString& token);

 private:
  void onNewConnection();
  void onReadyRead(QTcpSocket* socket);
  void respond(QTcpSocket* socket, const QByteArray& method, const QByteArray& path, const QByteArray& body);
  static void reply(QTcpSocket* socket, int code, const QByteArray& reason, const QByteArray& content_type,
                    const QByteArray& body, const QByteArray& extra_headers = QByteArray());

  DeviceModel& model_;
  QString email_;
  QTcpServer* server_;
  QHash<QTcpSocket*, QByteArray> pending_;
  int idle_timeout_ms_ = kIdleTimeoutMs;
};

}  // namespace sim
