#pragma once

#include "surface/world.h"

namespace orvane {

// The files of the machine. From the first one made on, a limit on the size of files no longer ends the program: it is
// a failure like any other.
class DiskFiles : public Files {
 public:
  DiskFiles();

  bool fileExists(const std::string& path) override;
  bool directoryExists(const std::string& path) override;
  std::unique_ptr<FileParts> open(const std::string& path) override;
  std::vector<FolderEntry> list(const std::string& path) override;
  bool MkDir(const std::string& path) override;
  // What could not be written whole is removed again.
  void write(const std::string& path, std::string_view bytes) override;
  void takeRights(const std::string& path, const std::string& of) override;
  bool keep(const std::string& path, const std::string& under) override;
  void replace(const std::string& from, const std::string& to) override;
  void Kill(const std::string& path) override;
  void sync(const std::string& directory) override;
  // Of the directory itself, so that no file is needed; among the programs of one machine.
  std::unique_ptr<FolderLock> lock(const std::string& directory, float seconds) override;
};

}  // namespace orvane
