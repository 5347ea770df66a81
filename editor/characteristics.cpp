#include <algorithm>
#include <array>
#include <vector>

#include "editor/frmPersonnage.h"
#include "editor/numbers_in_controls.h"
#include "editor/pools.h"

namespace orvane {

std::vector<OptionButton::Design> frmPersonnage::characteristicDesigns() {
  return {
      {"Corps", "Corps (Cp) : cette caractéristique représente la force physique du personnage."},
      {"Sens", "Sens (Sn) : cette caractéristique représente la perception, la réaction du personnage."},
      {"Détermination", "Détermination (Dt) : cette caractéristique représente la volonté, la ténacité du personnage."},
      {"Adresse", "Adresse (Ad) : cette caractéristique représente la dextérité, la précision manuelle du personnage."},
      {"Résistance",
       "Résistance (Rt) : cette caractéristique représente l’endurance et la constitution du personnage."},
      {"Réflexe", "Réflexe (Rf) : cette caractéristique représente l’agilité et la vitesse de réaction du personnage."},
      {"Intelligence",
       "Intelligence (In) : cette caractéristique représente le raisonnement, la mémoire, la puissance de calcul du "
       "personnage."},
      {"Relation", "Relation (Rl) : cette caractéristique représente l’empathie, le charisme du personnage."},
  };
}

std::vector<Label::Design> frmPersonnage::secondaryDesigns() {
  return {
      {"Energie Vitale", "Energie Vitale (EV) est calculée en faisant la somme de Corps + Résistance"},
      {"Réaction", "Réaction (R) est calculée en faisant la somme de Sens + Réflexe"},
      {"Sang Froid", "Sang Froid (SF) est calculé en faisant la somme de Détermination + Intelligence"},
  };
}

void frmPersonnage::wireCaracteristiques() {
  using F = frmPersonnage;
  on(cmdCaractModif, &CommandButton::Click, &F::cmdCaractModif_Click);
  on(txtCaract, &TextBox::Change, &F::txtCaract_Change);
  on(optCaract, &OptionButton::Click, &F::optCaract_Click);
  on(lblSecondCaract, &Label::Click, &F::lblSecondCaract_Click);
}

void frmPersonnage::loadCaracteristiques() {
  setNumber(txtCaractRest, caractPool);
  for (auto& value : txtCaract) setNumber(value, 0);
}

void frmPersonnage::enterCaracteristiques() {
  optCaract(iCaractSel).setValue(true);
  txtAllDescro.setText(optCaract(iCaractSel).Tag());
}

void frmPersonnage::cmdCaractModif_Click(std::int16_t Index) {
  if (Index == 0 && wouldBeThirdNegative()) return;
  stepCaract(Index);
  enableSelectableCaracts();
}

bool frmPersonnage::wouldBeThirdNegative() const {
  if (number(txtCaract(iCaractSel)) != 0) return false;
  int negatives = 0;
  for (int i = 0; i < txtCaract.size(); ++i) negatives += number(txtCaract(i)) < 0;
  return negatives == negativeCaractsAllowed;
}

void frmPersonnage::stepCaract(std::int16_t Index) {
  TextBox& value = txtCaract(iCaractSel);
  if (Index == 0 && number(value) > lowestCaract) {
    add(value, -1);
    add(txtCaractRest, 1);
  } else if (Index != 0 && number(value) < highestCaract && number(txtCaractRest) > 0) {
    add(value, 1);
    add(txtCaractRest, -1);
  }
}

void frmPersonnage::enableSelectableCaracts() {
  std::vector<int> zeros;
  for (int i = 0; i < txtCaract.size(); ++i)
    if (number(txtCaract(i)) == 0) zeros.push_back(i);
  const bool twoZeros = zeros.size() == 2;
  for (int i = 0; i < optCaract.size(); ++i)
    optCaract(i).setEnabled(!twoZeros || std::find(zeros.begin(), zeros.end(), i) == zeros.end());
}

void frmPersonnage::txtCaract_Change(std::int16_t Index) {
  const std::array secondaries{&txtEV, &txtR, &txtSF};
  // Each adds up two characteristics that stand four places apart; the last two go into none.
  const int first = Index % 4;
  if (first == 3) return;
  setNumber(*secondaries[static_cast<std::size_t>(first)], number(txtCaract(first)) + number(txtCaract(first + 4)));
}

void frmPersonnage::optCaract_Click(std::int16_t Index) {
  iCaractSel = Index;
  txtAllDescro.setText(optCaract(Index).Tag());
}

void frmPersonnage::lblSecondCaract_Click(std::int16_t Index) { txtAllDescro.setText(lblSecondCaract(Index).Tag()); }

}  // namespace orvane
