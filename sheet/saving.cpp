#include <future>

#include "editor/frmPersonnage.h"
#include "sheet/drawn_power.h"
#include "sheet/frmFeuille.h"
#include "sheet/sheet_files.h"
#include "sheet/sheet_names.h"
#include "surface/desktop.h"
#include "surface/system_reason.h"
#include "surface/text.h"

namespace orvane {
namespace {

frmPersonnage* characterOf(const frmFeuille& sheet) {
  return dynamic_cast<frmPersonnage*>(sheet.desktop().find("frmPersonnage", frmPersonnage::captionOf(sheet.Caption())));
}

void tellFault(Desktop& desktop, const std::string& fault) {
  desktop.MsgBox("Le personnage n'a pas pu être sauvé." + crLf + fault, BoxStyle::Critical);
}

}  // namespace

void frmFeuille::cmdSave_Click(std::int16_t) {
  if (const auto fault = faultOfFileName(Caption()))
    return tellFault(desktop(), "Son nom ne peut pas nommer de fichier : " + *fault + ".");
  if (!confirmed()) return;
  SheetFiles files(desktop().world().files, Caption());
  const bool isSaved = triesToSave(files);
  for (const auto& remark : files.remarks()) desktop().world().dialogs.notice(remark);
  if (!isSaved) return;
  if (auto* frmPerso = characterOf(*this)) frmPerso->Unload();
  Unload();
}

bool frmFeuille::triesToSave(SheetFiles& files) {
  try {
    if (!saveFiles(files)) return false;
  } catch (const std::exception& failure) {
    if (globals_.sheetNotSaved) globals_.sheetNotSaved();
    tellFault(desktop(), sentenceOn(failure));
    return false;
  }
  desktop().MsgBox(Caption() + " sauvé(e) dans ./Perso/" + Caption() + "_x.bmp.", BoxStyle::Information);
  return true;
}

bool frmFeuille::saveFiles(SheetFiles& files) {
  files.makeFolder();
  const MakePaper paper = paperAhead();
  for (bool mayReplace = false;; mayReplace = true) {
    auto turn = files.takeTurn(desktop().world().dialogs);
    if (mayReplace || !files.frontExists()) {
      printDrawnPower();
      saveBoth(files, paper);
      return true;
    }
    // No other program waits for the answer.
    turn.reset();
    if (!mayOverwrite()) return false;
  }
}

// Made while no other program waits for its turn, unless a power is still to be printed on it. What fails is told by
// the save, in which nothing is put at risk by it.
MakePaper frmFeuille::paperAhead() {
  if (!globals_.paperOf) return nullptr;
  const std::shared_future made = std::async(std::launch::deferred, [this] { return globals_.paperOf(printed()); });
  if (!powerToPrint()) made.wait();
  return [made] { return made.get(); };
}

void frmFeuille::saveBoth(SheetFiles& files, const MakePaper& paper) {
  const bool isComplete =
      files.save({[&] { return pctRecto.Image().bitmap(); }, [&] { return pctVerso.Image().bitmap(); }}, paper);
  if (!isComplete && globals_.sheetNotSaved) globals_.sheetNotSaved();
  if (globals_.sheetSaved) globals_.sheetSaved(printed());
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

const clsMutation* frmFeuille::powerToPrint() const {
  const auto* frmPerso = characterOf(*this);
  if (drawnPowerPrinted_ || !frmPerso || frmPerso->mutationState() != frmPersonnage::MutationState::DrawnPower)
    return nullptr;
  return frmPerso->selectedPower();
}

void frmFeuille::printDrawnPower() {
  const auto* power = powerToPrint();
  if (!power) return;
  drawnPowerPrinted_ = true;
  orvane::printDrawnPower(*this, *characterOf(*this), *power);
}

}  // namespace orvane
