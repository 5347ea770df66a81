#include "sheet/pair_save.h"

#include "sheet/recovery.h"
#include "sheet/save_folder.h"
#include "sheet/sheet_names.h"
#include "surface/failure.h"
#include "surface/system_reason.h"

namespace orvane {
namespace {

void writeFresh(Files& files, const std::string& path, const std::string& bytes) {
  files.write(path, bytes);
  if (!files.holds(path, bytes)) throw Failure("Le fichier " + path + " se relit autrement qu'écrit.");
}

void keepFormer(Files& files, const SavedSide& side) {
  if (files.keep(side.goal, side.former))
    files.takeRights(side.fresh, side.former);
  else
    files.write(side.nothing, {});
}

// Tried again where it failed: a former paper that is not out of the way lies beside a new pair, should the program die
// before the new paper is there. No paper is worth the pair.
template <class Step>
bool succeeds(Step step, int tries = 2) try {
  return step();
} catch (const std::exception&) {
  return tries > 1 && succeeds(step, tries - 1);
}

bool isKept(Files& files, const SavedPaper& paper) {
  return succeeds([&] { return files.keep(paper.goal, paper.former); });
}

void takeAway(Files& files, const std::string& paper) {
  succeeds([&] {
    files.Kill(paper);
    return true;
  });
}

void putInPlace(Files& files, const SaveFolder& folder, const std::array<MakeBitmap, 2>& bitmaps, bool withPaper) {
  const auto sides = folder.sides();
  for (std::size_t i = 0; i < sides.size(); ++i) writeFresh(files, sides[i].fresh, bitmaps[i]());
  for (const auto& side : sides) keepFormer(files, side);
  const bool paperGoes = withPaper && isKept(files, folder.paper());
  files.sync(folder.path());
  files.sync(sheetFolder);
  for (const auto& side : sides) files.replace(side.fresh, side.goal);
  if (paperGoes) takeAway(files, folder.paper().goal);
}

void putInPlace(Files& files, const SavedPaper& paper, const MakePaper& make) {
  writeFresh(files, paper.fresh, make());
  files.takeRights(paper.fresh, paper.former);
  files.replace(paper.fresh, paper.goal);
  files.sync(sheetFolder);
}

bool maySeem(Files& files, const std::string& path) try {
  return files.fileExists(path);
} catch (const std::exception&) {
  return true;
}

std::string faultOfPaper(Files& files, const SaveFolder& folder, const MakePaper& make) try {
  putInPlace(files, folder.paper(), make);
  return {};
} catch (const std::exception& failure) {
  const std::string goal = folder.paper().goal;
  return "Les deux images de « " + folder.name().value() +
         " » sont sauvées, mais son PDF n'a pas pu l'être : " + sentenceOn(failure) +
         (maySeem(files, goal) ? " Ne vous fiez pas à " + goal + "." : "");
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

SavedPair savePair(Files& files, const std::string& name, const std::array<MakeBitmap, 2>& bitmaps,
                   const MakePaper& paper) {
  SaveFolder folder = SaveFolder::make(files, name);
  try {
    putInPlace(files, folder, bitmaps, paper != nullptr);
    folder.end();
  } catch (const std::exception& failure) {
    const std::string reason = sentenceOn(failure);
    throw Failure(reason + undo(files, folder));
  }
  SavedPair saved;
  if (paper) saved.faultOfPaper = faultOfPaper(files, folder, paper);
  try {
    folder.remove();
  } catch (const std::exception& failure) {
    saved.leftover = "Le dossier " + folder.path() + " n'a pas pu être retiré : " + sentenceOn(failure);
  }
  return saved;
}

}  // namespace orvane
