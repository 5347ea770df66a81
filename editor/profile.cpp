#include "data/reference_data.h"
#include "editor/art_row.h"
#include "editor/frmPersonnage.h"
#include "editor/skill_row.h"
#include "editor/skill_rules.h"
#include "surface/desktop.h"
#include "surface/failure.h"
#include "surface/text.h"

namespace orvane {
namespace {

void setStartLevel(ListItem& row, double level) {
  setNumber(row, SkillRow::Level, level);
  setNumber(row, SkillRow::StartLevel, level);
}

}  // namespace

void frmPersonnage::cmbVehicle_Click() {
  if (iProfilChanging) {
    iProfilChanging = false;
    return;
  }
  cmbProfil_Click();
}

// Rebuilds the whole skill side from nothing: what was spent on it before is gone.
void frmPersonnage::cmbProfil_Click() {
  resetSkillSide();
  if (cmbProfil.ListIndex() == -1) return closeSkillSide();
  const ProfileCopies profiles = copyProfiles();
  const VehicleCode vehicle = replaceVehicleCode(profiles);
  if (vehicle == VehicleCode::Repeated) {
    desktop().MsgBox("Code 101 plusieurs fois dans le profil !", BoxStyle::Critical);
    return Unload();
  }
  resetMartialArts();
  if (!buildSkillList(profiles)) return;
  showFirstSkill();
  openSkillSide(*profiles.front());
  setVehicle(vehicle == VehicleCode::Replaced);
}

void frmPersonnage::resetSkillSide() {
  lvwSkillGen.Clear();
  itmSkillSel.reset();
  setNumber(txtSkillRest, skillPoolBase);
  if (chkMuta.Value() == 0) add(txtSkillRest, pointsWithoutPower);
  if (!chkMuta.Enabled()) add(txtSkillRest, pointsForDraw);
  SSTabPerso.setTabEnabled(ArtsMartiaux, false);
}

void frmPersonnage::closeSkillSide() {
  cmbGrade.setEnabled(false);
  cmbVehicle.setEnabled(false);
  SSTabPerso.setTabEnabled(Competences, false);
  SSTabPerso.setTabEnabled(Mutation, false);
  setVehicle(false);
}

frmPersonnage::ProfileCopies frmPersonnage::copyProfiles() const {
  ProfileCopies profiles{data_.colProfil(cmbProfil.ItemData(cmbProfil.ListIndex()))->Duplicate()};
  if (!profiles.front()->bAsserm) return profiles;
  if (data_.iProfilAsserm == 0)
    throw Failure("Le profil « " + profiles.front()->sName + " » demande le profil « Assermenté », qui manque.");
  profiles.push_back(data_.colProfil(data_.iProfilAsserm)->Duplicate());
  return profiles;
}

frmPersonnage::VehicleCode frmPersonnage::replaceVehicleCode(const ProfileCopies& profiles) {
  auto found = VehicleCode::Absent;
  for (const auto& profile : profiles) {
    const auto keys = profile->colSkillPro;
    for (const double key : keys) {
      if (key != vehicleCode) continue;
      if (found == VehicleCode::Replaced) return VehicleCode::Repeated;
      found = VehicleCode::Replaced;
      putVehicleSkill(*profile);
    }
  }
  return found;
}

// Selects the default vehicle where none is selected.
void frmPersonnage::putVehicleSkill(clsProfil& profile) {
  if (cmbVehicle.ListIndex() == -1) {
    iProfilChanging = true;
    cmbVehicle.setListIndex(0);
  }
  std::int32_t position = 1;
  while (profile.colSkillPro(position) != vehicleCode) ++position;
  profile.colSkillPro.Remove(position);
  if (data_.colSkill.Count() == 0) return;  // no skill was read: the code has nothing to stand for
  const std::int32_t skill = cmbVehicle.ItemData(cmbVehicle.ListIndex());
  if (skill > data_.colSkill.Count())
    throw Failure("Le véhicule « " + cmbVehicle.Text() + " » renvoie à la compétence n° " + std::to_string(skill) +
                  ", mais il n'y en a que " + std::to_string(data_.colSkill.Count()) + ".");
  profile.colSkillPro.Add(data_.colSkill(skill)->iKey);
}

void frmPersonnage::resetMartialArts() {
  txtMartialArtRest.setText("0");
  for (const auto& row : lvwMartialArt.rows()) setNumber(*row, ArtRow::Points, 0);
  for (const auto& art : colPersoArt)
    for (const auto& technic : art->colMartialTechnic) technic->bSelected = false;
}

// False when the pool was too small: the rows made so far stay.
bool frmPersonnage::buildSkillList(const ProfileCopies& profiles) {
  for (const auto& skill : data_.colSkill) {
    if (skill->iKey == vehicleCode) continue;
    warnOfRedundancy(profiles, *skill);
    if (occurrences(profiles, skill->iKey) == 0)
      addSkillRow(*skill, skill->iStart, false);
    else if (!addProfileSkill(*skill))
      return false;
  }
  return true;
}

void frmPersonnage::warnOfRedundancy(const ProfileCopies& profiles, const clsSkill& skill) {
  for (int again = 2; again <= occurrences(profiles, skill.iKey); ++again)
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

void frmPersonnage::openSkillSide(const clsProfil& chosen) {
  txtSkillPro.setCaption(cmbProfil.Text());
  SSTabPerso.setTabEnabled(Competences, true);
  SSTabPerso.setTabEnabled(Mutation, true);
  setGrade(chosen.bAsserm);
  txtAllDescro.setText(chosen.sName + crLf + chosen.sDescro);
}

void frmPersonnage::setGrade(bool sworn) {
  cmbGrade.setEnabled(sworn);
  lblGrade.setEnabled(sworn);
  // Without any grade read there is none to select.
  cmbGrade.setListIndex(sworn && cmbGrade.ListCount() > 0 ? 0 : -1);
}

void frmPersonnage::setVehicle(bool usesVehicle) {
  cmbVehicle.setEnabled(usesVehicle);
  lblVehicle.setEnabled(usesVehicle);
  // Where this clears a selection, cmbVehicle_Click applies the whole profile once more, with the same result.
  if (!usesVehicle) cmbVehicle.setListIndex(-1);
}

}  // namespace orvane
