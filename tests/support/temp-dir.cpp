#include "tests/support/temp-dir.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

namespace fs = std::filesystem;

namespace nimbra_test {

TempDir::TempDir() {
  std::random_device rd;
  std::mt19937_64 gen(rd());
  for (int attempt = 0; attempt < 100; ++attempt) {
    fs::path p = fs::temp_directory_path() / ("nimbra-test-" + std::to_string(gen()));
    std::error_code ec;
    if (fs::create_directory(p, ec)) {
      path_ = p.generic_string();
      return;
    }
  }
  throw std::runtime_error("cannot create a temporary folder");
}

TempDir::~TempDir() {
  std::error_code ec;
  fs::remove_all(path_, ec);
}

std::string TempDir::file(const std::string& name) const {
  return path_ + "/" + name;
}

std::string read_file(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

void write_file(const std::string& path, const std::string& content) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << content;
}

bool file_exists(const std::string& path) {
  std::error_code ec;
  return fs::exists(path, ec);
}

ScopedEnv::ScopedEnv(const char* name, const char* value) : name_(name) {
  const char* old = std::getenv(name);
  had_old_ = old != nullptr;
  if (had_old_) old_ = old;
#ifdef _WIN32
  _putenv_s(name, value ? value : "");
#else
  if (value)
    setenv(name, value, 1);
  else
    unsetenv(name);
#endif
}

ScopedEnv::~ScopedEnv() {
#ifdef _WIN32
  _putenv_s(name_.c_str(), had_old_ ? old_.c_str() : "");
#else
  if (had_old_)
    setenv(name_.c_str(), old_.c_str(), 1);
  else
    unsetenv(name_.c_str());
#endif
}

}  // namespace nimbra_test
