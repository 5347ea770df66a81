#pragma once

#include "surface/world.h"

namespace orvane {

// The files of the machine.
class DiskFiles : public Files {
 public:
  // True for anything of that name that is no directory.
  bool fileExists(const std::string& path) override;
  bool directoryExists(const std::string& path) override;
  std::string read(const std::string& path) override;
  void MkDir(const std::string& path) override;
  // What could not be written whole is removed again.
  void write(const std::string& path, std::string_view bytes) override;
  void replace(const std::string& from, const std::string& to) override;
  void Kill(const std::string& path) override;
};

}  // namespace orvane
