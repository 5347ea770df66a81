#pragma once

#include <array>
#include <functional>
#include <string>

#include "surface/world.h"

namespace orvane {

// Each gives the bytes of a file, or fails: of a bitmap, which is too large to be there before it is written, and of
// the PDF of a sheet.
using MakeBitmap = std::function<std::string()>;
using MakePaper = std::function<std::string()>;

// French sentences, mostly none.
struct SavedPair {
  std::string leftover;  // what stays beside the files
  std::string faultOfPaper;
};

// Writes both bitmaps of a character and puts them in place as one: a pair of before is replaced as a whole or stays.
// Once they are there for good, the paper, where one is wanted, is asked for and put beside them; before, a former one
// is taken away, so that none lies beside another pair than its own. Without a paper that is wanted the pair stays. The
// lock of ./Perso is held, and no other save of that name lies there. Fails with the reason and, where something could
// not be taken back, with what lies on the disk.
SavedPair savePair(Files& files, const std::string& name, const std::array<MakeBitmap, 2>& bitmaps,
                   const MakePaper& paper);

}  // namespace orvane
