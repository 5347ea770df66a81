#include "sheet/drawn_power.h"

#include "sheet/prcPrintInShape.h"

namespace orvane {

// The first blank stands in front of the name of a power only behind a number of three digits; it fills up a shorter
// one.
std::string drawnPowerName(const std::string& entry) {
  const auto blank = entry.find(' ');
  return blank == std::string::npos ? entry : entry.substr(blank + 1);
}

void printDrawnPower(frmFeuille& sheet, const frmPersonnage& perso, const clsMutation& power) {
  const auto print = [&](std::string text, Shape& box) { prcPrintInShape(std::move(text), sheet.pctRecto, box); };
  print(perso.cmbMutaCateg.Text() + perso.cmbMutaSign.Text() + std::to_string(perso.cmbMutaName.ListIndex()),
        sheet.shpMutaCateg);
  print(drawnPowerName(perso.cmbMutaName.Text()), sheet.shpMutaName);
  print(power.sDescro, sheet.shpMutaDescro);
}

}  // namespace orvane
