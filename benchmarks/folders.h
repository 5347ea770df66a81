#pragma once

#include <filesystem>
#include <string>

namespace orvane::bench {

using Path = std::filesystem::path;

std::string contentsOf(const Path& file);
void write(const Path& file, const std::string& bytes);

// The folders that programs are started in, of which each holds the eight data files.
class Folders {
 public:
  // They go into a folder of their own in memory, where a sync costs nothing, and go with this object.
  explicit Folders(Path sources);
  ~Folders();
  Folders(const Folders&) = delete;
  Folders& operator=(const Folders&) = delete;

  const Path& sources() const { return sources_; }
  // Of a user without anything of their own.
  Path home() const;
  // The game.
  Path game() const;
  // The same on the disk of the sources.
  Path gameOnDisk() const;
  // As many records in each file: those of the game, over and over.
  Path records(int count) const;
  Path emptyScript() const;
  // The game, with as many skills, and one profile that lists them all.
  Path skills(int count) const;

 private:
  void copyGame(const Path& to) const;

  Path sources_;
  Path memory_;
  Path disk_;
};

// While it lives, its folder is the current directory.
class Inside {
 public:
  explicit Inside(const Path& folder) : former_(std::filesystem::current_path()) {
    std::filesystem::current_path(folder);
  }
  ~Inside() { std::filesystem::current_path(former_); }
  Inside(const Inside&) = delete;
  Inside& operator=(const Inside&) = delete;

 private:
  Path former_;
};

}  // namespace orvane::bench
