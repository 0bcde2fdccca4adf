// System calls of the pipe transport on Windows: one non-blocking named-pipe
// instance per server (and one more per client taken off it when the server
// has a backlog), open to Everyone on this machine and closed to remote
// clients, polled with fixed sleeps (100 ms at connect and accept, 10 ms at
// read and write).
//
// The client end is switched to non-blocking mode as well, so that a server
// that stops talking never blocks a read or write past the caller's cancel
// flag, and it lets the server identify it but never act as it
// (SECURITY_IDENTIFICATION): whoever serves the pipe name cannot use the
// agent's rights.

#include <windows.h>
// after windows.h
#include <aclapi.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

#include "ipc/win-ipc-platform.h"

namespace WinIpc {
namespace platform {

namespace {

constexpr DWORD kSidSize = 68;  // SECURITY_MAX_SID_SIZE
constexpr DWORD kConnectSleepMs = 100;
constexpr DWORD kIoSleepMs = 10;

HANDLE to_handle(Native n) {
  return reinterpret_cast<HANDLE>(n);
}
Native to_native(HANDLE h) {
  return reinterpret_cast<Native>(h);
}

}  // namespace

std::string native_name(const std::string& name) {
  return name;
}

Result connect_client(const std::string& name, int, Native& out) {
  Result r;
  close_handle(out);
  const HANDLE h = ::CreateFileA(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                 SECURITY_SQOS_PRESENT | SECURITY_IDENTIFICATION, nullptr);
  if (h != INVALID_HANDLE_VALUE) {
    DWORD mode = PIPE_READMODE_BYTE | PIPE_NOWAIT;
    if (!::SetNamedPipeHandleState(h, &mode, nullptr, nullptr)) {
      r.error = ::GetLastError();
      ::CloseHandle(h);
      return r;
    }
    out = to_native(h);
    r.status = Status::kOk;
    return r;
  }
  const DWORD err = ::GetLastError();
  if (err == ERROR_PIPE_BUSY) {
    ::Sleep(kConnectSleepMs);
    r.status = Status::kBusy;
    r.waited_ms = static_cast<int>(kConnectSleepMs);
    return r;
  }
  r.error = err;
  return r;
}

namespace {

// One instance of the pipe `name`, open to Everyone on this machine; the
// first one also claims the name (FILE_FLAG_FIRST_PIPE_INSTANCE).
CreateResult create_instance(const std::string& name, bool first, int instances, HANDLE& out) {
  CreateResult r;
  out = INVALID_HANDLE_VALUE;
  PSID sid = ::LocalAlloc(LMEM_FIXED, kSidSize);
  if (sid == nullptr) {
    r.step = CreateStep::kAllocSid;
    r.error = ::GetLastError();
    return r;
  }
  DWORD sid_size = kSidSize;
  if (!::CreateWellKnownSid(WinWorldSid, nullptr, sid, &sid_size)) {
    r.step = CreateStep::kEveryoneSid;
    r.error = ::GetLastError();
    ::LocalFree(sid);
    return r;
  }

  EXPLICIT_ACCESSW access;
  std::memset(&access, 0, sizeof access);
  access.grfAccessPermissions = GENERIC_READ | GENERIC_WRITE;
  access.grfAccessMode = SET_ACCESS;
  access.grfInheritance = NO_INHERITANCE;
  access.Trustee.TrusteeForm = TRUSTEE_IS_SID;
  access.Trustee.TrusteeType = TRUSTEE_IS_WELL_KNOWN_GROUP;
  access.Trustee.ptstrName = static_cast<LPWSTR>(sid);

  PACL acl = nullptr;
  const DWORD acl_result = ::SetEntriesInAclW(1, &access, nullptr, &acl);
  if (acl_result != ERROR_SUCCESS) {
    r.step = CreateStep::kAce;
    r.error = acl_result;
    ::LocalFree(sid);
    return r;
  }

  SECURITY_DESCRIPTOR descriptor;
  if (!::InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION)) {
    r.step = CreateStep::kInitDescriptor;
    r.error = ::GetLastError();
    ::LocalFree(sid);
    ::LocalFree(acl);
    return r;
  }
  if (!::SetSecurityDescriptorDacl(&descriptor, TRUE, acl, FALSE)) {
    r.step = CreateStep::kSetDescriptor;
    r.error = ::GetLastError();
    ::LocalFree(sid);
    ::LocalFree(acl);
    return r;
  }

