#include "sheet/recovery.h"

#include <algorithm>

#include "sheet/sheet_names.h"
#include "surface/failure.h"
#include "surface/system_reason.h"

namespace orvane {
namespace {

void putBack(Files& files, const SavedSide& side, const std::vector<std::string>& contents) {
  const auto has = [&](const std::string& path) {
    return std::find(contents.begin(), contents.end(), path) != contents.end();
  };
  const bool untouched = has(side.fresh) && files.fileExists(side.goal);
  if (untouched) return;
  if (has(side.former)) files.replace(side.former, side.goal);
  if (has(side.nothing)) files.Kill(side.goal);
}

void putBack(Files& files, const SavedPaper& paper, const std::vector<std::string>& contents) {
  if (std::find(contents.begin(), contents.end(), paper.former) != contents.end())
    files.replace(paper.former, paper.goal);
}

template <class File>
bool isPutBack(Files& files, const SaveFolder& folder, const File& file) {
  try {
    putBack(files, file, folder.contents());
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

std::string recovered(Files& files, SaveFolder& folder) {
  const bool wasOver = folder.isOver();
  if (!wasOver) {
    takeBack(files, folder);
    folder.end();
  }
  folder.remove();
  if (wasOver) return " a été interrompue à sa fin : ses restes ont été retirés.";
  return " a été interrompue : ses fichiers sont de nouveau comme avant.";
}

}  // namespace

void takeBack(Files& files, const SaveFolder& folder) {
  if (!folder.name()) return;
  std::string doubtful;
  const auto tryTo = [&](const auto& file) {
    if (!isPutBack(files, folder, file)) doubtful += (doubtful.empty() ? "" : ", ") + file.goal;
  };
  for (const auto& side : folder.sides()) tryTo(side);
  tryTo(folder.paper());
  if (!doubtful.empty())
    throw Failure("Ces fichiers ne sont peut-être pas comme avant : " + doubtful + ". Le dossier " + folder.path() +
                  " garde de quoi les remettre au prochain démarrage.");
}

Recovery recoverSaves(Files& files) {
  Recovery recovery;
  for (auto& folder : SaveFolder::findAll(files)) {
    const std::string save = folder.name() ? "La sauvegarde de « " + *folder.name() + " »" : "Une sauvegarde";
    try {
      recovery.done.push_back(save + recovered(files, folder));
    } catch (const std::exception& failure) {
      recovery.failed.push_back(save + " a été interrompue et n'a pas pu être reprise : " + sentenceOn(failure) +
                                " Elle est gardée dans " + folder.path() + ".");
    }
  }
  return recovery;
}

void recoverSavesAtStart(Files& files, Dialogs& dialogs) {
  Recovery recovery;
  try {
    if (!files.directoryExists(sheetFolder)) return;
    const auto turn = files.lock(sheetFolder, 0);
    if (turn) recovery = recoverSaves(files);
  } catch (const std::exception& failure) {
    recovery.failed.push_back(sentenceOn(failure));
  }
  for (const auto& told : {recovery.done, recovery.failed})
    for (const auto& sentence : told) dialogs.notice(sentence);
}

}  // namespace orvane
