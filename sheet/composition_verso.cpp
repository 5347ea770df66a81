#include "editor/art_row.h"
#include "editor/frmPersonnage.h"
#include "editor/skill_row.h"
#include "sheet/composition_sides.h"
#include "sheet/equipment_text.h"
#include "sheet/frmFeuille.h"
#include "sheet/line_marker.h"
#include "sheet/prcPrintInShape.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::int16_t skillGap = 60;  // twips
constexpr std::int16_t equipmentGap = 50;
constexpr int skillColumns = 3;

std::string martialArtText(const ListItem& row, const frmPersonnage& perso) {
  std::string text = row.Text() + " :" + row.SubItems(ArtRow::Direction) + crLf;
  for (const auto& technic : perso.artOf(row).colMartialTechnic)
    if (technic->bSelected) text += technic->sName + " / ";
  return text + lineMarker + lineMarker;
}

void printMartialArts(frmFeuille& sheet, const frmPersonnage& perso) {
  std::string sTemp;
  for (const auto& row : perso.lvwMartialArt.rows())
    if (number(*row, ArtRow::Points) > 0) sTemp += martialArtText(*row, perso);
  prcPrintInShape(std::move(sTemp), sheet.pctVerso, sheet.shpMartialArt);
}

// Names and levels side by side. Each level has a line end behind it, which holds it to the right edge of its box.
class SkillPrinter {
 public:
  explicit SkillPrinter(frmFeuille& sheet) : sheet_(sheet) {}

  void add(const ListItem& row) {
    sNames_ += row.Text() + crLf;
    sValues_ += row.SubItems(SkillRow::Level) + crLf;
  }

  void endColumn(int column) {
    printSkillNames(sheet_, column, std::move(sNames_));
    prcPrintInShape(std::move(sValues_), sheet_.pctVerso, sheet_.shpValues(column), 1, skillGap);
    sNames_.clear();
    sValues_.clear();
  }

 private:
  frmFeuille& sheet_;
  std::string sNames_;
  std::string sValues_;
};

std::vector<ListItemRef> shownSkills(const frmPersonnage& perso) {
  std::vector<ListItemRef> shown;
  for (const auto& row : perso.lvwSkillGen.rows())
    if (!perso.prcSkillNotOnSheet(*row)) shown.push_back(row);
  return shown;
}

// The last column takes what is left of a division by three.
void printSkills(frmFeuille& sheet, const std::vector<ListItemRef>& skills) {
  const std::size_t rows = skills.size() / skillColumns;
  const std::size_t iColBreak1 = rows + 1;
  const std::size_t iColBreak2 = 2 * rows + 1;
  SkillPrinter printer(sheet);
  for (std::size_t iRow = 1; iRow <= skills.size(); ++iRow) {
    if (iRow == iColBreak1) printer.endColumn(0);
    if (iRow == iColBreak2) printer.endColumn(1);
    printer.add(*skills[iRow - 1]);
  }
  printer.endColumn(2);
}

// Only sworn officers have a grade, and are issued equipment.
void printEquipment(frmFeuille& sheet, const frmPersonnage& perso) {
  const bool issued = perso.cmbGrade.Enabled();
  if (issued) setFontSizes(sheet, equipmentSize);
  prcPrintInShape(issued ? equipmentText() : std::string(), sheet.pctVerso, sheet.shpMatos, 0,
                  issued ? equipmentGap : std::int16_t{0});
}

}  // namespace

void printSkillNames(frmFeuille& sheet, int column, std::string names) {
  prcPrintInShape(std::move(names), sheet.pctVerso, sheet.shpNames(column), 0, skillGap);
}

void composeVerso(frmFeuille& sheet, const frmPersonnage& perso) {
  printMartialArts(sheet, perso);
  printSkills(sheet, shownSkills(perso));
  printEquipment(sheet, perso);
}

}  // namespace orvane
