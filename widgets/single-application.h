#pragma once
// One running agent per user.
//
// How instances find each other: the primary instance holds a lock file
// (QLockFile, so a crashed holder is detected by its dead pid) and listens on
// a local server; both are named per user (uid on Linux, session and SID on
// Windows) with $NIMBRA_PIPE_NAMESPACE before the name, so that tests never
// meet the user's own agent. On Linux both live in a folder private to the
// user (user_identity::runtime_folder(): mode 0700, checked with lstat), never
// loose in /tmp, so no other user can plant a lock or take the socket's name;
// on Windows the pipe admits only the user. A message goes only to a primary
// of the same user, and only such a process is heard. A process that holds
// the lock but cannot listen gives the lock back and is not the primary. isRunning() is cheap and may be
// asked again and again: it answers false as soon as no other live process holds the lock, and this process
// then becomes the primary instance. This is why Debian's libsingleapplication is not used: it settles
// primary or secondary once, in its constructor, and cannot let a newcomer wait for a first instance that is
// just exiting.
//
// Messages: sendMessage() connects, writes the UTF-8 text with a 4-byte
// length before it and waits for a one-byte acknowledgement; the primary
// emits messageReceived(text) for each message, in arrival order.

#include <QApplication>
#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QString>

#include <memory>

class QLocalServer;
class QLocalSocket;
class QLockFile;

class SingleInstance : public QObject {
  Q_OBJECT
 public:
  // `appId` names the application; the user and the namespace are added.
  explicit SingleInstance(const QString& appId, QObject* parent = nullptr);
  ~SingleInstance() override;

  // True while another live process of this user is the primary instance.
  // False means this process is (now) the primary instance and listens.
  bool isRunning();
  bool isPrimary() const { return server_ != nullptr; }
  // Delivers `message` to the primary instance. Returns true when it
  // acknowledged receipt within `timeoutMs` milliseconds.
  bool sendMessage(const QString& message, int timeoutMs = 5000);
  // Stops being the primary instance (frees the name for a newcomer).
  void release();

  QString serverName() const { return serverName_; }
  QString lockFilePath() const { return lockPath_; }

  // The message as a log line shows it: secret query values ("token=",
  // "access_token=", names with password, otp or secret) as "***".
  static QString maskedForLog(const QString& message);

  // The largest message accepted (longer ones are refused and logged).
  static constexpr quint32 kMaxMessageBytes = 64 * 1024;

 signals:
  void messageReceived(const QString& message);

 private:
  void onNewConnection();
  void onReadyRead(QLocalSocket* socket);

  QString serverName_;
  QString lockPath_;
  std::unique_ptr<QLockFile> lock_;
  QLocalServer* server_ = nullptr;
  QHash<QLocalSocket*, QByteArray> pending_;
};

// The application object of the agent: a QApplication that is also the
// per-user single instance.
class QtSingleApplication : public QApplication {
  Q_OBJECT
 public:
  QtSingleApplication(int& argc, char** argv, bool GUIenabled = true);
  // `appId` replaces the default id (tests, tools).
  QtSingleApplication(const QString& appId, int& argc, char** argv, bool GUIenabled = true);
  ~QtSingleApplication() override;

  bool isRunning();
  bool sendMessage(const QString& message, int timeout = 5000);
  SingleInstance* instance() const { return instance_; }

  static constexpr const char* kDefaultId = "nimbra-backup-agent";

 signals:
  void messageReceived(const QString& message);

 private:
  SingleInstance* instance_;
};
