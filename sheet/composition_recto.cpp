#include "editor/frmPersonnage.h"
#include "sheet/composition_sides.h"
#include "sheet/frmFeuille.h"
#include "sheet/line_marker.h"
#include "sheet/prcPrintInShape.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::size_t longestLargeDescription = 260;  // characters

std::string sizeAndWeight(const frmPersonnage& perso) {
  const auto& size = perso.txtTaille.Text();
  const auto& weight = perso.txtPoids.Text();
  return size.empty() && weight.empty() ? std::string() : size + " / " + weight;
}

void printIdentity(frmFeuille& s, const frmPersonnage& p) {
  const auto print = [&](std::string text, Shape& box) { prcPrintInShape(std::move(text), s.pctRecto, box); };
  print(p.txtJoueur.Text(), s.shpJoueur);
  print(p.txtPerso.Text(), s.shpPerso);
  print(p.txtYeux.Text(), s.shpYeux);
  print(sizeAndWeight(p), s.shpTaillePoids);
  print(p.cmbSexe.Text(), s.shpSexe);
  print(p.txtCheveux.Text(), s.shpCheveux);
  print(p.txtAge.Text(), s.shpAge);
  print(p.cmbEthnie.Text(), s.shpEthnie);
  print(p.cmbDistrict.Text(), s.shpDistrict);
  print(p.cmbProfil.Text(), s.shpProfil);
  print(p.cmbGrade.Text(), s.shpGrade);
  for (int i = 0; i < s.shpLangValue.size(); ++i) print(p.txtLang(i).Text(), s.shpLangValue(i));
  print(p.otherLanguage(), s.shpOtherLang);
  for (int i = 0; i < s.shpCaract.size(); ++i) print(p.txtCaract(i).Text(), s.shpCaract(i));
  print(p.txtEV.Text(), s.shpEV);
  print(p.txtR.Text(), s.shpR);
  print(p.txtSF.Text(), s.shpSF);
}

std::string contactLine(const clsContact& contact) {
  return contact.sName + " ( Info: " + std::to_string(contact.iInfo) + " - Réact: " + std::to_string(contact.iReact) +
         " ) " + contact.sDescro + lineMarker;
}

void printContacts(frmFeuille& sheet, const frmPersonnage& perso) {
  std::string sTemp;
  for (const auto& contact : perso.colContact)
    if (contact->iInfo > 0 || contact->iReact > 0) sTemp += contactLine(*contact);
  setFontSizes(sheet, smallSize);
  prcPrintInShape(sTemp, sheet.pctRecto, sheet.shpContact, 0, 0);
  setFontSizes(sheet, workingSize);
}

struct MutationTexts {
  std::string category;
  std::string name;
  std::string description;
};

// A drawn power stays secret until the sheet is saved.
MutationTexts mutationTexts(const frmPersonnage& perso) {
  using State = frmPersonnage::MutationState;
  if (perso.mutationState() == State::NoPower) return {"", "Aucune mutation", ""};
  const clsMutation* power = perso.selectedPower();
  if (perso.mutationState() == State::DrawnPower || !power) return {};
  return {perso.cmbMutaCateg.Text() + ' ' + perso.cmbMutaSign.Text() + ' ' + std::to_string(power->iNum), power->sName,
          power->sDescro};
}

void printMutation(frmFeuille& sheet, MutationTexts texts) {
  prcPrintInShape(texts.category, sheet.pctRecto, sheet.shpMutaCateg, 0, 0);
  prcPrintInShape(texts.name, sheet.pctRecto, sheet.shpMutaName, 0, 0);
  if (characterCount(texts.description) > longestLargeDescription) sheet.pctRecto.setFontSize(smallSize);
  prcPrintInShape(texts.description, sheet.pctRecto, sheet.shpMutaDescro, 0, 0);
  sheet.pctRecto.setFontSize(workingSize);
}

}  // namespace

void composeRecto(frmFeuille& sheet, const frmPersonnage& perso) {
  printIdentity(sheet, perso);
  printContacts(sheet, perso);
  printMutation(sheet, mutationTexts(perso));
  prcPrintInShape(std::string(perso.txtParticulSign.Text()), sheet.pctRecto, sheet.shpParticulSign);
}

}  // namespace orvane
