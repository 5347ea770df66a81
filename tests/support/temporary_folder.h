#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace orvane::test {

// An empty folder, in memory where the machine has room for files there; it ends with this object.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    const std::filesystem::path memory = "/dev/shm";
    path_ = (std::filesystem::exists(memory) ? memory : std::filesystem::temp_directory_path()) / "orvaneXXXXXX";
    if (::mkdtemp(path_.data()) == nullptr) std::abort();
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace orvane::test
