#include "widgets/single-application.h"

#include <QDataStream>
#include <QDir>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>
#include <QtEndian>

#include "logging/logger.h"
#include "widgets/machine-lock.h"
#include "widgets/user-identity.h"

namespace {

// The message as a log line may show it: the value of any secret-looking
// query item (token=, access_token=, ...password=...) hidden.
QString maskedMessage(const QString& message) {
  static const QRegularExpression secret(
      QStringLiteral("((?:^|[?&;\\s])[^?&;=\\s]*(?:token|password|otp|secret)[^?&;=\\s]*=)[^&;\\s]*"),
      QRegularExpression::CaseInsensitiveOption);
  QString out = message;
  out.replace(secret, QStringLiteral("\\1***"));
  return out;
}

}  // namespace

QString SingleInstance::maskedForLog(const QString& message) {
  return maskedMessage(message);
}

SingleInstance::SingleInstance(const QString& appId, QObject* parent) : QObject(parent) {
  const QString base = qEnvironmentVariable("NIMBRA_PIPE_NAMESPACE") + appId + QLatin1Char('-') +
                       user_identity::current_user_tag();
  const QString folder = user_identity::runtime_folder();
  if (folder.isEmpty()) {
    LOG_ERROR(vlog::kDefaultComponent, "single instance: no private folder; this process runs on its own");
    return;
  }
  lockPath_ = QDir(folder).filePath(base + QStringLiteral(".lock"));
  serverName_ = user_identity::local_server_name(base);
  lock_.reset(new QLockFile(lockPath_));
  lock_->setStaleLockTime(0);  // only a dead holder makes the lock stale
}

SingleInstance::~SingleInstance() {
  release();
}

bool SingleInstance::isRunning() {
  if (server_ || !lock_) return false;
  if (!lock_->tryLock(0)) {
    if (lock_->error() == QLockFile::PermissionError)
      LOG_ERROR(vlog::kDefaultComponent, "single instance: cannot write lock file [%s]",
                qUtf8Printable(lockPath_));
    return true;
  }
  // We hold the lock: whatever socket file is left belongs to a dead holder.
  QLocalServer::removeServer(serverName_);
  server_ = new QLocalServer(this);
  server_->setSocketOptions(QLocalServer::UserAccessOption);
  if (!server_->listen(serverName_)) {
    LOG_ERROR(vlog::kDefaultComponent, "single instance: cannot listen on [%s]: %s",
              qUtf8Printable(serverName_), qUtf8Printable(server_->errorString()));
    // A primary nobody can reach is no primary: give the lock back, so that
    // a later launch tries again, and do not start a second agent.
    delete server_;
    server_ = nullptr;
    lock_->unlock();
    return true;
  }
  connect(server_, &QLocalServer::newConnection, this, &SingleInstance::onNewConnection);
  LOG_INFO(vlog::kDefaultComponent, "single instance: primary on [%s]", qUtf8Printable(serverName_));
  return false;
}

void SingleInstance::release() {
  if (server_) {
    server_->close();
    delete server_;
    server_ = nullptr;
  }
  if (lock_ && lock_->isLocked()) lock_->unlock();
}

