#include "editor/frmPersonnage.h"
#include "sheet/frmFeuille.h"
#include "sheet/prcPrintInShape.h"
#include "sheet/sheet_files.h"
#include "surface/desktop.h"
#include "surface/failure.h"
#include "surface/text.h"

namespace orvane {
namespace {

frmPersonnage* characterOf(const frmFeuille& sheet) {
  return dynamic_cast<frmPersonnage*>(sheet.desktop().find("frmPersonnage", frmPersonnage::captionOf(sheet.Caption())));
}

// The first blank stands in front of the name of a power only behind a number of three digits; it fills up a shorter
// one.
std::string behindFirstBlank(const std::string& text) {
  const auto blank = text.find(' ');
  return blank == std::string::npos ? text : text.substr(blank + 1);
}

void tellFault(Desktop& desktop, const std::string& fault) {
  desktop.MsgBox("Le personnage n'a pas pu être sauvé." + crLf + fault, BoxStyle::Critical);
}

}  // namespace

void frmFeuille::cmdSave_Click(std::int16_t) {
  if (const auto fault = faultOfFileName(Caption()))
    return tellFault(desktop(), "Son nom ne peut pas nommer de fichier : " + *fault + ".");
  if (!confirmed()) return;
  try {
    SheetFiles files(desktop().world().files, Caption());
    files.makeFolder();
    if (files.frontExists() && !mayOverwrite()) return;
    printDrawnPower();
    files.save(pctRecto.Image().bitmap(), pctVerso.Image().bitmap());
  } catch (const Failure& failure) {
    return tellFault(desktop(), failure.what());
  }
  desktop().MsgBox(Caption() + " sauvé(e) dans ./Perso/" + Caption() + "_x.bmp.", BoxStyle::Information);
  if (auto* frmPerso = characterOf(*this)) frmPerso->Unload();
  Unload();
}

bool frmFeuille::confirmed() {
  return desktop().MsgBox(
             "Après la sauvegarde, vous ne pourrez plus modifier le personnage.\r\n"
             "Etes-vous certain de vouloir continuer ?",
             BoxStyle::OkCancel, "Sauvegarde de " + Caption()) == Answer::OK;
}

bool frmFeuille::mayOverwrite() {
  return desktop().MsgBox(
             "Un personnage avec un nom identique a déjà été créer.\r\n"
             "Voulez-vous écraser le précédent par celui-ci ?",
             BoxStyle::YesNo) == Answer::Yes;
}

void frmFeuille::printDrawnPower() {
  const auto* frmPerso = characterOf(*this);
  if (drawnPowerPrinted_ || !frmPerso || frmPerso->mutationState() != frmPersonnage::MutationState::DrawnPower) return;
  const auto* power = frmPerso->selectedPower();
  if (!power) return;
  drawnPowerPrinted_ = true;
  const auto print = [this](std::string text, Shape& box) { prcPrintInShape(std::move(text), pctRecto, box); };
  print(
      frmPerso->cmbMutaCateg.Text() + frmPerso->cmbMutaSign.Text() + std::to_string(frmPerso->cmbMutaName.ListIndex()),
      shpMutaCateg);
  print(behindFirstBlank(frmPerso->cmbMutaName.Text()), shpMutaName);
  print(power->sDescro, shpMutaDescro);
}

}  // namespace orvane
