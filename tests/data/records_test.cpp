#include "data/records.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(Records, AProfileCopyHasAListOfItsOwn) {
  clsProfil profil{.sName = "Pilote", .bAsserm = true, .colSkillPro = {}, .sDescro = "Vole."};
  for (const double key : {3.0, 101.0, 2.5}) profil.colSkillPro.Add(key);
  const auto copy = profil.Duplicate();
  copy->colSkillPro.Remove(2);
  EXPECT_EQ(copy->sName + copy->sDescro, "PiloteVole.");
  EXPECT_TRUE(copy->bAsserm);
  EXPECT_EQ(copy->colSkillPro(2), 2.5);
  EXPECT_EQ(profil.colSkillPro.Count(), 3);
}

TEST(Records, AnArtCopyHasTechniquesOfItsOwnWithoutKeys) {
  const auto shared = std::make_shared<clsMartialTechnic>(
      clsMartialTechnic{.sName = "Balayage", .sType = "o", .sDescro = "Fait chuter.", .iKey = 4, .bSelected = false});
  clsMartialArt boxe{.sName = "Boxe", .iRestrictO = 2, .iRestrictD = 1, .sDescro = "Frappe.", .colMartialTechnic = {}};
  EXPECT_EQ(boxe.Duplicate()->colMartialTechnic.Count(), 0);
  for (int i = 0; i < 2; ++i) boxe.colMartialTechnic.Add(shared);
  const auto copy = boxe.Duplicate();
  EXPECT_EQ(copy->sName + copy->sDescro, "BoxeFrappe.");
  EXPECT_EQ(copy->iRestrictO, 2);
  EXPECT_EQ(copy->iRestrictD, 1);
  ASSERT_EQ(copy->colMartialTechnic.Count(), 2);
  auto& technic = *copy->colMartialTechnic(1);
  technic.bSelected = true;
  EXPECT_EQ(technic.sName + technic.sType + technic.sDescro, "BalayageoFait chuter.");
  EXPECT_EQ(technic.iKey, 0);
  EXPECT_EQ(shared->iKey, 4);
  EXPECT_FALSE(copy->colMartialTechnic(2)->bSelected || shared->bSelected);
  EXPECT_TRUE(technic.Duplicate()->bSelected);
}

}  // namespace
}  // namespace orvane
