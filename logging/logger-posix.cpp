#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <string>

#include "logging/logger-platform.h"

namespace vlog::platform {

std::string narrow(const std::wstring& w) {
  // wchar_t holds UTF-32 here.
  std::string out;
  out.reserve(w.size());
  for (wchar_t wc : w) {
    auto c = static_cast<std::uint32_t>(wc);
    if (c < 0x80) {
      out.push_back(static_cast<char>(c));
    } else if (c < 0x800) {
      out.push_back(static_cast<char>(0xC0 | (c >> 6)));
      out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else if (c < 0x10000) {
      out.push_back(static_cast<char>(0xE0 | (c >> 12)));
      out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
      out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else {
      out.push_back(static_cast<char>(0xF0 | (c >> 18)));
      out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
      out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
      out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    }
  }
  return out;
}

namespace {

// Says once per process, on standard error, why the log is not written.
void refuse_once(const std::string& what, const std::string& path, unsigned long uid) {
  static std::atomic<bool> said{false};
  if (said.exchange(true)) return;
  std::fprintf(stderr, "log %s %s belongs to uid %lu, not to this user (uid %lu): the log is not written\n",
               what.c_str(), path.c_str(), uid, static_cast<unsigned long>(::geteuid()));
}

}  // namespace

FILE* open_append(const std::wstring& path) {
  const std::string name = narrow(path);
  // The folder must be this user's (a real folder, not a link): another user
  // who made it first could read or replace what is written there.
  const std::size_t slash = name.find_last_of('/');
  const std::string folder =
      slash == std::string::npos ? std::string(".") : name.substr(0, slash ? slash : 1);
  struct stat dir {};
  if (::lstat(folder.c_str(), &dir) != 0 || !S_ISDIR(dir.st_mode)) return nullptr;
  if (dir.st_uid != ::geteuid()) {
    refuse_once("folder", folder, static_cast<unsigned long>(dir.st_uid));
    return nullptr;
  }
  // Readable by the user only, never through a symbolic link, and never a
  // FIFO or device someone put in its place (O_NONBLOCK keeps a FIFO from
  // blocking the open). O_CLOEXEC: the POSIX form of a non-inheritable handle.
  const int fd = ::open(name.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK,
                        S_IRUSR | S_IWUSR);
  if (fd < 0) return nullptr;
  struct stat st {};
  if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
    ::close(fd);
    return nullptr;
  }
  // A file another user made first (perhaps readable by everyone) is not ours.
  if (st.st_uid != ::geteuid()) {
    refuse_once("file", name, static_cast<unsigned long>(st.st_uid));
    ::close(fd);
    return nullptr;
  }
  // A file left by an older version may be readable by others: tighten it.
  if ((st.st_mode & (S_IRWXG | S_IRWXO)) != 0 && st.st_uid == ::geteuid())
    (void)::fchmod(fd, S_IRUSR | S_IWUSR);
  const int flags = ::fcntl(fd, F_GETFL);
  if (flags >= 0) (void)::fcntl(fd, F_SETFL, flags & ~O_NONBLOCK);
  FILE* f = ::fdopen(fd, "a");
  if (!f) ::close(fd);
  return f;
}

std::uint64_t file_size(const std::wstring& path, FILE* stream) {
  struct stat st {};
  if (::fstat(::fileno(stream), &st) != 0) {
    std::fprintf(stream, "fstat(%s): error code %ld\n", narrow(path).c_str(), static_cast<long>(errno));
    return 0;
  }
  return static_cast<std::uint64_t>(st.st_size);
}

bool rename_no_replace(const std::wstring& from, const std::wstring& to) {
  const std::string a = narrow(from), b = narrow(to);
  if (::renameat2(AT_FDCWD, a.c_str(), AT_FDCWD, b.c_str(), RENAME_NOREPLACE) == 0) return true;
  if (errno != EINVAL && errno != ENOSYS) return false;
  // File systems without RENAME_NOREPLACE: link() refuses an existing target too.
  if (::link(a.c_str(), b.c_str()) != 0) return false;
  ::unlink(a.c_str());
  return true;
}

bool remove_file(const std::wstring& path) {
  return ::unlink(narrow(path).c_str()) == 0;
}

void write_text(FILE* stream, const std::string& utf8, bool /*is_file*/) {
  std::fwrite(utf8.data(), 1, utf8.size(), stream);
}

unsigned pid() {
  return static_cast<unsigned>(::getpid());
}

unsigned long tid() {
  return static_cast<unsigned long>(::syscall(SYS_gettid));
}

void local_now(std::tm& out, int& millis, int& utc_offset_minutes) {
  struct timeval tv {};
  ::gettimeofday(&tv, nullptr);
  const time_t t = tv.tv_sec;
  ::localtime_r(&t, &out);
  millis = static_cast<int>(tv.tv_usec / 1000);
  utc_offset_minutes = static_cast<int>(out.tm_gmtoff / 60);
}

bool get_env(const char* name, std::string& value) {
  const char* v = std::getenv(name);
  if (!v) return false;
  value = v;
  return true;
}

}  // namespace vlog::platform
