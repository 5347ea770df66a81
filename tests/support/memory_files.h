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
  // One access fails, before or after it did its work; or it and the next one; or it and all behind it.
  enum class Fault { Before, After, Twice, FromThenOn };

  std::map<std::string, std::string> contents;
  std::set<std::string> directories;
  // Paths whose every access fails, the questions apart.
  std::set<std::string> broken;
  // Writes half of what it is given, and says nothing.
  bool lying = false;

  // Counts the accesses that change or read a file; 1 is the next one.
  void failAt(int access, Fault fault) {
    first_ = access_ + access;
    fault_ = fault;
  }

  bool fileExists(const std::string& path) override { return contents.count(path) > 0; }
  bool directoryExists(const std::string& path) override { return directories.count(path) > 0; }
  std::string read(const std::string& path) override {
    std::string bytes;
    run(path, [&] { bytes = existing(path); });
    return bytes;
  }
  void MkDir(const std::string& path) override {
    run(path, [&] { directories.insert(path); });
  }
  void write(const std::string& path, std::string_view bytes) override {
    run(path, [&] { contents[path] = bytes.substr(0, lying ? bytes.size() / 2 : bytes.size()); });
  }
  void replace(const std::string& from, const std::string& to) override {
    run(to, [&] {
      contents[to] = existing(from);
      contents.erase(from);
    });
  }
  void Kill(const std::string& path) override {
    run(path, [&] {
      existing(path);
      contents.erase(path);
    });
  }

 private:
  template <class Act>
  void run(const std::string& path, Act act) {
    if (broken.count(path) > 0) throw Failure("Accès refusé : " + path + ".");
    const bool fails = isFaulty(++access_);
    if (!fails || fault_ == Fault::After) act();
    if (fails) throw Failure("Panne : " + path + ".");
  }
  bool isFaulty(int access) const {
    const int last = first_ + (fault_ == Fault::Twice ? 1 : 0);
    return first_ > 0 && access >= first_ && (fault_ == Fault::FromThenOn || access <= last);
  }
  const std::string& existing(const std::string& path) const {
    const auto found = contents.find(path);
    if (found == contents.end()) throw Failure("Fichier introuvable : " + path + ".");
    return found->second;
  }

  int access_ = 0;
  int first_ = 0;
  Fault fault_ = Fault::Before;
};

}  // namespace orvane::test
