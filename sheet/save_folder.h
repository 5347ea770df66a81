#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "surface/world.h"

namespace orvane {

// The paths of one side of the sheet in a save.
struct SavedSide {
  std::string goal;
  std::string fresh;    // the new file, until it is put in place
  std::string former;   // what was in its place, or
  std::string nothing;  // an empty file, where nothing was
};

// The paths of the PDF beside both sides.
struct SavedPaper {
  std::string goal;
  std::string fresh;
  std::string former;
};

// The folder of its own that a save works in: ./Perso/.sauvegarde-N, N from 1, with NAME_1.bmp (the new file),
// NAME_1.old (the former one) or NAME_1.nil (none), and the same for the other side. NAME.was is a former PDF that is
// out of the way meanwhile; NAME.pdf is a new one, which comes only once the pair is in place for good. Whoever finds
// one that no living program works in takes back what was begun; it is only to be removed when it is over and called
// ./Perso/.sauvegarde-N-finie. Nothing else in ./Perso is ever taken for one.
class SaveFolder {
 public:
  // Makes a new one. Fails with the reason, as all that follows.
  static SaveFolder make(Files& files, const std::string& name);
  static std::vector<SaveFolder> findAll(Files& files);

  const std::string& path() const { return path_; }
  // The character; none in a folder that is empty.
  const std::optional<std::string>& name() const { return name_; }
  bool isOver() const;

  // The character is known.
  std::array<SavedSide, 2> sides() const;
  SavedPaper paper() const;
  // The names of the files that are in it now.
  std::vector<std::string> contents() const;

  // What was done in ./Perso lasts, and from here on also that it is done.
  void end();
  // What was done can be taken back again.
  void reopen();
  void remove();

 private:
  SaveFolder(Files& files, std::string path, std::optional<std::string> name);

  Files* files_;
  std::string path_;
  std::optional<std::string> name_;
};

}  // namespace orvane
