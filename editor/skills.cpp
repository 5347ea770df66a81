#include "data/reference_data.h"
#include "editor/frmPersonnage.h"
#include "editor/skill_row.h"
#include "editor/skill_rules.h"
#include "surface/text.h"

namespace orvane {
namespace {

double level(const ListItem& row) { return number(row, SkillRow::Level); }
double key(const ListItem& row) { return number(row, SkillRow::Key); }

}  // namespace

void frmPersonnage::wireCompetences() {
  using F = frmPersonnage;
  on(lvwSkillGen.ItemClick, &F::lvwSkillGen_ItemClick);
  on(lvwSkillGen.BeforeLabelEdit, &F::lvwSkillGen_BeforeLabelEdit);
  on(lvwSkillGen.AfterLabelEdit, &F::lvwSkillGen_AfterLabelEdit);
  on(cmdSkillGenModif, &CommandButton::Click, &F::cmdSkillGenModif_Click);
}

// Only the columns: the rows and the pool come with the profile.
void frmPersonnage::loadCompetences() {
  lvwSkillGen.clearColumnHeaders();
  lvwSkillGen.addColumnHeader(lvwSkillGen.Width() - 450 - 300 - 450);
  lvwSkillGen.addColumnHeader(450, true);
  lvwSkillGen.addColumnHeader(0);
  lvwSkillGen.addColumnHeader(450, true);
}

void frmPersonnage::enterCompetences() {
  if (!itmSkillSel) return;
  if (const auto* skill = skillOf(*itmSkillSel)) txtAllDescro.setText(skill->sDescro);
}

const clsSkill* frmPersonnage::skillOf(const ListItem& row) const {
  for (const auto& skill : data_.colSkill)
    if (skill.iKey == key(row)) return &skill;
  return nullptr;
}

void frmPersonnage::lvwSkillGen_ItemClick(ListItemRef Item) {
  Item->select();
  itmSkillSel = Item;
  if (const auto* skill = skillOf(*Item)) txtAllDescro.setText(skill->sDescro);
}

void frmPersonnage::cmdSkillGenModif_Click(std::int16_t Index) {
  if (!itmSkillSel) return txtAllDescro.setText("!!! Pas de compétence sélectionnée !!!");
  ListItem& row = *itmSkillSel;
  const auto limits = levelLimits(*skillOf(row), row.Bold());
  if (Index != 0)
    stepSkillUp(row, limits.highest);
  else if (!stepSkillDown(row, limits.lowest))
    return;
  if (key(row) == martialSkillKey) SSTabPerso.setTabEnabled(ArtsMartiaux, level(row) != 0);
}

// False when the martial-art point that the level brought is spent: the level then has to stay.
bool frmPersonnage::stepSkillDown(ListItem& row, double lowest) {
  if (level(row) <= lowest) return true;
  if (key(row) == martialSkillKey) {
    if (number(txtMartialArtRest) == 0) {
      txtAllDescro.setText("!!! Plus de point restant en arts martiaux à retirer !!!");
      return false;
    }
    add(txtMartialArtRest, -1);
  }
  add(txtSkillRest, 1);
  add(row, SkillRow::Level, -1);
  if (level(row) == lowest) row.ListSubItems(SkillRow::Level).setForeColor(Colour::Red);
  return true;
}

void frmPersonnage::stepSkillUp(ListItem& row, double highest) {
  if (level(row) >= highest || number(txtSkillRest) <= 0) return;
  add(txtSkillRest, -1);
  add(row, SkillRow::Level, 1);
  row.ListSubItems(SkillRow::Level).setForeColor(Colour::Green);
  if (key(row) == martialSkillKey) add(txtMartialArtRest, 1);
}

void frmPersonnage::lvwSkillGen_BeforeLabelEdit(bool& Cancel) {
  if (!isNamedByUser(key(*lvwSkillGen.SelectedItem()))) Cancel = true;
}

void frmPersonnage::lvwSkillGen_AfterLabelEdit(bool&, std::string& NewString) {
  const auto longest = static_cast<std::size_t>(lvwSkillGen.longestLabel());
  if (characterCount(NewString) > longest) NewString = firstCharacters(NewString, longest);
}

bool frmPersonnage::prcSkillNotOnSheet(const ListItem& itm) const {
  if (key(itm) == martialSkillKey) return true;
  return isNamedByUser(key(itm)) && level(itm) <= skillOf(itm)->iStart;
}

}  // namespace orvane
