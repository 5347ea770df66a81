#include "sheet/sheet_files.h"

#include "sheet/recovery.h"
#include "sheet/sheet_names.h"
#include "surface/failure.h"

namespace orvane {
namespace {

constexpr float patience = 2;  // seconds

}  // namespace

bool SheetFiles::frontExists() const { return files_.fileExists(goalOf(name_, 0)); }

void SheetFiles::makeFolder() {
  // Another program may make it at the same time.
  if (files_.MkDir(sheetFolder))
    files_.sync("./");
  else if (!files_.directoryExists(sheetFolder))
    throw Failure("Création du dossier impossible : " + std::string(sheetFolder) + " (ce nom est déjà pris).");
}

std::unique_ptr<FolderLock> SheetFiles::takeTurn(Dialogs& dialogs) {
  while (auto turn = files_.lock(sheetFolder, patience)) {
    const Recovery recovery = recoverSaves(files_);
    remarks_ = recovery.failed;
    if (recovery.done.empty()) return turn;
    turn.reset();
    for (const auto& sentence : recovery.done) dialogs.notice(sentence);
  }
  throw Failure("Un autre programme est en train de sauver " + whoIsSaved() + " dans " + sheetFolder +
                ". Réessayez dans un instant.");
}

std::string SheetFiles::whoIsSaved() const {
  try {
    for (const auto& folder : SaveFolder::findAll(files_))
      if (!folder.isOver() && folder.name()) return "« " + *folder.name() + " »";
  } catch (const Failure&) {
    // The other one goes on meanwhile, and may take its folder away under our eyes.
  }
  return "un personnage";
}

bool SheetFiles::save(const std::array<MakeBitmap, 2>& bitmaps, const MakePaper& paper) {
  for (const auto& folder : SaveFolder::findAll(files_))
    if (!folder.isOver() && folder.name() == name_)
      throw Failure("Une sauvegarde interrompue de ce nom n'a pas pu être reprise ; elle est gardée dans " +
                    folder.path() + ".");
  const SavedPair saved = savePair(files_, name_, bitmaps, paper);
  for (const auto& remark : {saved.faultOfPaper, saved.leftover})
    if (!remark.empty()) remarks_.push_back(remark);
  return saved.faultOfPaper.empty();
}

}  // namespace orvane
