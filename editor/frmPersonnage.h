#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "data/records.h"
#include "editor/globals.h"
#include "surface/check_box.h"
#include "surface/combo_box.h"
#include "surface/command_button.h"
#include "surface/form.h"
#include "surface/frame.h"
#include "surface/label.h"
#include "surface/list_box.h"
#include "surface/list_view.h"
#include "surface/option_button.h"
#include "surface/tab_control.h"
#include "surface/text_box.h"

namespace orvane {

struct Verdict;

// The window of one character. Its controls are the character: a handler reads a value by reading its control.
// Sorted by tab; each tab has its own source file.
class frmPersonnage : public Form {
 public:
  explicit frmPersonnage(Globals& globals);

  // The caption of the window of a character, by which a sheet finds it again.
  static std::string captionOf(const std::string& name) { return "Définition " + name; }

  // The tabs, by position; the tab control has more, which stay hidden.
  enum TabPosition { EtatCivil, Caracteristiques, Contacts, Competences, ArtsMartiaux, Mutation, TabCount };

  // --- Around the tabs (frmPersonnage.cpp)
  Label Label2{*this, "Label2", {"Nom Joueur"}};
  TextBox txtJoueur{*this, "txtJoueur"};
  CommandButton cmdPrintPreview{*this, "cmdPrintPreview", {"V&isualiser"}};
  CommandButton cmdHelp{*this, "cmdHelp", {"&Aide"}};
  CommandButton cmdClose{*this, "cmdClose", {"&Close"}};
  TabControl SSTabPerso{*this,
                        "SSTabPerso",
                        {{"Etat Civil / Langues", "Caractéristiques", "Contacts", "Compétences", "Arts Martiaux",
                          "Mutation", "Tab 6", "Tab 7"}}};
  TextBox txtAllDescro{*this, "txtAllDescro", {.readOnly = true}};

  // --- Civil status and languages (civil_status.cpp), profile and vehicle (profile.cpp, profile_skills.cpp)
  Label Label1{onTab(EtatCivil), "Label1", {"Nom Personnage"}};
  TextBox txtPerso{onTab(EtatCivil), "txtPerso"};
  Label Label5{onTab(EtatCivil), "Label5", {"Age"}};
  TextBox txtAge{onTab(EtatCivil), "txtAge"};
  Label Label6{onTab(EtatCivil), "Label6", {"Taille (cm)"}};
  TextBox txtTaille{onTab(EtatCivil), "txtTaille"};
  Label Label9{onTab(EtatCivil), "Label9", {"Poids (kg)"}};
  TextBox txtPoids{onTab(EtatCivil), "txtPoids"};
  Label Label7{onTab(EtatCivil), "Label7", {"Sexe"}};
  ComboBox cmbSexe{onTab(EtatCivil), "cmbSexe", {.items = {{"H"}, {"F"}}}};
  Label Label8{onTab(EtatCivil), "Label8", {"lieu d'origine"}};
  ComboBox cmbDistrict{onTab(EtatCivil), "cmbDistrict", {.editable = true}};
  Label Label13{onTab(EtatCivil), "Label13", {"Ethnie"}};
  ComboBox cmbEthnie{onTab(EtatCivil), "cmbEthnie"};
  Label Label12{onTab(EtatCivil), "Label12", {"Profil"}};
  ComboBox cmbProfil{onTab(EtatCivil), "cmbProfil"};
  Label lblGrade{onTab(EtatCivil), "lblGrade", {"Grade"}};
  ComboBox cmbGrade{onTab(EtatCivil), "cmbGrade"};
  Label Label14{onTab(EtatCivil), "Label14", {"Cheveux"}};
  TextBox txtCheveux{onTab(EtatCivil), "txtCheveux"};
  Label Label15{onTab(EtatCivil), "Label15", {"Yeux"}};
  TextBox txtYeux{onTab(EtatCivil), "txtYeux"};
  Label lblVehicle{onTab(EtatCivil), "lblVehicle", {"Véhicule de prédilection"}};
  // The data of an entry is the position of its skill in colSkill.
  ComboBox cmbVehicle{onTab(EtatCivil),
                      "cmbVehicle",
                      {.editable = true, .items = {{"Voiture", 18}, {"Moto", 16}, {"Hélicoptère", 44}}}};
  Frame frmLangue{onTab(EtatCivil), "frmLangue", {"Langues"}};
  Label Label18{frmLangue, "Label18", {"Points restants"}};
  TextBox txtLangRest{frmLangue, "txtLangRest"};
  Family<TextBox> txtLang{frmLangue, "txtLang", 3};
  Family<OptionButton> optLang{frmLangue, "optLang", {{"Anglais"}, {"Espagnol"}, {}}};
  TextBox txtOtherLang{frmLangue, "txtOtherLang"};
  Family<CommandButton> cmdLangModif{frmLangue, "cmdLangModif", {leftArrow, rightArrow}};

