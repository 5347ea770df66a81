#pragma once

#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "sheet/pair_save.h"
#include "surface/world.h"

namespace orvane {

// The two bitmap files of one character.
class SheetFiles {
 public:
  SheetFiles(Files& files, std::string name) : files_(files), name_(std::move(name)) {}

  bool frontExists() const;
  // What follows fails with the reason.
  void makeFolder();
  // Waits a moment for other programs that save, and fails where one goes on; it says who is being saved. Brings to an
  // end what dead programs have left, and tells of it.
  std::unique_ptr<FolderLock> takeTurn(Dialogs& dialogs);
  // Front and back, both or none: a pair of before is replaced as a whole or stays as it was. Only in one's turn. False
  // where the paper that there was to be beside them is missing; a remark says why.
  bool save(const std::array<MakeBitmap, 2>& bitmaps, const MakePaper& paper);

  // French sentences on what lies in ./Perso that should not.
  const std::vector<std::string>& remarks() const { return remarks_; }

 private:
  std::string whoIsSaved() const;

  Files& files_;
  std::string name_;
  std::vector<std::string> remarks_;
};

}  // namespace orvane
