#include <algorithm>
#include <array>

#include "data/reference_data.h"
#include "editor/frmPersonnage.h"
#include "editor/numbers_in_controls.h"
#include "editor/pools.h"
#include "surface/desktop.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::int32_t offeredGrades = 2;
constexpr const char* foreignDistrict = "Le quartier d'origine du personnage n'est pas de Tessaly.";
// What stands for the name of the third language until the user gives it one.
constexpr const char* unnamedLanguage = "Autre";

// By degree of language, from 0 to 5: the head and the text behind it.
struct Degree {
  const char* head;
  const char* text;
};
constexpr std::array<Degree, 6> degrees{{
    {"Langue Degré 0 ",
     "Le personnage ne parle pas et ne comprend pas la langue. Il ne connaît que quelques mots très courants (bonjour, "
     "au revoir, etc...)"},
    {"Langue Degré 1 ",
     "Le personnage est capable de communiquer de manière très basique, avec des phrases très simples concernant des "
     "sujets de la vie quotidienne."},
    {"Langue Degré 2 ",
     "Le personnage comprend la langue mais la parle très mal, même s'il commence à faire passer d'autres concepts que "
     "ceux de la vie quotidienne."},
    {"Langue Degré 3 ",
     "Le personnage parle relativement couramment, mais avec un accent étranger et un vocabulaire un peu faible "
     "parfois. "
     "C'est le niveau d'un autochtone mal éduqué ou d'un primo-arrivant ayant étudié la langue sur place."},
    {"Langue Degré 4 ",
     "Le personnage parle couramment la langue, connais plus de 80% du vocabulaire et communique sans accent."},
    {"Langue Degré 5 ",
     "Le personnage est un spécialiste de la langue. Il la connaît parfaitement, avec toutes ses subtilités."},
}};

}  // namespace

void frmPersonnage::wireEtatCivil() {
  using F = frmPersonnage;
  on(txtPerso.LostFocus, &F::txtPerso_LostFocus);
  on(cmbDistrict.Click, &F::cmbDistrict_Click);
  on(cmbDistrict.Change, &F::cmbDistrict_Change);
  on(cmbGrade.Click, &F::cmbGrade_Click);
  on(optLang, &OptionButton::Click, &F::optLang_Click);
  on(cmdLangModif, &CommandButton::Click, &F::cmdLangModif_Click);
  on(txtOtherLang.GotFocus, &F::txtOtherLang_GotFocus);
}

// Before the profile, which selects one.
void frmPersonnage::loadGrades() {
  for (std::int32_t i = 1; i <= std::min(data_.colGrade.Count(), offeredGrades); ++i)
    cmbGrade.AddItem(data_.colGrade(i).sName, i);
}

void frmPersonnage::loadEtatCivil() {
  for (std::int32_t i = 1; i <= data_.colEthnie.Count(); ++i) cmbEthnie.AddItem(data_.colEthnie(i).sName, i);
  cmbEthnie.setListIndex(0);
  setNumber(txtLangRest, languagePool);
  for (auto& degree : txtLang) setNumber(degree, 0);
  txtOtherLang.setText(unnamedLanguage);
  for (std::int32_t i = 1; i <= data_.colDistrict.Count(); ++i) cmbDistrict.AddItem(data_.colDistrict(i).sName, i);
  cmbSexe.setListIndex(0);
}

void frmPersonnage::enterEtatCivil() {
  optLang(0).setValue(true);
  showProfil(data_.colProfil(cmbProfil.selectedData()));
}

void frmPersonnage::txtPerso_LostFocus() {
  const std::string caption = captionOf(txtPerso.Text());
  // This window bears the caption itself when the name is the same as before.
  const bool taken = !txtPerso.Text().empty() && Caption() != caption && desktop().find(Name(), caption);
  // Two windows of one name could not be told apart at the save: the later one has to look for another.
  if (taken) txtPerso.setText("");
  setCaption(taken ? "" : caption);
}

void frmPersonnage::cmbDistrict_Change() { txtAllDescro.setText(foreignDistrict); }

void frmPersonnage::cmbDistrict_Click() {
  if (cmbDistrict.ListIndex() == -1)
    txtAllDescro.setText(foreignDistrict);
  else
    txtAllDescro.setText(data_.colDistrict(cmbDistrict.selectedData()).sDescro);
}

void frmPersonnage::cmbGrade_Click() {
  if (cmbGrade.ListIndex() != -1) txtAllDescro.setText(data_.colGrade(cmbGrade.selectedData()).sDescro);
}

void frmPersonnage::optLang_Click(std::int16_t Index) {
  iLangSel = Index;
  prcLangDegréDescro();
}

void frmPersonnage::txtOtherLang_GotFocus() { optLang(2).setValue(true); }

void frmPersonnage::cmdLangModif_Click(std::int16_t Index) {
  TextBox& degree = txtLang(iLangSel);
  if (Index != 0 && number(degree) < highestDegree && number(txtLangRest) > 0) {
    add(degree, 1);
    add(txtLangRest, -1);
  } else if (Index == 0 && number(degree) > 0) {
    add(degree, -1);
    add(txtLangRest, 1);
  }
  prcLangDegréDescro();
}

std::string frmPersonnage::otherLanguage() const {
  return txtOtherLang.Text() == unnamedLanguage ? "" : txtOtherLang.Text();
}

void frmPersonnage::prcLangDegréDescro() {
  const double selected = number(txtLang(iLangSel));
  for (std::size_t i = 0; i < degrees.size(); ++i)
    if (selected == static_cast<double>(i)) txtAllDescro.setText(degrees[i].head + crLf + degrees[i].text);
}

}  // namespace orvane
