#pragma once

#include <cstdint>
#include <memory>

#include "data/records.h"

namespace orvane {

// The reference data of one run: filled once by prcLoadData, read-only from then on.
// Every record stands at the position it has in its file, the title line not counted.
struct ReferenceData {
  Collection<clsEthnie> colEthnie;
  Collection<clsGrade> colGrade;
  Collection<clsProfil> colProfil;
  Collection<clsSkill> colSkill;
  Collection<clsMutation> colMutation;
  Collection<clsMartialArt> colMartialArt;
  Collection<clsDistrict> colDistrict;
  // What the texts of the records are views of; copies share it.
  std::shared_ptr<Texts> texts = std::make_shared<Texts>();
  // Position in colProfil of the last profile of the sworn name, 0 without one.
  std::int16_t iProfilAsserm = 0;
};

}  // namespace orvane
