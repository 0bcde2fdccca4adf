#pragma once
// The machine-wide lock that lets one user at a time run the agent.
//
// Windows: the named mutex "Global\corvana-vantor-backup-agent", created
// already owned; access denied (or no handle) means another user's session
// holds it. Linux: an abstract Unix stream socket of the same name (with
// $NIMBRA_PIPE_NAMESPACE put before it) that the holder binds and listens on;
// it vanishes with the holding process. A process that finds the name taken
// connects and reads the holder's uid with SO_PEERCRED: the same uid is
// "held by me", another uid is "another user". The connect never blocks; a
// holder that cannot be asked (bound without listening, backlog full) is
// tried kAttempts times, kRetryPauseMs apart, and then counts as another
// user's.

#include <functional>
#include <memory>
#include <string>

class MachineLock {
 public:
  enum Result {
    Acquired,         // this process holds the lock now
    HeldBySameUser,   // another process of this user holds it (not an error)
    HeldByOtherUser,  // another user's process holds it: refuse to start
    Failed,           // the lock could not be set up: treat as another user
  };

  static constexpr const char* kName = "corvana-vantor-backup-agent";
  static constexpr int kAttempts = 5;
  static constexpr int kRetryPauseMs = 100;

  // `name` defaults to kName. `ownUser` returns the identity compared with
  // the holder's (the uid on Linux); tests inject it to simulate another user.
  explicit MachineLock(std::string name = kName, std::function<unsigned long()> ownUser = nullptr);
  ~MachineLock();
  MachineLock(const MachineLock&) = delete;
  MachineLock& operator=(const MachineLock&) = delete;

  Result acquire();
  // For the primary agent, which must hold the lock for its whole life even
  // when it was held by this user at first (an agent that was exiting):
  // Linux asks again until the holder let go (for up to `wait_ms`), Windows
  // keeps a handle to this user's mutex so that it stays while this process
  // runs. Acquired, or why not.
  Result acquireForLife(int wait_ms);
  // Gives the lock up (also done by the destructor). Harmless when not held.
  void release();
  bool held() const;

  // The name as the system sees it (namespace applied on Linux).
  std::string systemName() const;
  // The calling process's user identity (uid on Linux, 0 on Windows where the
  // mutex's access check does the work).
  static unsigned long currentUser();

  static const char* resultName(Result r);

 private:
  struct Impl;
  void hold(int fd);
  std::string name_;
  std::function<unsigned long()> own_;
  std::unique_ptr<Impl> impl_;
};
