#pragma once

#include <map>
#include <set>
#include <string>

#include "surface/failure.h"
#include "surface/world.h"

namespace orvane::test {

// Files that are kept in memory, by the very paths they are asked for.
class MemoryFiles : public Files {
 public:
  std::map<std::string, std::string> contents;
  std::set<std::string> directories;
  // Paths whose every access fails, the questions apart.
  std::set<std::string> broken;

  bool fileExists(const std::string& path) override { return contents.count(path) > 0; }
  bool directoryExists(const std::string& path) override { return directories.count(path) > 0; }
  std::string read(const std::string& path) override { return existing(path); }
  void MkDir(const std::string& path) override {
    check(path);
    directories.insert(path);
  }
  void write(const std::string& path, std::string_view bytes) override {
    check(path);
    contents[path] = bytes;
  }
  void replace(const std::string& from, const std::string& to) override {
    check(to);
    contents[to] = existing(from);
    contents.erase(from);
  }
  void Kill(const std::string& path) override {
    existing(path);
    contents.erase(path);
  }

 private:
  void check(const std::string& path) const {
    if (broken.count(path) > 0) throw Failure("Accès refusé : " + path + ".");
  }
  const std::string& existing(const std::string& path) const {
    check(path);
    const auto found = contents.find(path);
    if (found == contents.end()) throw Failure("Fichier introuvable : " + path + ".");
    return found->second;
  }
};

}  // namespace orvane::test
