#pragma once

#include <functional>
#include <unistd.h>

#include "surface/disk_files.h"
#include "surface/failure.h"

namespace orvane::test {

enum class Fault { None, Failure, Kill };

// The machine's files, where a call may fail or end the process; the first one is call 1.
class FaultyFiles : public DiskFiles {
 public:
  std::function<Fault(int)> faultAt = [](int) { return Fault::None; };
  bool knowsLinks = true;
  int calls = 0;

  bool fileExists(const std::string& path) override {
    next();
    return DiskFiles::fileExists(path);
  }
  bool directoryExists(const std::string& path) override {
    next();
    return DiskFiles::directoryExists(path);
  }
  std::unique_ptr<FileParts> open(const std::string& path) override {
    next();
    return DiskFiles::open(path);
  }
  std::vector<FolderEntry> list(const std::string& path) override {
    next();
    return DiskFiles::list(path);
  }
  bool MkDir(const std::string& path) override {
    next();
    return DiskFiles::MkDir(path);
  }
  void write(const std::string& path, std::string_view bytes) override {
    next();
    return DiskFiles::write(path, bytes);
  }
  void takeRights(const std::string& path, const std::string& of) override {
    next();
    return DiskFiles::takeRights(path, of);
  }
  bool keep(const std::string& path, const std::string& under) override {
    next();
    if (knowsLinks || !DiskFiles::fileExists(path)) return DiskFiles::keep(path, under);
    DiskFiles::replace(path, under);
    return true;
  }
  void replace(const std::string& from, const std::string& to) override {
    next();
    return DiskFiles::replace(from, to);
  }
  void Kill(const std::string& path) override {
    next();
    return DiskFiles::Kill(path);
  }
  void sync(const std::string& directory) override {
    next();
    return DiskFiles::sync(directory);
  }
  std::unique_ptr<FolderLock> lock(const std::string& directory, float seconds) override {
    next();
    return DiskFiles::lock(directory, seconds);
  }

 private:
  void next() {
    const Fault fault = faultAt(++calls);
    if (fault == Fault::Kill) ::_exit(1);
    if (fault == Fault::Failure) throw Failure("Panne.");
  }
};

}  // namespace orvane::test
