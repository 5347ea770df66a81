#include "data/reference_data.h"
#include "editor/art_row.h"
#include "editor/frmPersonnage.h"
#include "editor/pools.h"
#include "editor/skill_rules.h"
#include "surface/desktop.h"
#include "surface/failure.h"
#include "surface/text.h"

namespace orvane {

void frmPersonnage::wireProfil() {
  on(cmbProfil.Click, &frmPersonnage::cmbProfil_Click);
  on(cmbVehicle.Click, &frmPersonnage::cmbVehicle_Click);
}

// Applies the first profile at once: it opens the tabs that it needs.
void frmPersonnage::loadProfil() {
  for (std::int32_t i = 1; i <= data_.colProfil.Count(); ++i)
    if (data_.colProfil(i).canBeChosen()) cmbProfil.AddItem(data_.colProfil(i).sName, i);
  for (int tab : {Competences, ArtsMartiaux, Mutation}) SSTabPerso.setTabEnabled(tab, false);
  cmbProfil.setListIndex(0);
}

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
    desktop().MsgBox("Code " + std::to_string(vehicleCode) + " plusieurs fois dans le profil !", BoxStyle::Critical);
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
  ProfileCopies profiles{data_.colProfil(cmbProfil.selectedData()).Duplicate()};
  if (!profiles.front()->bAsserm) return profiles;
  if (data_.iProfilAsserm == 0)
    throw Failure("Le profil « " + profiles.front()->sName + " » demande le profil « " + clsProfil::swornName +
                  " », qui manque.");
  profiles.push_back(data_.colProfil(data_.iProfilAsserm).Duplicate());
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
  const std::int32_t skill = cmbVehicle.selectedData();
  if (skill > data_.colSkill.Count())
    throw Failure("Le véhicule « " + cmbVehicle.Text() + " » renvoie à la compétence n° " + std::to_string(skill) +
                  ", mais il n'y en a que " + std::to_string(data_.colSkill.Count()) + ".");
  profile.colSkillPro.Add(data_.colSkill(skill).iKey);
}

void frmPersonnage::resetMartialArts() {
  txtMartialArtRest.setText("0");
  for (const auto& row : lvwMartialArt.rows()) setNumber(*row, ArtRow::Points, 0);
  for (const auto& art : colPersoArt)
    for (const auto& technic : art->colMartialTechnic) technic->bSelected = false;
}

void frmPersonnage::openSkillSide(const clsProfil& chosen) {
  txtSkillPro.setCaption(cmbProfil.Text());
  SSTabPerso.setTabEnabled(Competences, true);
  SSTabPerso.setTabEnabled(Mutation, true);
  setGrade(chosen.bAsserm);
  showProfil(chosen);
}

void frmPersonnage::showProfil(const clsProfil& profile) {
  txtAllDescro.setText(profile.sName + crLf + profile.sDescro);
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
