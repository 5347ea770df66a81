#include "data/reference_data.h"
#include "editor/frmPersonnage.h"
#include "editor/pools.h"
#include "editor/skill_row.h"
#include "editor/skill_rules.h"
#include "surface/desktop.h"

namespace orvane {
namespace {

void setStartLevel(ListItem& row, double level) {
  setNumber(row, SkillRow::Level, level);
  setNumber(row, SkillRow::StartLevel, level);
}

}  // namespace

// False when the pool was too small: the rows made so far stay.
bool frmPersonnage::buildSkillList(const ProfileCopies& profiles) {
  const SkillCounts counts(profiles);
  for (const auto& skill : data_.colSkill) {
    if (skill.iKey == vehicleCode) continue;
    const int count = counts(skill.iKey);
    warnOfRedundancy(skill, count);
    if (count == 0)
      addSkillRow(skill, skill.iStart, false);
    else if (!addProfileSkill(skill))
      return false;
  }
  return true;
}

void frmPersonnage::warnOfRedundancy(const clsSkill& skill, int count) {
  for (int again = 2; again <= count; ++again)
    desktop().MsgBox("Compétence " + skill.sName + " redondante.", BoxStyle::Exclamation);
}

bool frmPersonnage::addProfileSkill(const clsSkill& skill) {
  if (!paySkillPoints(profileSkillCost(skill.iStart))) return false;
  const auto row = addSkillRow(skill, profileSkillLevel, true);
  return skill.iKey != martialSkillKey || addMartialSkillLevels(*row);
}

bool frmPersonnage::addMartialSkillLevels(ListItem& row) {
  SSTabPerso.setTabEnabled(ArtsMartiaux, true);
  setNumber(txtMartialArtRest, martialSkillLevel);
  if (!paySkillPoints(martialSkillExtraCost)) return false;
  setStartLevel(row, martialSkillLevel);
  return true;
}

ListItemRef frmPersonnage::addSkillRow(const clsSkill& skill, double level, bool ofProfile) {
  auto row = lvwSkillGen.Add();
  row->setText(skill.sName);
  setNumber(*row, SkillRow::Key, skill.iKey);
  setStartLevel(*row, level);
  row->setBold(ofProfile);
  row->ListSubItems(SkillRow::Level).setForeColor(Colour::Red);
  row->ListSubItems(SkillRow::Level).setBold(true);
  return row;
}

// Says so and pays nothing where the pool is too small. What costs nothing is always paid.
bool frmPersonnage::paySkillPoints(double cost) {
  if (cost > 0 && number(txtSkillRest) < cost) {
    desktop().MsgBox("Pas assez de points de compétences pour toutes les compétences du profil!", BoxStyle::Critical);
    return false;
  }
  add(txtSkillRest, -cost);
  return true;
}

void frmPersonnage::showFirstSkill() {
  lvwSkillGen.setSortKey(0);
  lvwSkillGen.sort();
  if (lvwSkillGen.Count() == 0) return;
  lvwSkillGen.ListItems(1)->select();
  lvwSkillGen_ItemClick(lvwSkillGen.ListItems(1));
}

}  // namespace orvane
