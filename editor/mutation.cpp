#include <algorithm>
#include <array>
#include <cmath>

#include "data/reference_data.h"
#include "editor/frmPersonnage.h"
#include "editor/numbers_in_controls.h"
#include "editor/pools.h"
#include "surface/desktop.h"
#include "surface/text.h"

namespace orvane {
namespace {

struct CategoryText {
  const char* category;  // in lower case
  const char* text;
};
constexpr std::array<CategoryText, 4> categoryTexts{{
    {"alpha", "Les Alpha sont les capacités d'améliorations physiques classiques."},
    {"bêta", "Les Bêta sont des capacités apportant des facultés normalement inconnues de l'espèce humaine."},
    {"epsilon", "Les Epsilon sont des capacités d'améliorations des facultés mentales et intellectuelles."},
    {"psy", "Les Psy sont des capacités liées aux rayonnements mentaux du cerveau humain."},
}};

std::string categoryText(const std::string& category) {
  const std::string lower = lowerCase(category);
  for (const auto& known : categoryTexts)
    if (known.category == lower) return known.text;
  return category + " : catégorie de mutations inconnue.";
}

// The number filled up with blanks to three characters, a blank, the name.
std::string powerEntry(const clsMutation& power) {
  const std::string digits = std::to_string(power.iNum);
  return std::string(3 - std::min<std::size_t>(3, digits.size()), ' ') + digits + " " + power.sName;
}

std::string skillPoints(double points, const char* whatBecame) {
  return numberText(points) + " points de compétence " + whatBecame;
}

}  // namespace

void frmPersonnage::wireMutation() {
  using F = frmPersonnage;
  on(chkMuta.Click, &F::chkMuta_Click);
  on(cmbMutaCateg.Click, &F::cmbMutaCateg_Click);
  on(cmbMutaName.Click, &F::cmbMutaName_Click);
  on(cmbMutaSign.Change, &F::cmbMutaSign_Change);
  on(cmdMutaRandomChoice.Click, &F::cmdMutaRandomChoice_Click);
}

void frmPersonnage::loadMutation() {
  cmbMutaSign.setListIndex(0);
  cmbMutaSign.setVisible(false);
  lblMutaSign.setVisible(false);
  cmbMutaCateg.setListIndex(0);
}

void frmPersonnage::enterMutation() {
  const auto* power = cmbMutaName.Visible() ? selectedPower() : nullptr;
  txtAllDescro.setText(power ? power->sDescro : "");
}

frmPersonnage::MutationState frmPersonnage::mutationState() const {
  if (chkMuta.Value() == 0) return MutationState::NoPower;
  return cmdMutaRandomChoice.Enabled() ? MutationState::ChosenPower : MutationState::DrawnPower;
}

const clsMutation* frmPersonnage::selectedPower() const {
  return cmbMutaName.ListIndex() < 0 ? nullptr : &data_.colMutation(cmbMutaName.selectedData());
}

void frmPersonnage::chkMuta_Click() {
  if (iProfilChanging)
    iProfilChanging = false;
  else if (chkMuta.Value() == 1)
    takePowerBack();
  else
    giveUpPower();
}

void frmPersonnage::takePowerBack() {
  if (number(txtSkillRest) < pointsWithoutPower) {
    txtAllDescro.setText("!!! Libérer d'abord " + skillPoints(pointsWithoutPower, "!!!"));
    iProfilChanging = true;
    return chkMuta.setValue(0);
  }
  add(txtSkillRest, -pointsWithoutPower);
  desktop().MsgBox(" " + skillPoints(pointsWithoutPower, "retirés."), BoxStyle::Information);
  cmdMutaRandomChoice.setEnabled(true);
  cmbMutaCateg.setListIndex(0);
  enablePowerChoice(true);
}

void frmPersonnage::giveUpPower() {
  cmdMutaRandomChoice.setEnabled(false);
  cmbMutaCateg.setListIndex(-1);
  enablePowerChoice(false);
  add(txtSkillRest, pointsWithoutPower);
  desktop().MsgBox(" " + skillPoints(pointsWithoutPower, "ajoutés."), BoxStyle::Information);
  SSTabPerso.setTab(Competences);
}

void frmPersonnage::enablePowerChoice(bool enabled) {
  cmbMutaCateg.setEnabled(enabled);
  cmbMutaName.setEnabled(enabled);
  cmbMutaSign.setEnabled(enabled);
  txtAllDescro.setEnabled(enabled);
}

void frmPersonnage::cmbMutaCateg_Click() {
  lblCatDescro.setCaption(categoryText(cmbMutaCateg.Text()));
  prcMutaNameChange();
}

void frmPersonnage::cmbMutaSign_Change() { prcMutaNameChange(); }

void frmPersonnage::prcMutaNameChange() {
  cmbMutaName.Clear();
  for (std::int32_t i = 1; i <= data_.colMutation.Count(); ++i) {
    const auto& power = data_.colMutation(i);
    if (power.sCateg == cmbMutaCateg.Text() && power.sSign == cmbMutaSign.Text())
      cmbMutaName.AddItem(powerEntry(power), i);
  }
  if (cmbMutaName.ListCount() > 0)
    cmbMutaName.setListIndex(0);
  else
    txtAllDescro.setText("");
}

void frmPersonnage::cmbMutaName_Click() { txtAllDescro.setText(data_.colMutation(cmbMutaName.selectedData()).sDescro); }

void frmPersonnage::cmdMutaRandomChoice_Click() {
  if (cmbMutaName.ListCount() == 0) return txtAllDescro.setText("!!! Aucun pouvoir dans cette catégorie !!!");
  const auto answer = desktop().MsgBox(
      "Confirmation du choix aléatoire du pouvoir mutant dans la catégorie " + crLf + cmbMutaCateg.Text(),
      BoxStyle::OkCancel);
  if (answer == Answer::Cancel) return;
  chkMuta.setEnabled(false);
  cmdMutaRandomChoice.setEnabled(false);
  cmbMutaCateg.setEnabled(false);
  drawPower();
  add(txtSkillRest, pointsForDraw);
  desktop().MsgBox(" La mutation tirée sera tenue secrète jusqu'à la validation du personnage." + crLf +
                       skillPoints(pointsForDraw, "ajoutés."),
                   BoxStyle::Information);
  SSTabPerso.setTab(Competences);
}

// The description box is hidden meanwhile, so that nobody sees what the draw writes into it.
void frmPersonnage::drawPower() {
  cmbMutaName.setVisible(false);
  txtAllDescro.setVisible(false);
  globals_.chance.Randomize(desktop().world().clock.Timer());
  cmbMutaName.setListIndex(static_cast<int>(std::floor(globals_.chance.Rnd() * cmbMutaName.ListCount())));
  txtAllDescro.setText("");
  txtAllDescro.setVisible(true);
}

}  // namespace orvane