bool SingleInstance::sendMessage(const QString& message, int timeoutMs) {
  if (serverName_.isEmpty()) return false;
  const QByteArray payload = message.toUtf8();
  if (static_cast<quint32>(payload.size()) > kMaxMessageBytes) {
    LOG_ERROR(vlog::kDefaultComponent, "single instance: message of %d bytes is too long", payload.size());
    return false;
  }
  QElapsedTimer clock;
  clock.start();
  QLocalSocket socket;
  // The primary may hold the lock a moment before it listens: retry.
  for (;;) {
    socket.connectToServer(serverName_);
    const int left = timeoutMs - static_cast<int>(clock.elapsed());
    if (socket.waitForConnected(qMax(1, qMin(left, 250)))) {
      // The name is reachable; the message (it may carry a token) goes only
      // to a process of this user.
      if (user_identity::peer_is_same_user(socket.socketDescriptor())) break;
      LOG_ERROR(vlog::kDefaultComponent, "single instance: [%s] is served by another user, message not sent",
                qUtf8Printable(serverName_));
      socket.abort();
      return false;
    }
    socket.abort();
    if (clock.elapsed() >= timeoutMs) {
      LOG_WARN(vlog::kDefaultComponent, "single instance: no answer from [%s] within %d ms, message lost",
               qUtf8Printable(serverName_), timeoutMs);
      return false;
    }
    QThread::msleep(20);
  }
  QByteArray frame(4, '\0');
  qToBigEndian<quint32>(static_cast<quint32>(payload.size()), frame.data());
  frame += payload;
  socket.write(frame);
  while (socket.bytesToWrite() > 0) {
    const int left = timeoutMs - static_cast<int>(clock.elapsed());
    if (left <= 0 || !socket.waitForBytesWritten(left)) break;
  }
  while (socket.bytesAvailable() < 1) {
    const int left = timeoutMs - static_cast<int>(clock.elapsed());
    if (left <= 0 || !socket.waitForReadyRead(left)) {
      LOG_WARN(vlog::kDefaultComponent, "single instance: message to [%s] not acknowledged",
               qUtf8Printable(serverName_));
      return false;
    }
  }
  return socket.read(1) == QByteArray(1, '\x06');
}

void SingleInstance::onNewConnection() {
  while (QLocalSocket* socket = server_ ? server_->nextPendingConnection() : nullptr) {
    if (!user_identity::peer_is_same_user(socket->socketDescriptor())) {
      LOG_ERROR(vlog::kDefaultComponent, "single instance: refused a process of another user");
      socket->abort();
      socket->deleteLater();
      continue;
    }
    pending_.insert(socket, QByteArray());
    connect(socket, &QLocalSocket::readyRead, this, [this, socket]() { onReadyRead(socket); });
    connect(socket, &QLocalSocket::disconnected, this, [this, socket]() {
      pending_.remove(socket);
      socket->deleteLater();
    });
    if (socket->bytesAvailable() > 0) onReadyRead(socket);
  }
}

void SingleInstance::onReadyRead(QLocalSocket* socket) {
  auto it = pending_.find(socket);
  if (it == pending_.end()) return;
  it.value() += socket->readAll();
  QByteArray& buffer = it.value();
  if (buffer.size() < 4) return;
  const quint32 length = qFromBigEndian<quint32>(buffer.constData());
  if (length > kMaxMessageBytes) {
    LOG_ERROR(vlog::kDefaultComponent, "single instance: refused a message announcing %u bytes", length);
    pending_.erase(it);
    socket->abort();
    return;
  }
  if (static_cast<quint32>(buffer.size()) < 4 + length) return;
  const QString message = QString::fromUtf8(buffer.constData() + 4, static_cast<int>(length));
  pending_.erase(it);
  socket->write(QByteArray(1, '\x06'));
  socket->flush();
  socket->disconnectFromServer();
  LOG_INFO(vlog::kDefaultComponent, "single instance: message received [%s]",
           qUtf8Printable(maskedMessage(message)));
  emit messageReceived(message);
}

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool GUIenabled)
    : QtSingleApplication(QString::fromLatin1(kDefaultId), argc, argv, GUIenabled) {}

QtSingleApplication::QtSingleApplication(const QString& appId, int& argc, char** argv, bool GUIenabled)
    : QApplication(argc, argv, GUIenabled), instance_(new SingleInstance(appId, this)) {
  connect(instance_, &SingleInstance::messageReceived, this, &QtSingleApplication::messageReceived);
}

QtSingleApplication::~QtSingleApplication() {
  instance_->release();
}

bool QtSingleApplication::isRunning() {
  return instance_->isRunning();
}

bool QtSingleApplication::sendMessage(const QString& message, int timeout) {
  return instance_->sendMessage(message, timeout);
}
