#include "editor/martial_restrict.h"

#include <cmath>

#include "editor/art_row.h"
#include "editor/frmPersonnage.h"
#include "surface/desktop.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::int16_t unknown = -1;

double fullGroups(std::int16_t points, std::int16_t term) { return std::floor(static_cast<double>(points) / term); }

// Offensive and defensive points of one art.
struct ArtPoints {
  std::int16_t iO = unknown;
  std::int16_t iD = unknown;

  // The place for the points of a row; null for a row of another direction.
  std::int16_t* of(const ListItem& row) {
    if (row.SubItems(ArtRow::Direction) == offensive.name) return &iO;
    if (row.SubItems(ArtRow::Direction) == defensive.name) return &iD;
    return nullptr;
  }
};

// The row that changes keeps its new points, the other row of its art gives its present ones.
void addPresentPoints(ArtPoints& points, const ListView& arts, const ListItem& Item) {
  for (const auto& row : arts.rows()) {
    if (row->SubItems(ArtRow::Position) != Item.SubItems(ArtRow::Position)) continue;
    auto* place = points.of(*row);
    if (place && *place == unknown) *place = toInt16(number(*row, ArtRow::Points));
  }
}

bool error(Globals& globals, const char* message) {
  globals.desktop.MsgBox(message, BoxStyle::Critical);
  return false;
}

}  // namespace

bool restrictionAllows(std::int16_t RO, std::int16_t RD, std::int16_t iO, std::int16_t iD) {
  const double groupsO = fullGroups(iO, RO);
  const double groupsD = fullGroups(iD, RD);
  return RO < RD ? groupsD >= groupsO : groupsO >= groupsD;
}

bool prcMartialRestrict(Globals& globals, const ListItem& Item, std::int16_t iDelta) {
  frmPersonnage& perso = *globals.frmCurrentPerso;
  const clsMartialArt& art = perso.artOf(Item);
  if (art.iRestrictO == 0 || art.iRestrictD == 0) return true;

  ArtPoints points;
  auto* changing = points.of(Item);
  if (!changing) return error(globals, "Error : type of Martial Art unknown.");
  *changing = toInt16(number(Item, ArtRow::Points) + iDelta);
  addPresentPoints(points, perso.lvwMartialArt, Item);
  if (points.iO == unknown || points.iD == unknown)
    return error(globals, "Error : Values for 2 Martial technic types not found.");

  if (restrictionAllows(art.iRestrictO, art.iRestrictD, points.iO, points.iD)) return true;
  perso.txtAllDescro.setText("!!! Vous devez tenir compte des restrictions en vigueur !!!" + crLf + crLf + art.sDescro);
  return false;
}

}  // namespace orvane
