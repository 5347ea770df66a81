#include <algorithm>

#include "data/reference_data.h"
#include "editor/art_row.h"
#include "editor/frmPersonnage.h"
#include "editor/pools.h"
#include "editor/skill_row.h"
#include "editor/skill_rules.h"

// What the window says beyond its captions: where a step ends, what is left, why something cannot be used.
namespace orvane {
namespace {

std::string range(double lowest, double highest, const std::string& price) {
  return numberText(lowest) + " à " + numberText(highest) + ", " + price;
}

std::string contactPrice() {
  std::string prices;
  for (std::size_t value = 1; value < contactPrices.size(); ++value)
    prices += (value == 1 ? "" : value + 1 < contactPrices.size() ? ", " : " puis ") + numberText(contactPrices[value]);
  return prices + " points par pas";
}

}  // namespace

frmPersonnage::Step frmPersonnage::stepOfSkill() const {
  if (!itmSkillSel) return {};
  const auto* skill = skillOf(*itmSkillSel);
  if (!skill) return {};
  const auto limits = levelLimits(*skill, itmSkillSel->Bold());
  // A base value above the highest level leaves no way to go.
  const bool fixed = limits.lowest >= limits.highest;
  return {itmSkillSel->Text(), itmSkillSel->SubItems(SkillRow::Level), &txtSkillRest,
          fixed ? "niveau fixe" : range(limits.lowest, limits.highest, "1 point par niveau")};
}

frmPersonnage::Step frmPersonnage::stepOfArt() const {
  const auto row = lvwMartialArt.SelectedItem();
  if (!row) return {};
  return {artOf(*row).sName + " " + row->SubItems(ArtRow::Direction), row->SubItems(ArtRow::Points), &txtMartialArtRest,
          "à partir de 0, 1 point par pas"};
}

frmPersonnage::Step frmPersonnage::stepIn(int tab) const {
  switch (tab) {
    case Caracteristiques:
      return {optCaract(iCaractSel).Caption(), txtCaract(iCaractSel).Text(), &txtCaractRest,
              range(lowestCaract, highestCaract, "1 point par pas")};
    case Contacts:
      return {optContact(iContactOpt).Caption(), txtContact(iContactOpt).Text(), &txtContactRest,
              range(0, highestContactValue, contactPrice())};
    case Competences:
      return stepOfSkill();
    case ArtsMartiaux:
      return stepOfArt();
    default:
      return {iLangSel == 2 ? txtOtherLang.Text() : optLang(iLangSel).Caption(), txtLang(iLangSel).Text(), &txtLangRest,
              range(0, highestDegree, "1 point par degré")};
  }
}

std::string frmPersonnage::stepped(const Control& arrow) const {
  const Step step = stepIn(arrow.tab());
  return step.pool ? step.name + " " + step.value + ", reste " + step.pool->Text() : "";
}

std::string frmPersonnage::hint(const Control& control) const {
  const auto* button = dynamic_cast<const CommandButton*>(&control);
  const bool isArrow = button && button->picture() != CommandButton::Picture::None;
  if (isArrow && !control.Enabled()) return "Choisir d'abord un contact";
  const Control* const pools[] = {&txtLangRest, &txtCaractRest, &txtContactRest, &txtSkillRest, &txtMartialArtRest};
  if (isArrow || std::count(std::begin(pools), std::end(pools), &control) > 0) return stepIn(control.tab()).range;
  if (&control == &txtMartialTechnicRest) return "1 technique par point de cet art, à cocher dans la liste";
  if (control.Name() == optCaract(0).Name() && !control.Enabled())
    return "Tant que deux caractéristiques seulement valent 0, elles ne se choisissent plus";
  return "";
}

std::string frmPersonnage::tabHint(const Control&, int tab) const {
  if (SSTabPerso.TabEnabled(tab)) return "";
  return tab == ArtsMartiaux ? "Il faut un niveau dans la compétence Arts martiaux"
                             : "Le profil n'ouvre pas cet onglet";
}

}  // namespace orvane
