#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "surface/failure.h"
#include "surface/world.h"

namespace orvane::test {

// Files that are kept in memory, by the very paths they are asked for. As a disk that knows no second paths.
class MemoryFiles : public Files {
 public:
  std::map<std::string, std::string> contents;
  std::set<std::string> directories;
  // Paths whose every access fails, the questions apart.
  std::set<std::string> broken;
  // How many bytes of a file can be read; the next ones fail.
  std::map<std::string, std::size_t> readable;
  // Bytes that a file gives at once, at most.
  std::size_t part = std::string::npos;
  // Writes half of what it is given, and says nothing.
  bool lying = false;
  // Another program saves.
  bool locked = false;

  bool fileExists(const std::string& path) override { return contents.count(path) > 0; }
  bool directoryExists(const std::string& path) override { return directories.count(path) > 0; }
  std::unique_ptr<FileParts> open(const std::string& path) override {
    require(path);
    const auto limit = readable.find(path);
    return std::make_unique<SlicedFile>(existing(path), part,
                                        limit == readable.end() ? std::string::npos : limit->second);
  }
  std::vector<FolderEntry> list(const std::string& path) override {
    require(path);
    std::vector<FolderEntry> entries;
    const auto add = [&](const std::string& other, bool isFolder) {
      if (other.starts_with(path + "/") && other.find('/', path.size() + 1) == std::string::npos)
        entries.push_back({other.substr(path.size() + 1), isFolder});
    };
    for (const auto& [file, bytes] : contents) add(file, false);
    for (const auto& directory : directories) add(directory, true);
    return entries;
  }
  bool MkDir(const std::string& path) override {
    require(path);
    return directories.insert(path).second;
  }
  void write(const std::string& path, std::string_view bytes) override {
    require(path);
    contents[path] = bytes.substr(0, lying ? bytes.size() / 2 : bytes.size());
  }
  void takeRights(const std::string&, const std::string&) override {}
  bool keep(const std::string& path, const std::string& under) override {
    require(path);
    if (!fileExists(path)) return false;
    replace(path, under);
    return true;
  }
  void replace(const std::string& from, const std::string& to) override {
    require(to);
    move(from, to);
  }
  void Kill(const std::string& path) override {
    require(path);
    contents.erase(path);
    directories.erase(path);
  }
  void sync(const std::string& directory) override { require(directory); }
  std::unique_ptr<FolderLock> lock(const std::string&, float) override {
    return locked ? nullptr : std::make_unique<FolderLock>();
  }

 private:
  class SlicedFile : public FileParts {
   public:
    SlicedFile(std::string bytes, std::size_t part, std::size_t readable)
        : bytes_(std::move(bytes)), part_(part), readable_(readable) {}
    std::size_t size() const override { return bytes_.size(); }
    std::string_view next() override {
      if (at_ >= readable_) throw Failure("Erreur d'entrée/sortie.");
      const auto slice = std::string_view(bytes_).substr(at_, std::min(part_, readable_ - at_));
      at_ += slice.size();
      return slice;
    }

   private:
    std::string bytes_;
    std::size_t part_;
    std::size_t readable_;
    std::size_t at_ = 0;
  };

  void require(const std::string& path) const {
    if (broken.count(path) > 0) throw Failure("Accès refusé : " + path + ".");
  }
  const std::string& existing(const std::string& path) const {
    const auto found = contents.find(path);
    if (found == contents.end()) throw Failure("Fichier introuvable : " + path + ".");
    return found->second;
  }
  void move(const std::string& from, const std::string& to) {
    if (directories.count(from) > 0) {
      for (const auto& entry : list(from)) move(from + "/" + entry.name, to + "/" + entry.name);
      directories.erase(from);
      directories.insert(to);
    } else {
      contents[to] = existing(from);
      contents.erase(from);
    }
  }
};

}  // namespace orvane::test
