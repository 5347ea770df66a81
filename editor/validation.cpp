#include "editor/frmPersonnage.h"
#include "editor/skill_row.h"
#include "editor/skill_rules.h"
#include "editor/verdict.h"
#include "surface/desktop.h"

namespace orvane {
namespace {

constexpr double youngest = 25;
constexpr double oldest = 40;

constexpr const char* invalidText =
    "Attention, le personnage n'est pas valide.\r\n"
    "Les contraintes essentielles non valides sont indiquées en rouge.\r\n"
    "(vérifez aussi les compétences)";
constexpr const char* incompleteText =
    "Attention, le personnage est valide mais incomplet.\r\n"
    "Les contraintes accessoires non valides sont indiquées en jaune.";

bool isEmpty(const TextBox& box) { return box.Text().empty(); }
bool isUnspent(const TextBox& pool) { return number(pool) > 0; }
bool isOutOfAge(const TextBox& box) { return number(box) < youngest || number(box) > oldest; }

}  // namespace

bool frmPersonnage::prcValidate() {
  Verdict verdict;
  checkFields(verdict);
  checkSkillNames(verdict);
  if (SSTabPerso.TabEnabled(ArtsMartiaux)) checkMartialArts(verdict);
  if (verdict.essential)
    desktop().MsgBox(invalidText, BoxStyle::Exclamation);
  else if (verdict.accessory)
    desktop().MsgBox(incompleteText, BoxStyle::Information);
  return !verdict.essential;
}

void frmPersonnage::checkFields(Verdict& verdict) {
  constexpr auto essential = Constraint::Essential;
  constexpr auto accessory = Constraint::Accessory;
  constexpr auto typed = Colour::WindowBackground;
  constexpr auto pool = Colour::ButtonFace;

  verdict.mark(txtJoueur, isEmpty(txtJoueur), accessory, typed);
  verdict.mark(txtPerso, isEmpty(txtPerso), essential, typed);
  verdict.mark(txtAge, isOutOfAge(txtAge), accessory, typed);
  repairAge();
  verdict.mark(cmbDistrict, cmbDistrict.Text().empty(), accessory, typed);
  verdict.mark(txtLangRest, isUnspent(txtLangRest), accessory, pool);
  verdict.mark(txtOtherLang, number(txtLang(2)) > 0 && otherLanguage().empty(), essential, typed);
  verdict.mark(txtCaractRest, isUnspent(txtCaractRest), accessory, pool);
  verdict.mark(txtContactRest, isUnspent(txtContactRest), accessory, pool);
  verdict.mark(txtSkillRest, isUnspent(txtSkillRest), accessory, pool);
}

// Leaves the colour: the user sees what was wrong.
void frmPersonnage::repairAge() {
  if (number(txtAge) < youngest) setNumber(txtAge, youngest);
  if (number(txtAge) > oldest) setNumber(txtAge, oldest);
}

void frmPersonnage::checkSkillNames(Verdict& verdict) {
  for (const auto& row : lvwSkillGen.rows()) {
    if (!isNamedByUser(number(*row, SkillRow::Key))) continue;
    const bool broken = lacksItsName(*row);
    row->setForeColor(broken ? Colour::Red : Colour::WindowText);
    verdict.essential |= broken;
  }
}

// Bought, but not given a name of its own.
bool frmPersonnage::lacksItsName(const ListItem& row) const {
  const auto* skill = skillOf(row);
  return skill && number(row, SkillRow::Level) > skill->iStart && row.Text() == skill->sName;
}

void frmPersonnage::checkMartialArts(Verdict& verdict) {
  verdict.mark(txtMartialArtRest, isUnspent(txtMartialArtRest), Constraint::Accessory, Colour::ButtonFace);
  for (const auto& row : lvwMartialArt.rows()) {
    lvwMartialArt_ItemClick(row);  // brings txtMartialTechnicRest up to date for this row
    const bool unspent = isUnspent(txtMartialTechnicRest);
    verdict.mark(txtMartialTechnicRest, unspent, Constraint::Accessory, Colour::ButtonFace);
    if (unspent) return;
  }
}

}  // namespace orvane
