#include "check/check_folder.h"

#include "check/checks.h"

namespace orvane {

std::vector<Finding> checkFolder(const std::string& path, Pictures& pictures, bool withSheets) {
  auto folder = readFolder(path);
  checkContents(folder);
  auto offer = offerOf(folder.data, pictures);
  checkSkills(folder, offer);
  const auto applicable = checkProfiles(folder, offer, pictures);
  checkPowers(folder, pictures);
  checkMartialArts(folder, applicable.martialPoints);
  if (withSheets) checkSheets(folder, applicable.profiles, pictures);
  return folder.findings.sorted();
}

}  // namespace orvane
