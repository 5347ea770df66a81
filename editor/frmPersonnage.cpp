#include "editor/frmPersonnage.h"

#include <algorithm>

#include "data/reference_data.h"
#include "editor/art_row.h"
#include "surface/desktop.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::string_view swornProfileName = "Assermenté";
constexpr std::int32_t offeredGrades = 2;

// Adds the names of a collection to a combo box, each with its position as data.
template <class Record>
void addNames(ComboBox& box, const Collection<Record>& records, std::int32_t count) {
  for (std::int32_t i = 1; i <= count; ++i) {
    box.AddItem(records(i)->sName);
    box.setItemData(box.NewIndex(), i);
  }
}

}  // namespace

frmPersonnage::frmPersonnage(Globals& globals)
    : Form(globals.desktop, {.name = "frmPersonnage"}), globals_(globals), data_(globals.data) {
  wire();
}

void frmPersonnage::wire() {
  using F = frmPersonnage;
  on(SSTabPerso.Click, &F::SSTabPerso_Click);
  on(cmdPrintPreview.Click, &F::cmdPrintPreview_Click);
  on(cmdHelp.Click, &F::cmdHelp_Click);
  on(cmdClose.Click, &F::cmdClose_Click);

  on(txtPerso.LostFocus, &F::txtPerso_LostFocus);
  on(cmbDistrict.Click, &F::cmbDistrict_Click);
  on(cmbDistrict.Change, &F::cmbDistrict_Change);
  on(cmbGrade.Click, &F::cmbGrade_Click);
  on(cmbProfil.Click, &F::cmbProfil_Click);
  on(cmbVehicle.Click, &F::cmbVehicle_Click);
  on(optLang, &OptionButton::Click, &F::optLang_Click);
  on(cmdLangModif, &CommandButton::Click, &F::cmdLangModif_Click);
  on(txtOtherLang.GotFocus, &F::txtOtherLang_GotFocus);

  on(cmdCaractModif, &CommandButton::Click, &F::cmdCaractModif_Click);
  on(txtCaract, &TextBox::Change, &F::txtCaract_Change);
  on(optCaract, &OptionButton::Click, &F::optCaract_Click);
  on(lblSecondCaract, &Label::Click, &F::lblSecondCaract_Click);

  on(cmdContactNew.Click, &F::cmdContactNew_Click);
  on(cmdContactChange.Click, &F::cmdContactChange_Click);
  on(cmdContactDel.Click, &F::cmdContactDel_Click);
  on(cmdContactModif, &CommandButton::Click, &F::cmdContactModif_Click);
  on(cmdContactModif, &CommandButton::LostFocus, &F::cmdContactModif_LostFocus);
  on(lstContact.Click, &F::lstContact_Click);
  on(optContact, &OptionButton::Click, &F::optContact_Click);
  on(txtContactDescro.LostFocus, &F::txtContactDescro_LostFocus);

  on(lvwSkillGen.ItemClick, &F::lvwSkillGen_ItemClick);
  on(lvwSkillGen.BeforeLabelEdit, &F::lvwSkillGen_BeforeLabelEdit);
  on(lvwSkillGen.AfterLabelEdit, &F::lvwSkillGen_AfterLabelEdit);
  on(cmdSkillGenModif, &CommandButton::Click, &F::cmdSkillGenModif_Click);

  on(cmdMartialArtModif, &CommandButton::Click, &F::cmdMartialArtModif_Click);
  on(lvwMartialArt.ItemClick, &F::lvwMartialArt_ItemClick);
  on(lvwMartialTechnic.ItemClick, &F::lvwMartialTechnic_ItemClick);
  on(lvwMartialTechnic.ItemCheck, &F::lvwMartialTechnic_ItemCheck);

  on(chkMuta.Click, &F::chkMuta_Click);
  on(cmbMutaCateg.Click, &F::cmbMutaCateg_Click);
  on(cmbMutaName.Click, &F::cmbMutaName_Click);
  on(cmbMutaSign.Change, &F::cmbMutaSign_Change);
  on(cmdMutaRandomChoice.Click, &F::cmdMutaRandomChoice_Click);
}

void frmPersonnage::Form_Load() {
  SSTabPerso.setTabVisible(6, false);
  SSTabPerso.setTabVisible(7, false);
  SSTabPerso.setTabsPerRow(3);
  fillGrades();
  setSkillColumns();
  fillProfiles();
  for (int tab : {Competences, ArtsMartiaux, Mutation}) SSTabPerso.setTabEnabled(tab, false);
  cmbProfil.setListIndex(0);
  if (wasUnloaded()) return;  // the first profile was faulty and closed the window
  fillEthnicGroups();
  resetLanguages();
  fillDistricts();
  cmbSexe.setListIndex(0);
  resetCharacteristics();
  resetContacts();
  resetMutation();
  setMartialColumns();
  copyMartialArts();
  addMartialRows();
  SSTabPerso.setTab(EtatCivil);
  SSTabPerso_Click(EtatCivil);
}

void frmPersonnage::fillGrades() {
  addNames(cmbGrade, data_.colGrade, std::min(data_.colGrade.Count(), offeredGrades));
  cmbGrade.setListIndex(-1);
}

void frmPersonnage::setSkillColumns() {
  lvwSkillGen.clearColumnHeaders();
  lvwSkillGen.addColumnHeader(lvwSkillGen.Width() - 450 - 300 - 450);
  lvwSkillGen.addColumnHeader(450, true);
  lvwSkillGen.addColumnHeader(0);
  lvwSkillGen.addColumnHeader(450, true);
}

