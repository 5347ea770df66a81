#include "endurance/saved_pairs.h"

#include <set>

#include "endurance/tally.h"
#include "sheet/recovery.h"
#include "sheet/sheet_names.h"
#include "surface/disk_files.h"

namespace orvane::soak {
namespace {

constexpr float patience = 60;  // seconds

std::string stampOf(const std::string& path) {
  const std::string bytes = DiskFiles().read(path);
  return bytes.substr(bytes.rfind('\n') + 1);
}

}  // namespace

int checkSavedPairs() {
  DiskFiles files;
  if (!files.directoryExists(sheetFolder)) return 0;
  const auto turn = files.lock(sheetFolder, patience);
  require(turn != nullptr, "the turn comes");
  for (const auto& failed : recoverSaves(files).failed) throw Broken(failed);
  int pairs = 0;
  for (const auto& entry : files.list(sheetFolder)) {
    const std::string front = std::string(sheetFolder) + "/" + entry.name;
    if (entry.name.ends_with("_2.bmp")) continue;
    require(entry.name.ends_with("_1.bmp"), entry.name + " is no sheet");
    const std::string name = entry.name.substr(0, entry.name.size() - 6);
    require(stampOf(front) == stampOf(goalOf(name, 1)), name + " is of two saves");
    ++pairs;
  }
  require(files.list(sheetFolder).size() == 2U * static_cast<unsigned>(pairs), "every back has its front");
  return pairs;
}

}  // namespace orvane::soak
