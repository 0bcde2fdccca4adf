#pragma once
// A scratch folder per test, removed with everything in it when the test ends.

#include <string>

namespace nimbra_test {

class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  const std::string& path() const { return path_; }
  // path() + "/" + name
  std::string file(const std::string& name) const;

 private:
  std::string path_;
};

// Reads a whole file; empty when it does not exist.
std::string read_file(const std::string& path);
void write_file(const std::string& path, const std::string& content);
bool file_exists(const std::string& path);

// Sets (or, with nullptr, unsets) an environment variable for the lifetime of
// the object and puts the old value back afterwards.
class ScopedEnv {
 public:
  ScopedEnv(const char* name, const char* value);
  ~ScopedEnv();
  ScopedEnv(const ScopedEnv&) = delete;
  ScopedEnv& operator=(const ScopedEnv&) = delete;

 private:
  std::string name_;
  std::string old_;
  bool had_old_;
};

}  // namespace nimbra_test
