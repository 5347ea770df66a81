#pragma once

#include <functional>
#include <map>
#include <string>

#include "surface/world.h"

namespace orvane {

// The files of a run that plays its past once more: what it wrote then is not written again. A save finds the pair of
// before, whether it is there or not: where nothing was asked then, the answer is to replace it.
class PastFiles final : public Files {
 public:
  // In the present all is as with the real files.
  PastFiles(Files& files, const bool& isPast) : files_(files), isPast_(isPast) {}

  // What was written in the past.
  std::function<void(const std::string& path, const std::string& bytes)> saved = [](const auto&, const auto&) {};

  bool fileExists(const std::string& path) override { return isPast_ || files_.fileExists(path); }
  bool directoryExists(const std::string& path) override { return isPast_ || files_.directoryExists(path); }
  std::unique_ptr<FileParts> open(const std::string& path) override {
    const auto written = written_.find(path);
    return written == written_.end() ? files_.open(path) : std::make_unique<WholeFile>(written->second);
  }
  std::vector<FolderEntry> list(const std::string& path) override {
    return isPast_ ? std::vector<FolderEntry>() : files_.list(path);
  }
  bool MkDir(const std::string& path) override { return isPast_ || files_.MkDir(path); }
  void write(const std::string& path, std::string_view bytes) override {
    isPast_ ? void(written_[path] = bytes) : files_.write(path, bytes);
  }
  void takeRights(const std::string& path, const std::string& of) override {
    if (!isPast_) files_.takeRights(path, of);
  }
  bool keep(const std::string& path, const std::string& under) override { return isPast_ || files_.keep(path, under); }
  void replace(const std::string& from, const std::string& to) override {
    if (!isPast_) return files_.replace(from, to);
    if (const auto written = written_.extract(from)) saved(to, written.mapped());
  }
  void Kill(const std::string& path) override { isPast_ ? void(written_.erase(path)) : files_.Kill(path); }
  void sync(const std::string& directory) override {
    if (!isPast_) files_.sync(directory);
  }
  std::unique_ptr<FolderLock> lock(const std::string& directory, float seconds) override {
    return isPast_ ? std::make_unique<FolderLock>() : files_.lock(directory, seconds);
  }

 private:
  Files& files_;
  const bool& isPast_;
  // What a save of the past reads back, until it is in its place.
  std::map<std::string, std::string> written_;
};

}  // namespace orvane