  // --- Characteristics (characteristics.cpp)
  Label Label21{onTab(Caracteristiques), "Label21", {"Points restants"}};
  TextBox txtCaractRest{onTab(Caracteristiques), "txtCaractRest", {.readOnly = true}};
  Family<OptionButton> optCaract{onTab(Caracteristiques), "optCaract", characteristicDesigns()};
  Family<TextBox> txtCaract{onTab(Caracteristiques), "txtCaract", 8, {.readOnly = true}};
  Family<CommandButton> cmdCaractModif{onTab(Caracteristiques), "cmdCaractModif", {leftArrow, rightArrow}};
  Family<Label> lblSecondCaract{onTab(Caracteristiques), "lblSecondCaract", secondaryDesigns()};
  TextBox txtEV{onTab(Caracteristiques), "txtEV", {.readOnly = true}};
  TextBox txtR{onTab(Caracteristiques), "txtR", {.readOnly = true}};
  TextBox txtSF{onTab(Caracteristiques), "txtSF", {.readOnly = true}};

  // --- Contacts (contacts.cpp)
  Label Label11{onTab(Contacts), "Label11", {"Points restants"}};
  TextBox txtContactRest{onTab(Contacts), "txtContactRest", {.readOnly = true}};
  ListBox lstContact{onTab(Contacts), "lstContact"};
  CommandButton cmdContactNew{onTab(Contacts), "cmdContactNew", {"&Nouveau"}};
  CommandButton cmdContactChange{onTab(Contacts), "cmdContactChange", {"&Changer"}};
  CommandButton cmdContactDel{onTab(Contacts), "cmdContactDel", {"&Supprimer"}};
  Label Label20{onTab(Contacts), "Label20", {"Description"}};
  TextBox txtContactDescro{onTab(Contacts), "txtContactDescro", {.readOnly = true}};
  Family<OptionButton> optContact{onTab(Contacts), "optContact", {{"Information"}, {"Réaction"}}};
  Family<TextBox> txtContact{onTab(Contacts), "txtContact", 2, {.readOnly = true}};
  Family<CommandButton> cmdContactModif{onTab(Contacts), "cmdContactModif", {leftArrow, rightArrow}};

  // --- Skills (skills.cpp)
  Label Label4{onTab(Competences), "Label4", {"Points restants"}};
  TextBox txtSkillRest{onTab(Competences), "txtSkillRest"};
  ListView lvwSkillGen{onTab(Competences), "lvwSkillGen", {.width = 6000, .labelEdit = true, .longestLabel = 25}};
  Family<CommandButton> cmdSkillGenModif{onTab(Competences), "cmdSkillGenModif", {leftArrow, rightArrow}};
  Label Label22{onTab(Competences), "Label22", {"Profil"}};
  Label txtSkillPro{onTab(Competences), "txtSkillPro"};

  // --- Martial arts (martial_arts.cpp)
  Label Label23{onTab(ArtsMartiaux), "Label23", {"Points restants"}};
  TextBox txtMartialArtRest{onTab(ArtsMartiaux), "txtMartialArtRest", {.readOnly = true}};
  Family<CommandButton> cmdMartialArtModif{onTab(ArtsMartiaux), "cmdMartialArtModif", {leftArrow, rightArrow}};
  ListView lvwMartialArt{onTab(ArtsMartiaux), "lvwMartialArt", {.width = 5400}};
  ListView lvwMartialTechnic{onTab(ArtsMartiaux), "lvwMartialTechnic", {.width = 4200, .checkBoxes = true}};
  Label Label27{onTab(ArtsMartiaux), "Label27", {"Nombre de techniques encore à choisir pour cet art martial"}};
  TextBox txtMartialTechnicRest{onTab(ArtsMartiaux), "txtMartialTechnicRest", {.readOnly = true}};

