#include "data/records.h"

#include <gtest/gtest.h>

#include "surface/failure.h"

namespace orvane {
namespace {

TEST(Records, AProfileCopyHasAListOfItsOwn) {
  clsProfil profil{.sName = "Pilote", .bAsserm = true, .colSkillPro = {}, .sDescro = "Vole."};
  for (const double key : {3.0, 101.0, 2.5}) profil.colSkillPro.Add(key);
  const auto copy = profil.Duplicate();
  copy->colSkillPro.Remove(2);
  EXPECT_EQ(copy->sName, "Pilote");
  EXPECT_TRUE(copy->bAsserm);
  EXPECT_EQ(copy->sDescro, "Vole.");
  EXPECT_EQ(copy->colSkillPro(2), 2.5);
  EXPECT_EQ(profil.colSkillPro.Count(), 3);
}

TEST(Records, AnArtCopyHasTechniquesOfItsOwnWithoutKeys) {
  const auto shared = std::make_shared<clsMartialTechnic>(
      clsMartialTechnic{.sName = "Balayage", .sType = "o", .sDescro = "Fait chuter.", .iKey = 4, .bSelected = false});
  clsMartialArt boxe{.sName = "Boxe", .iRestrictO = 2, .iRestrictD = 1, .sDescro = "Frappe.", .colMartialTechnic = {}};
  clsMartialArt lutte;
  boxe.colMartialTechnic.Add(shared);
  boxe.colMartialTechnic.Add(shared);
  lutte.colMartialTechnic.Add(shared);
  const auto first = boxe.Duplicate();
  const auto second = boxe.Duplicate();
  first->colMartialTechnic(1)->bSelected = true;

  EXPECT_EQ(first->sName + first->sDescro, "BoxeFrappe.");
  EXPECT_EQ(first->iRestrictO, 2);
  EXPECT_EQ(first->iRestrictD, 1);
  ASSERT_EQ(first->colMartialTechnic.Count(), 2);
  const auto& technic = *first->colMartialTechnic(1);
  EXPECT_EQ(technic.sName + technic.sType + technic.sDescro, "BalayageoFait chuter.");
  EXPECT_EQ(technic.iKey, 0);
  EXPECT_EQ(shared->iKey, 4);
  EXPECT_FALSE(first->colMartialTechnic(2)->bSelected);
  EXPECT_FALSE(second->colMartialTechnic(1)->bSelected);
  EXPECT_FALSE(shared->bSelected);
  EXPECT_EQ(lutte.colMartialTechnic(1), boxe.colMartialTechnic(1));
  EXPECT_TRUE(first->colMartialTechnic(1)->Duplicate()->bSelected);
}

TEST(Records, AnArtWithoutTechniquesIsAnEmptyCollection) {
  const auto copy = clsMartialArt().Duplicate();
  EXPECT_EQ(copy->colMartialTechnic.Count(), 0);
  EXPECT_THROW(copy->colMartialTechnic(1), Failure);
}

}  // namespace
}  // namespace orvane