  SECURITY_ATTRIBUTES attributes;
  attributes.nLength = sizeof(SECURITY_ATTRIBUTES);
  attributes.lpSecurityDescriptor = &descriptor;
  attributes.bInheritHandle = FALSE;

  const HANDLE pipe =
      ::CreateNamedPipeA(name.c_str(), PIPE_ACCESS_DUPLEX | (first ? FILE_FLAG_FIRST_PIPE_INSTANCE : 0),
                         PIPE_TYPE_BYTE | PIPE_READMODE_BYTE | PIPE_NOWAIT | PIPE_REJECT_REMOTE_CLIENTS,
                         static_cast<DWORD>(instances), static_cast<DWORD>(kBufferSize),
                         static_cast<DWORD>(kBufferSize), 1000, &attributes);
  const DWORD pipe_error = ::GetLastError();
  ::LocalFree(sid);
  ::LocalFree(acl);
  if (pipe == INVALID_HANDLE_VALUE) {
    r.step = CreateStep::kPipe;
    r.error = pipe_error;
    return r;
  }
  out = pipe;
  r.step = CreateStep::kDone;
  return r;
}

}  // namespace

CreateResult create_server(const std::string& name, ServerEnds& ends, int backlog) {
  close_server(ends);
  // One instance per client: the listening one and `backlog` taken off it.
  const int instances = backlog > 0 ? std::min(backlog + 1, PIPE_UNLIMITED_INSTANCES - 1) : 1;
  HANDLE pipe = INVALID_HANDLE_VALUE;
  const CreateResult r = create_instance(name, true, instances, pipe);
  if (r.step != CreateStep::kDone) return r;
  ends.listener = to_native(pipe);
  ends.client = ends.listener;
  ends.name = name;
  ends.instances = instances;
  return r;
}

Result accept_client(ServerEnds& ends, int) {
  Result r;
  if (::ConnectNamedPipe(to_handle(ends.listener), nullptr)) {
    r.status = Status::kOk;
    return r;
  }
  const DWORD err = ::GetLastError();
  switch (err) {
    case ERROR_PIPE_CONNECTED:
      r.status = Status::kOk;
      return r;
    case ERROR_IO_PENDING:
    case ERROR_PIPE_LISTENING:
      r.status = Status::kRetry;
      break;
    case ERROR_NO_DATA:
      r.status = Status::kGone;
      break;
    default:
      r.error = err;
      return r;
  }
  ::Sleep(kConnectSleepMs);
  r.waited_ms = static_cast<int>(kConnectSleepMs);
  return r;
}

bool detach_client(ServerEnds& ends, Native& out) {
  if (ends.instances < 2 || ends.listener == kInvalid) return false;
  // A new instance listens first, so that the name never goes away.
  HANDLE next = INVALID_HANDLE_VALUE;
  if (create_instance(ends.name, false, ends.instances, next).step != CreateStep::kDone) return false;
  out = ends.listener;
  ends.listener = to_native(next);
  ends.client = ends.listener;
  return true;
}

Result disconnect_client(ServerEnds& ends) {
  Result r;
  if (!::DisconnectNamedPipe(to_handle(ends.listener))) {
    r.error = ::GetLastError();
    return r;
  }
  r.status = Status::kOk;
  return r;
}

void close_server(ServerEnds& ends) {
  // One handle serves both ends.
  ends.client = kInvalid;
  close_handle(ends.listener);
}

void close_handle(Native& handle) {
  if (handle != kInvalid) {
    ::CloseHandle(to_handle(handle));
    handle = kInvalid;
  }
}

Result read_some(Native handle, char* buffer, std::size_t size) {
  Result r;
  DWORD count = 0;
  if (::ReadFile(to_handle(handle), buffer, static_cast<DWORD>(size), &count, nullptr)) {
    r.status = Status::kOk;
    r.count = count;
    return r;
  }
  const DWORD err = ::GetLastError();
  if (err == ERROR_IO_PENDING || err == ERROR_NO_DATA) {
    r.status = Status::kRetry;
  } else {
    r.error = err;
  }
  return r;
}

Result write_some(Native handle, const char* data, std::size_t size) {
  Result r;
  DWORD written = 0;
  if (::WriteFile(to_handle(handle), data, static_cast<DWORD>(size), &written, nullptr)) {
    r.status = Status::kOk;
    r.count = written;
    return r;
  }
  const DWORD err = ::GetLastError();
  // ERROR_PIPE_NOT_CONNECTED means the peer is gone: waiting cannot help.
  if (err == ERROR_IO_PENDING) {
    r.status = Status::kRetry;
  } else {
    r.error = err;
  }
  return r;
}

void wait_readable(Native) {
  ::Sleep(kIoSleepMs);
}

void wait_writable(Native) {
  ::Sleep(kIoSleepMs);
}

// A non-blocking write larger than the free buffer writes nothing at all, so
// a message goes in pieces no larger than the buffer.
std::size_t write_piece_limit() {
  return kBufferSize;
}

void flush(Native handle) {
  ::FlushFileBuffers(to_handle(handle));
}

Peer peer_of(Native) {
  // The pipe's access list decides who may connect.
  return Peer();
}

namespace {

// What Peer::uid holds on Windows: 0 is LocalSystem (the service), these two
// this process's user and anyone else.
constexpr unsigned long kThisUser = 1;
constexpr unsigned long kOtherUser = 2;

// The user SID of `process`'s token, in `buffer`; nullptr when it cannot be read.
PSID token_user(HANDLE process, std::vector<BYTE>& buffer) {
  HANDLE token = nullptr;
  if (!::OpenProcessToken(process, TOKEN_QUERY, &token)) return nullptr;
  DWORD size = 0;
  ::GetTokenInformation(token, TokenUser, nullptr, 0, &size);
  buffer.resize(size);
  const bool ok = size > 0 && ::GetTokenInformation(token, TokenUser, buffer.data(), size, &size);
  ::CloseHandle(token);
  return ok ? reinterpret_cast<TOKEN_USER*>(buffer.data())->User.Sid : nullptr;
}

}  // namespace

Peer server_of(Native client) {
  // Whoever serves the name first gets the connection: before a request (and
  // a token) is written, its process's user must be LocalSystem or this one.
  Peer peer;
  peer.known = true;
  peer.uid = kOtherUser;
  ULONG pid = 0;
  if (!::GetNamedPipeServerProcessId(to_handle(client), &pid)) return peer;
  peer.pid = static_cast<long>(pid);
  const HANDLE process = ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, pid);
  if (process == nullptr) return peer;
  std::vector<BYTE> theirs, mine;
  const PSID server = token_user(process, theirs);
  ::CloseHandle(process);
  const PSID self = token_user(::GetCurrentProcess(), mine);
  if (server == nullptr || self == nullptr) return peer;
  if (::IsWellKnownSid(server, WinLocalSystemSid))
    peer.uid = 0;
  else if (::EqualSid(server, self))
    peer.uid = kThisUser;
  return peer;
}

unsigned long current_user() {
  return kThisUser;
}

bool unknown_peer_trusted() {
  // Only a server end's client is unknown: the pipe's access list decides
  // who may connect.
  return true;
}

}  // namespace platform
}  // namespace WinIpc
