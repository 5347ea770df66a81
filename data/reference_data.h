#pragma once

#include <cstdint>
#include <memory>

#include "data/records.h"

namespace orvane {

// The reference data of one run: filled once by prcLoadData, read-only from then on.
// Every record stands at the position it has in its file, the title line not counted.
struct ReferenceData {
  Collection<std::shared_ptr<const clsEthnie>> colEthnie;
  Collection<std::shared_ptr<const clsGrade>> colGrade;
  Collection<std::shared_ptr<const clsProfil>> colProfil;
  Collection<std::shared_ptr<const clsSkill>> colSkill;
  Collection<std::shared_ptr<const clsMutation>> colMutation;
  Collection<std::shared_ptr<const clsMartialArt>> colMartialArt;
  Collection<std::shared_ptr<const clsDistrict>> colDistrict;
  // Position in colProfil of the last profile of the sworn name, 0 without one.
  std::int16_t iProfilAsserm = 0;
};

}  // namespace orvane
