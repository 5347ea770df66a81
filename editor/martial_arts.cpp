#include <algorithm>

#include "editor/art_row.h"
#include "editor/frmPersonnage.h"
#include "editor/martial_restrict.h"

namespace orvane {
namespace {

double points(const ListItem& row) { return number(row, ArtRow::Points); }

bool belongsTo(const clsMartialTechnic& technic, const ListItem& artRow) {
  for (const auto& [name, technicType] : {offensive, defensive})
    if (technic.sType == technicType) return artRow.SubItems(ArtRow::Direction) == name;
  return false;
}

}  // namespace

clsMartialArt& frmPersonnage::artOf(const ListItem& row) const {
  return *colPersoArt(toInt16(number(row, ArtRow::Position)));
}

// Of a row of lvwMartialTechnic, which shows the techniques of the selected row of lvwMartialArt.
clsMartialTechnic& frmPersonnage::technicOf(const ListItem& row) const {
  return *artOf(*lvwMartialArt.SelectedItem()).colMartialTechnic(toInt16(number(row, TechnicRow::Position)));
}

void frmPersonnage::enterArtsMartiaux() {
  if (const ListItemRef selected = lvwMartialArt.SelectedItem()) {
    lvwMartialArt_ItemClick(selected);
  } else {
    lvwMartialTechnic.Clear();
    txtMartialTechnicRest.setText("");
    txtAllDescro.setText("");
  }
}

void frmPersonnage::cmdMartialArtModif_Click(std::int16_t Index) {
  const ListItemRef row = lvwMartialArt.SelectedItem();
  if (!row)
    txtAllDescro.setText("!!! Pas d'art martial sélectionné !!!");
  else if (Index == 0)
    removeMartialPoint(*row);
  else
    addMartialPoint(*row);
}

void frmPersonnage::removeMartialPoint(ListItem& row) {
  if (points(row) == 0) return;
  if (!prcMartialRestrict(globals_, row, -1)) return;
  if (points(row) <= lvwMartialTechnic.Count()) {
    if (number(txtMartialTechnicRest) == 0)
      return txtAllDescro.setText("!!! Retirer d'abord une technique martial pour libérer un point !!!");
    add(txtMartialTechnicRest, -1);
  }
  add(txtMartialArtRest, 1);
  add(row, ArtRow::Points, -1);
}

void frmPersonnage::addMartialPoint(ListItem& row) {
  if (number(txtMartialArtRest) == 0) return;
  if (!prcMartialRestrict(globals_, row, 1)) return;
  // A point above the number of techniques buys none.
  if (points(row) < lvwMartialTechnic.Count()) add(txtMartialTechnicRest, 1);
  add(txtMartialArtRest, -1);
  add(row, ArtRow::Points, 1);
}

void frmPersonnage::lvwMartialArt_ItemClick(ListItemRef Item) {
  Item->select();
  lvwMartialTechnic.Clear();
  const int checked = addTechnicRows(*Item);
  setNumber(txtMartialTechnicRest, std::min<double>(points(*Item), lvwMartialTechnic.Count()) - checked);
  txtAllDescro.setText(artOf(*Item).sDescro);
}

// Gives the number of checked rows.
int frmPersonnage::addTechnicRows(const ListItem& artRow) {
  auto& technics = artOf(artRow).colMartialTechnic;
  int checked = 0;
  for (std::int32_t i = 1; i <= technics.Count(); ++i) {
    if (!belongsTo(*technics(i), artRow)) continue;
    const auto row = lvwMartialTechnic.Add();
    row->setText(technics(i)->sName);
    setNumber(*row, TechnicRow::Position, i);
    row->setChecked(technics(i)->bSelected);
    checked += row->Checked();
  }
  return checked;
}

void frmPersonnage::lvwMartialTechnic_ItemClick(ListItemRef Item) { txtAllDescro.setText(technicOf(*Item).sDescro); }

void frmPersonnage::lvwMartialTechnic_ItemCheck(ListItemRef Item) {
  Item->select();
  lvwMartialTechnic_ItemClick(Item);
  if (Item->Checked() && number(txtMartialTechnicRest) <= 0) return Item->setChecked(false);
  add(txtMartialTechnicRest, Item->Checked() ? -1 : 1);
  technicOf(*Item).bSelected = Item->Checked();
}

}  // namespace orvane
