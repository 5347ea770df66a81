#pragma once

#include <array>
#include <optional>
#include <string>

#include "surface/world.h"

namespace orvane {

// Why a character's name cannot name its files, a French clause without a full stop; none when it can.
std::optional<std::string> faultOfFileName(const std::string& name);

// The two bitmap files of one character in ./Perso.
class SheetFiles {
 public:
  SheetFiles(Files& files, const std::string& name);

  bool frontExists() const { return files_.fileExists(sides_[0].goal); }
  void makeFolder();
  // Both or none: a pair of before is replaced as a whole or stays as it was. Fails with the reason.
  void save(const std::string& front, const std::string& back);

 private:
  struct Side {
    std::string goal;
    std::string fresh;   // written beside the goal
    std::string former;  // a copy of what the goal held, once it is being made
    bool hadFormer = false;
    bool attempted = false;  // its replacement, whether it succeeded or not
  };

  void writeBeside(const Side& side, const std::string& bytes);
  std::string freeNameBeside(const std::string& goal) const;
  void keepFormer(Side& side);
  void putInPlace(Side& side);
  // Gives a sentence for each side that could not be put back as it was: what stays, and where.
  std::string undo();
  std::string putBack(Side& side);
  void removeTraces();

  Files& files_;
  std::array<Side, 2> sides_;
};

}  // namespace orvane
