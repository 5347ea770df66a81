#include "sheet/composition.h"

#include <memory>

#include "editor/frmPersonnage.h"
#include "sheet/composition_sides.h"
#include "sheet/frmFeuille.h"
#include "surface/desktop.h"

namespace orvane {
namespace {

constexpr const char* sheetFontName = "Times New Roman";

void unloadSheetOf(Desktop& desktop, const std::string& sCharName) {
  if (Form* sheet = desktop.find("frmFeuille", sCharName)) sheet->Unload();
}

std::shared_ptr<frmFeuille> openSheet(Globals& globals, const std::string& sCharName) {
  auto sheet = std::make_shared<frmFeuille>(globals);
  sheet->Show();
  sheet->setCaption(sCharName);
  globals.frmCurrentFeuille = sheet.get();
  return sheet;
}

}  // namespace

void setFontSizes(frmFeuille& sheet, float points) {
  for (auto* picture : {&sheet.pctRecto, &sheet.pctVerso}) picture->setFontSize(points);
}

void composeSheet(Globals& globals, frmPersonnage& perso) {
  if (!perso.prcValidate()) return;
  const std::string sCharName = perso.txtPerso.Text();
  unloadSheetOf(globals.desktop, sCharName);
  const auto sheet = openSheet(globals, sCharName);
  sheet->player = perso.txtJoueur.Text();
  setFontSizes(*sheet, workingSize);
  for (auto* picture : {&sheet->pctRecto, &sheet->pctVerso}) picture->setFontName(sheetFontName);
  composeRecto(*sheet, perso);
  composeVerso(*sheet, perso);
}

}  // namespace orvane
