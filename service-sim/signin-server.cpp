#include "service-sim/signin-server.h"

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrlQuery>

#include "service-sim/device-model.h"
#include "service-sim/sim-log.h"

namespace sim {

namespace {
constexpr int kMaxRequestBytes = 64 * 1024;
const char kReturnPrefix[] = "nimbrabackup://nimbrabackupprotocol?access_token=";
}  // namespace

SigninServer::SigninServer(DeviceModel& model, QString account_email, QObject* parent)
    : QObject(parent), model_(model), email_(std::move(account_email)), server_(new QTcpServer(this)) {
  connect(server_, &QTcpServer::newConnection, this, &SigninServer::onNewConnection);
}

SigninServer::~SigninServer() = default;

bool SigninServer::listen(quint16 port) {
  if (!server_->listen(QHostAddress::LocalHost, port)) {
    SIM_ERROR("sign-in page cannot listen on 127.0.0.1:%u: %s", port,
              server_->errorString().toUtf8().constData());
    return false;
  }
  SIM_INFO("sign-in page at %s", url().toUtf8().constData());
  return true;
}

quint16 SigninServer::port() const {
  return server_->serverPort();
}

QString SigninServer::url() const {
  return QStringLiteral("http://127.0.0.1:%1/signin").arg(port());
}

QByteArray SigninServer::page_html(const QString& email) {
  const QString safe = email.toHtmlEscaped();
  return QStringLiteral(
             "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">"
             "<title>Sign in - Nimbra Backup</title>"
             "<style>body{font-family:sans-serif;background:#f4f6f8;margin:0}"
             ".card{width:360px;margin:80px auto;background:#fff;border-radius:8px;padding:32px;"
             "box-shadow:0 2px 12px rgba(0,0,0,.12)}h1{font-size:22px;margin:0 0 8px}"
             "p{color:#505a64}label{display:block;margin:16px 0 4px;color:#1e2832}"
             "input{width:100%;box-sizing:border-box;padding:8px;font-size:15px}"
             "button{margin-top:24px;width:100%;padding:10px;font-size:16px;background:#00a282;"
             "color:#fff;border:0;border-radius:4px;cursor:pointer}</style></head><body>"
             "<div class=\"card\"><h1>Nimbra Backup</h1>"
             "<p>Sign in to connect this device to your account.</p>"
             "<form method=\"post\" action=\"/signin\">"
             "<label for=\"email\">Email</label>"
             "<input id=\"email\" name=\"email\" type=\"email\" value=\"%1\" readonly>"
             "<label for=\"password\">Password</label>"
             "<input id=\"password\" name=\"password\" type=\"password\" value=\"simulated\">"
             "<button id=\"signin\" type=\"submit\">Sign in</button>"
             "</form></div></body></html>\n")
      .arg(safe)
      .toUtf8();
}

void SigninServer::onNewConnection() {
  while (QTcpSocket* socket = server_->nextPendingConnection()) {
    pending_.insert(socket, QByteArray());
    // A connection that never completes its request is not kept for ever.
    QTimer::singleShot(idle_timeout_ms_, socket, [this, socket] {
      if (!pending_.contains(socket)) return;
      SIM_WARN("sign-in page: connection without a complete request for %d ms dropped", idle_timeout_ms_);
      pending_.remove(socket);
      socket->abort();
      socket->deleteLater();
    });
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] { onReadyRead(socket); });
    connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
      pending_.remove(socket);
      socket->deleteLater();
    });
  }
}

void SigninServer::onReadyRead(QTcpSocket* socket) {
  if (!pending_.contains(socket)) return;
  QByteArray& buffer = pending_[socket];
  buffer.append(socket->readAll());
  if (buffer.size() > kMaxRequestBytes) {
    reply(socket, 413, "Payload Too Large", "text/plain", "request too large\n");
    pending_.remove(socket);
    return;
  }
  const int header_end = buffer.indexOf("\r\n\r\n");
  if (header_end < 0) return;
  const QList<QByteArray> lines = buffer.left(header_end).split('\n');
  const QList<QByteArray> request_line = lines.value(0).trimmed().split(' ');
  if (request_line.size() < 2) {
    reply(socket, 400, "Bad Request", "text/plain", "bad request\n");
    pending_.remove(socket);
    return;
  }
  int content_length = 0;
  for (int i = 1; i < lines.size(); ++i) {
    const QByteArray line = lines[i].trimmed();
    const int colon = line.indexOf(':');
    if (colon > 0 && line.left(colon).trimmed().toLower() == "content-length")
      content_length = qBound(0, line.mid(colon + 1).trimmed().toInt(), kMaxRequestBytes);
  }
  const QByteArray body = buffer.mid(header_end + 4);
  if (body.size() < content_length) return;  // the rest is on its way
  const QByteArray method = request_line[0];
  const QByteArray path = request_line[1];
  pending_.remove(socket);
  respond(socket, method, path, body.left(content_length));
}

void SigninServer::respond(QTcpSocket* socket, const QByteArray& method, const QByteArray& target,
                           const QByteArray& body) {
  const QByteArray path = target.split('?').value(0);
  if (path == "/signin" || path == "/") {
    if (method == "GET" || method == "HEAD") {
      reply(socket, 200, "OK", "text/html; charset=utf-8",
            method == "HEAD" ? QByteArray() : page_html(email_));
      return;
    }
    if (method == "POST") {
      const QUrlQuery form(QString::fromUtf8(body));
      const QString email = form.queryItemValue(QStringLiteral("email"), QUrl::FullyDecoded);
      const QString token = QString::fromStdString(model_.issue_token());
      const QByteArray location = QByteArray(kReturnPrefix) + token.toUtf8();
      SIM_INFO("sign-in page: %s signed in, token issued, browser sent back to the agent",
               (email.isEmpty() ? email_ : email).toUtf8().constData());
      const QByteArray html =
          "<!DOCTYPE html><html><head><meta charset=\"utf-8\"><title>Signed in</title></head>"
          "<body><p>Signed in. Returning to Nimbra Backup&hellip;</p><p><a href=\"" +
          location + "\">Open Nimbra Backup</a></p></body></html>\n";
      reply(socket, 302, "Found", "text/html; charset=utf-8", html, "Location: " + location + "\r\n");
      emit tokenIssued(token);
      return;
    }
    reply(socket, 405, "Method Not Allowed", "text/plain", "use GET or POST\n", "Allow: GET, POST\r\n");
    return;
  }
  reply(socket, 404, "Not Found", "text/plain", "not found\n");
}

void SigninServer::reply(QTcpSocket* socket, int code, const QByteArray& reason,
                         const QByteArray& content_type, const QByteArray& body,
                         const QByteArray& extra_headers) {
  QByteArray out = "HTTP/1.1 " + QByteArray::number(code) + ' ' + reason + "\r\n";
  out += "Content-Type: " + content_type + "\r\n";
  out += "Content-Length: " + QByteArray::number(body.size()) + "\r\n";
  out += "Cache-Control: no-store\r\nConnection: close\r\n";
  out += extra_headers;
  out += "\r\n";
  out += body;
  socket->write(out);
  socket->disconnectFromHost();
}

}  // namespace sim
