#include <algorithm>

#include "data/reference_data.h"
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

void addRow(ListView& arts, const std::string& name, const Direction& direction, std::int32_t position) {
  const auto row = arts.Add();
  row->setText(name);
  row->setSubItems(ArtRow::Direction, direction.name);
  setNumber(*row, ArtRow::Points, 0);
  setNumber(*row, ArtRow::Position, position);
}

}  // namespace

void frmPersonnage::wireArtsMartiaux() {
  using F = frmPersonnage;
  on(cmdMartialArtModif, &CommandButton::Click, &F::cmdMartialArtModif_Click);
  on(lvwMartialArt.ItemClick, &F::lvwMartialArt_ItemClick);
  on(lvwMartialTechnic.ItemClick, &F::lvwMartialTechnic_ItemClick);
  on(lvwMartialTechnic.ItemCheck, &F::lvwMartialTechnic_ItemCheck);
}

void frmPersonnage::loadArtsMartiaux() {
  setMartialColumns();
  for (const auto& art : data_.colMartialArt) colPersoArt.Add(art.Duplicate());
  for (std::int32_t i = 1; i <= colPersoArt.Count(); ++i) {
    addRow(lvwMartialArt, colPersoArt(i)->sName, offensive, i);
    addRow(lvwMartialArt, "", defensive, i);
  }
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

void frmPersonnage::enterArtsMartiaux() {
  if (const ListItemRef selected = lvwMartialArt.SelectedItem()) {
    lvwMartialArt_ItemClick(selected);
  } else {
    lvwMartialTechnic.Clear();
    txtMartialTechnicRest.setText("");
    txtAllDescro.setText("");
  }
}

clsMartialArt& frmPersonnage::artOf(const ListItem& row) const {
  return *colPersoArt(toInt16(number(row, ArtRow::Position)));
}

// Of a row of lvwMartialTechnic, which shows the techniques of the selected row of lvwMartialArt.
clsMartialTechnic& frmPersonnage::technicOf(const ListItem& row) const {
  return *artOf(*lvwMartialArt.SelectedItem()).colMartialTechnic(toInt16(number(row, TechnicRow::Position)));
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
