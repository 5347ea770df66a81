#include "data/records.h"

namespace orvane {

std::shared_ptr<clsProfil> clsProfil::Duplicate() const { return std::make_shared<clsProfil>(*this); }

std::shared_ptr<clsMartialTechnic> clsMartialTechnic::Duplicate() const {
  auto copy = std::make_shared<clsMartialTechnic>(*this);
  copy->iKey = 0;
  return copy;
}

std::shared_ptr<clsMartialArt> clsMartialArt::Duplicate() const {
  auto copy = std::make_shared<clsMartialArt>();
  copy->sName = sName;
  copy->iRestrictO = iRestrictO;
  copy->iRestrictD = iRestrictD;
  copy->sDescro = sDescro;
  for (std::int32_t i = 1; i <= colMartialTechnic.Count(); ++i)
    copy->colMartialTechnic.Add(colMartialTechnic(i)->Duplicate());
  return copy;
}

}  // namespace orvane