void frmPersonnage::fillProfiles() {
  for (std::int32_t i = 1; i <= data_.colProfil.Count(); ++i) {
    if (data_.colProfil(i)->sName == swornProfileName) continue;
    cmbProfil.AddItem(data_.colProfil(i)->sName);
    cmbProfil.setItemData(cmbProfil.NewIndex(), i);
  }
}

void frmPersonnage::fillEthnicGroups() {
  addNames(cmbEthnie, data_.colEthnie, data_.colEthnie.Count());
  cmbEthnie.setListIndex(0);
}

void frmPersonnage::resetLanguages() {
  txtLangRest.setText("9");
  for (auto& degree : txtLang) degree.setText("0");
  txtOtherLang.setText("Autre");
}

void frmPersonnage::fillDistricts() {
  addNames(cmbDistrict, data_.colDistrict, data_.colDistrict.Count());
  cmbDistrict.setListIndex(-1);
}

void frmPersonnage::resetCharacteristics() {
  txtCaractRest.setText("10");
  for (auto& value : txtCaract) value.setText("0");
}

void frmPersonnage::resetContacts() {
  txtContactRest.setText("14");
  colContact = {};
  for (auto& value : txtContact) value.setText("0");
  enableContactButtons(false);
}

void frmPersonnage::resetMutation() {
  cmbMutaSign.setListIndex(0);
  cmbMutaSign.setVisible(false);
  lblMutaSign.setVisible(false);
  cmbMutaCateg.setListIndex(0);
}

void frmPersonnage::setMartialColumns() {
  lvwMartialArt.clearColumnHeaders();
  lvwMartialArt.addColumnHeader(lvwMartialArt.Width() - 1400 - 350);
  lvwMartialArt.addColumnHeader(1000);
  lvwMartialArt.addColumnHeader(400, true);
  lvwMartialArt.addColumnHeader(0);
  lvwMartialTechnic.clearColumnHeaders();
  lvwMartialTechnic.addColumnHeader(lvwMartialTechnic.Width() - 300);
  lvwMartialTechnic.addColumnHeader(0);
}

void frmPersonnage::copyMartialArts() {
  for (const auto& art : data_.colMartialArt) colPersoArt.Add(art->Duplicate());
}

void frmPersonnage::addMartialRows() {
  const auto addRow = [this](const std::string& name, const Direction& direction, std::int32_t position) {
    const auto row = lvwMartialArt.Add();
    row->setText(name);
    row->setSubItems(ArtRow::Direction, std::string(direction.name));
    setNumber(*row, ArtRow::Points, 0);
    setNumber(*row, ArtRow::Position, position);
  };
  for (std::int32_t i = 1; i <= colPersoArt.Count(); ++i) {
    addRow(colPersoArt(i)->sName, offensive, i);
    addRow("", defensive, i);
  }
}

void frmPersonnage::SSTabPerso_Click(std::int16_t) {
  switch (SSTabPerso.Tab()) {
    case EtatCivil:
      return enterEtatCivil();
    case Caracteristiques:
      return enterCaracteristiques();
    case Contacts:
      return enterContacts();
    case Competences:
      return enterCompetences();
    case ArtsMartiaux:
      return enterArtsMartiaux();
    case Mutation:
      return enterMutation();
    default:
      txtAllDescro.setText("");
  }
}

void frmPersonnage::enterEtatCivil() {
  optLang(0).setValue(true);
  const auto& profile = *data_.colProfil(cmbProfil.ItemData(cmbProfil.ListIndex()));
  txtAllDescro.setText(profile.sName + crLf + profile.sDescro);
}

void frmPersonnage::enterCaracteristiques() {
  optCaract(iCaractSel).setValue(true);
  txtAllDescro.setText(optCaract(iCaractSel).Tag());
}

void frmPersonnage::enterContacts() {
  optContact(0).setValue(true);
  txtAllDescro.setText("");
}

void frmPersonnage::enterMutation() {
  const bool shown = cmbMutaName.ListIndex() >= 0 && cmbMutaName.Visible();
  txtAllDescro.setText(shown ? data_.colMutation(cmbMutaName.ItemData(cmbMutaName.ListIndex()))->sDescro
                             : std::string());
}

void frmPersonnage::Form_Activate() { globals_.frmCurrentPerso = this; }

void frmPersonnage::unloaded() {
  if (globals_.frmCurrentPerso == this) globals_.frmCurrentPerso = desktop().lastActivated<frmPersonnage>();
}

void frmPersonnage::txtPerso_LostFocus() {
  const std::string caption = captionOf(txtPerso.Text());
  // This window bears the caption itself when the name is the same as before.
  const bool taken = !txtPerso.Text().empty() && Caption() != caption && desktop().find(Name(), caption);
  // Two windows of one name could not be told apart at the save: the later one has to look for another.
  if (taken) txtPerso.setText("");
  setCaption(taken ? std::string() : caption);
}

void frmPersonnage::cmdPrintPreview_Click() {
  if (globals_.composeSheet) globals_.composeSheet(*this);
}

void frmPersonnage::cmdHelp_Click() {
  if (globals_.showReadMe) globals_.showReadMe();
}

void frmPersonnage::cmdClose_Click() { Unload(); }

}  // namespace orvane
