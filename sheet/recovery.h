#pragma once

#include <string>
#include <vector>

#include "sheet/save_folder.h"

namespace orvane {

// Puts both files back as they were before a save that is not over. May be done again where it was cut short. Fails,
// once both sides were tried, with sentences on what lies where.
void takeBack(Files& files, const SaveFolder& folder);

// A French sentence for each save that dead programs left behind.
struct Recovery {
  std::vector<std::string> done;
  std::vector<std::string> failed;  // what is left stays as it is
};

// Brings the saves to an end that dead programs left behind. The lock of ./Perso is held.
Recovery recoverSaves(Files& files);

// The same at the start of a program, unless another one is saving just now; tells what was done.
void recoverSavesAtStart(Files& files, Dialogs& dialogs);

}  // namespace orvane
