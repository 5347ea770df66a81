#include "sheet/pair_save.h"

#include "sheet/recovery.h"
#include "sheet/save_folder.h"
#include "sheet/sheet_names.h"
#include "surface/failure.h"
#include "surface/system_reason.h"

namespace orvane {
namespace {

void writeFresh(Files& files, const SavedSide& side, const std::string& bytes) {
  files.write(side.fresh, bytes);
  if (!files.holds(side.fresh, bytes)) throw Failure("Le fichier " + side.fresh + " se relit autrement qu'écrit.");
}

void keepFormer(Files& files, const SavedSide& side) {
  if (files.keep(side.goal, side.former))
    files.takeRights(side.fresh, side.former);
  else
    files.write(side.nothing, {});
}

void putInPlace(Files& files, const SaveFolder& folder, const std::array<std::string, 2>& bitmaps) {
  const auto sides = folder.sides();
  for (std::size_t i = 0; i < sides.size(); ++i) writeFresh(files, sides[i], bitmaps[i]);
  for (const auto& side : sides) keepFormer(files, side);
  files.sync(folder.path());
  files.sync(sheetFolder);
  for (const auto& side : sides) files.replace(side.fresh, side.goal);
}

// Gives what it leaves behind, a sentence each with a blank in front.
std::string undo(Files& files, SaveFolder& folder) {
  try {
    if (folder.isOver()) folder.reopen();
  } catch (const std::exception&) {
    return " La nouvelle feuille est pourtant en place, et le dossier " + folder.path() + " reste à côté.";
  }
  try {
    takeBack(files, folder);
  } catch (const std::exception& failure) {
    return ' ' + sentenceOn(failure);
  }
  try {
    folder.end();
    folder.remove();
  } catch (const std::exception&) {
    return " Le dossier " + folder.path() + " n'a pas pu être retiré.";
  }
  return {};
}

}  // namespace

std::string savePair(Files& files, const std::string& name, const std::array<std::string, 2>& bitmaps) {
  SaveFolder folder = SaveFolder::make(files, name);
  try {
    putInPlace(files, folder, bitmaps);
    folder.end();
  } catch (const std::exception& failure) {
    const std::string reason = sentenceOn(failure);
    throw Failure(reason + undo(files, folder));
  }
  try {
    folder.remove();
  } catch (const std::exception& failure) {
    return "Le dossier " + folder.path() + " n'a pas pu être retiré : " + sentenceOn(failure);
  }
  return {};
}

}  // namespace orvane
