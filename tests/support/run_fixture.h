#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "editor/frmPersonnage.h"
#include "surface/user.h"
#include "tests/support/fakes.h"
#include "tests/support/logged_dialogs.h"
#include "tests/support/memory_files.h"
#include "tests/support/small_game.h"

namespace orvane::test {

// A run without a screen on the small game, and a user in front of it.
class RunFixture : public ::testing::Test {
 protected:
  RunFixture() { globals.iContactCost = contactPrices; }

  // Opens a character window as the menu does; null when it closed itself.
  frmPersonnage* open() {
    auto window = std::make_shared<frmPersonnage>(globals);
    globals.frmCurrentPerso = window.get();
    desktop.perform([&] { window->Show(); });
    return window->isLoaded() ? window.get() : nullptr;
  }
  // All boxes since the last call, a line each.
  std::string boxes() {
    std::string lines;
    for (const auto& line : dialogs.log) lines += line + "\n";
    dialogs.log.clear();
    return lines;
  }

  LoggedDialogs dialogs;
  FakeClock clock;
  NoSettings settings;
  MemoryFiles files;
  BlankPictures pictures;
  ReferenceData data = smallGame();
  Desktop desktop{World{dialogs, clock, settings, files, pictures}};
  Globals globals{desktop, data};
  User user{desktop};
};

}  // namespace orvane::test