  // --- Mutation (mutation.cpp)
  CheckBox chkMuta{onTab(Mutation), "chkMuta", {"Avec pouvoir mutant", 1}};
  CommandButton cmdMutaRandomChoice{onTab(Mutation), "cmdMutaRandomChoice", {"Tirage aléatoire du pouvoir"}};
  Label Label24{onTab(Mutation), "Label24", {"Catégorie"}};
  ComboBox cmbMutaCateg{onTab(Mutation), "cmbMutaCateg", {.items = {{"Alpha"}, {"Bêta"}, {"Epsilon"}, {"Psy"}}}};
  Label lblMutaSign{onTab(Mutation), "lblMutaSign", {"Signe"}};
  ComboBox cmbMutaSign{onTab(Mutation), "cmbMutaSign", {.editable = true, .items = {{"Plus"}, {"Moins"}}}};
  Label Label25{onTab(Mutation), "Label25", {"Pouvoir"}};
  ComboBox cmbMutaName{onTab(Mutation), "cmbMutaName"};
  Label lblCatDescro{onTab(Mutation), "lblCatDescro"};
  Label Label26{onTab(Mutation), "Label26", {"Signe particulier"}};
  TextBox txtParticulSign{onTab(Mutation), "txtParticulSign"};

  // In the order of their creation; the names in lstContact are the only link to that list.
  Collection<std::shared_ptr<clsContact>> colContact;
  // Position in colContact of the selected contact, 0 when there is none.
  std::int16_t iContactSel = 0;
  // This character's private copy of the martial arts, in the order of colMartialArt.
  Collection<std::shared_ptr<clsMartialArt>> colPersoArt;

  // The name that the user gave to the third language, empty while it has none (civil_status.cpp).
  std::string otherLanguage() const;
  // The four buttons that act on a selected contact (contacts.cpp).
  void enableContactButtons(bool enabled);
  // True for a row that the skill columns of the sheet leave out (skills.cpp).
  bool prcSkillNotOnSheet(const ListItem& itm) const;
  // The art of a row of lvwMartialArt (martial_arts.cpp).
  clsMartialArt& artOf(const ListItem& row) const;
  enum class MutationState { NoPower, ChosenPower, DrawnPower };
  MutationState mutationState() const;
  // The power that is selected, null for none (mutation.cpp).
  const clsMutation* selectedPower() const;
  // Checks the whole character and colours its fields; false when an essential constraint is broken (validation.cpp).
  bool prcValidate();

  // Hints (hints.cpp).
  std::string hint(const Control& control) const override;
  std::string tabHint(const Control& tabs, int tab) const override;
  std::string stepped(const Control& arrow) const override;

 protected:
  void Form_Load() override;
  void Form_Activate() override;
  void unloaded() override;

 private:
  Place onTab(int tab) { return {SSTabPerso, tab}; }
  static std::vector<OptionButton::Design> characteristicDesigns();
  static std::vector<Label::Design> secondaryDesigns();

  // Each tab has its wire..., which the constructor calls, its load..., a step of Form_Load, and its enter..., for
  // whenever it is picked.

  // --- Around the tabs
  void SSTabPerso_Click(std::int16_t PreviousTab);
  void cmdPrintPreview_Click();
  void cmdHelp_Click();
  void cmdClose_Click();

  // --- Civil status and languages
  void wireEtatCivil();
  void loadGrades();
  void loadEtatCivil();
  void enterEtatCivil();
  void txtPerso_LostFocus();
  void cmbDistrict_Click();
  void cmbDistrict_Change();
  void cmbGrade_Click();
  void optLang_Click(std::int16_t Index);
  void cmdLangModif_Click(std::int16_t Index);
  void txtOtherLang_GotFocus();
  void prcLangDegréDescro();

  // --- Profile and vehicle
  // Private copies of the profiles that are applied: the chosen one, then that of all sworn ones if it is sworn.
  using ProfileCopies = std::vector<std::shared_ptr<clsProfil>>;
  enum class VehicleCode { Absent, Replaced, Repeated };
  void wireProfil();
  void loadProfil();
  void cmbProfil_Click();
  void cmbVehicle_Click();
  void resetSkillSide();
  void openSkillSide(const clsProfil& chosen);
  void closeSkillSide();
  ProfileCopies copyProfiles() const;
  VehicleCode replaceVehicleCode(const ProfileCopies& profiles);
  void putVehicleSkill(clsProfil& profile);
  void resetMartialArts();
  void setGrade(bool sworn);
  void setVehicle(bool usesVehicle);
  void showProfil(const clsProfil& profile);
  bool buildSkillList(const ProfileCopies& profiles);
  bool addProfileSkill(const clsSkill& skill);
  bool addMartialSkillLevels(ListItem& row);
  ListItemRef addSkillRow(const clsSkill& skill, double level, bool ofProfile);
  bool paySkillPoints(double cost);
  void warnOfRedundancy(const clsSkill& skill, int count);
  void showFirstSkill();

