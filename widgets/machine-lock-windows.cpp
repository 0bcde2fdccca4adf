// Windows: the global named mutex, created already owned.
#include <windows.h>

#include <string>

#include "logging/logger.h"
#include "widgets/machine-lock.h"

struct MachineLock::Impl {
  HANDLE mutex = nullptr;
};

MachineLock::MachineLock(std::string name, std::function<unsigned long()> ownUser)
    : name_(std::move(name)), own_(std::move(ownUser)), impl_(new Impl) {
  if (!own_) own_ = &MachineLock::currentUser;
}

MachineLock::~MachineLock() {
  release();
}

unsigned long MachineLock::currentUser() {
  return 0;
}

std::string MachineLock::systemName() const {
  return "Global\\" + name_;
}

bool MachineLock::held() const {
  return impl_->mutex != nullptr;
}

MachineLock::Result MachineLock::acquire() {
  if (held()) return Acquired;
  const std::string narrow = systemName();
  const std::wstring wide(narrow.begin(), narrow.end());
  HANDLE h = ::CreateMutexW(nullptr, TRUE, wide.c_str());
  const DWORD err = ::GetLastError();
  if (!h || err == ERROR_ACCESS_DENIED) {
    if (h) ::CloseHandle(h);
    LOG_WARN(vlog::kDefaultComponent, "machine lock [%s] held by another user (error %lu)", narrow.c_str(),
             static_cast<unsigned long>(err));
    return HeldByOtherUser;
  }
  if (err == ERROR_ALREADY_EXISTS) {
    // Our own session's mutex: CreateMutexW opened it without ownership.
    ::CloseHandle(h);
    LOG_INFO(vlog::kDefaultComponent, "machine lock [%s] held by this user", narrow.c_str());
    return HeldBySameUser;
  }
  impl_->mutex = h;
  LOG_INFO(vlog::kDefaultComponent, "machine lock [%s] acquired", narrow.c_str());
  return Acquired;
}

MachineLock::Result MachineLock::acquireForLife(int) {
  const Result r = acquire();
  if (r != HeldBySameUser) return r;
  // This user's mutex: a handle kept open keeps it (and its access list)
  // alive while this process runs, whoever created it.
  const std::string narrow = systemName();
  const std::wstring wide(narrow.begin(), narrow.end());
  HANDLE h = ::CreateMutexW(nullptr, FALSE, wide.c_str());
  if (!h) return Failed;
  impl_->mutex = h;
  LOG_INFO(vlog::kDefaultComponent, "machine lock [%s] kept for the life of this agent", narrow.c_str());
  return Acquired;
}

void MachineLock::release() {
  if (!impl_->mutex) return;
  ::ReleaseMutex(impl_->mutex);
  ::CloseHandle(impl_->mutex);
  impl_->mutex = nullptr;
}

const char* MachineLock::resultName(Result r) {
  switch (r) {
    case Acquired:
      return "acquired";
    case HeldBySameUser:
      return "held by same user";
    case HeldByOtherUser:
      return "held by another user";
    default:
      return "failed";
  }
}