  // --- Characteristics
  void wireCaracteristiques();
  void loadCaracteristiques();
  void enterCaracteristiques();
  void cmdCaractModif_Click(std::int16_t Index);
  void txtCaract_Change(std::int16_t Index);
  void optCaract_Click(std::int16_t Index);
  void lblSecondCaract_Click(std::int16_t Index);
  bool wouldBeThirdNegative() const;
  void stepCaract(std::int16_t Index);
  void enableSelectableCaracts();

  // --- Contacts
  void wireContacts();
  void loadContacts();
  void enterContacts();
  void cmdContactNew_Click();
  void cmdContactChange_Click();
  void cmdContactDel_Click();
  void cmdContactModif_Click(std::int16_t Index);
  void cmdContactModif_LostFocus(std::int16_t Index);
  void lstContact_Click();
  void optContact_Click(std::int16_t Index);
  void txtContactDescro_LostFocus();
  void askContact(const std::string& name, const std::string& description, const std::string& caption);
  std::int16_t contactPosition(const std::string& name) const;
  void stepContactDown(TextBox& value);
  void stepContactUp(TextBox& value);
  void reportContactFaults();
  void refund(std::int16_t& value);
  void leaveNoContact();

  // --- Skills
  void wireCompetences();
  void loadCompetences();
  void enterCompetences();
  void lvwSkillGen_ItemClick(ListItemRef Item);
  void cmdSkillGenModif_Click(std::int16_t Index);
  void lvwSkillGen_BeforeLabelEdit(bool& Cancel);
  void lvwSkillGen_AfterLabelEdit(bool& Cancel, std::string& NewString);
  const clsSkill* skillOf(const ListItem& row) const;
  bool stepSkillDown(ListItem& row, double lowest);
  void stepSkillUp(ListItem& row, double highest);

  // --- Martial arts
  void wireArtsMartiaux();
  void loadArtsMartiaux();
  void setMartialColumns();
  void enterArtsMartiaux();
  void cmdMartialArtModif_Click(std::int16_t Index);
  void lvwMartialArt_ItemClick(ListItemRef Item);
  void lvwMartialTechnic_ItemClick(ListItemRef Item);
  void lvwMartialTechnic_ItemCheck(ListItemRef Item);
  clsMartialTechnic& technicOf(const ListItem& row) const;
  int addTechnicRows(const ListItem& artRow);
  void removeMartialPoint(ListItem& row);
  void addMartialPoint(ListItem& row);

  // --- Mutation
  void wireMutation();
  void loadMutation();
  void enterMutation();
  void chkMuta_Click();
  void cmbMutaCateg_Click();
  void cmbMutaName_Click();
  void cmbMutaSign_Change();
  void cmdMutaRandomChoice_Click();
  void prcMutaNameChange();
  void takePowerBack();
  void giveUpPower();
  void enablePowerChoice(bool enabled);
  void drawPower();

  // --- Hints
  // What the arrow buttons of a tab step. Without a pool where nothing is selected.
  struct Step {
    std::string name;
    std::string value;
    const TextBox* pool = nullptr;
    std::string range;
  };
  Step stepIn(int tab) const;
  Step stepOfSkill() const;
  Step stepOfArt() const;

  // --- Validation
  void checkFields(Verdict& verdict);
  void repairAge();
  void checkSkillNames(Verdict& verdict);
  bool lacksItsName(const ListItem& row) const;
  void checkMartialArts(Verdict& verdict);

  Globals& globals_;
  const ReferenceData& data_;
  // The selected characteristic, language and contact value, by index.
  std::int16_t iCaractSel = 0;
  std::int16_t iLangSel = 0;
  std::int16_t iContactOpt = 0;
  // The row last clicked, which the arrow buttons act on.
  ListItemRef itmSkillSel;
  // One-shot: makes the next cmbVehicle_Click or chkMuta_Click do nothing but clear it.
  bool iProfilChanging = false;
};

}  // namespace orvane
