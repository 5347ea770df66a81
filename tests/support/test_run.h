#pragma once

#include <gtest/gtest.h>

#include "editor/frmPersonnage.h"
#include "shell/frmMain.h"
#include "shell/main_procedure.h"
#include "surface/user.h"
#include "tests/support/approved.h"
#include "tests/support/fakes.h"

namespace orvane::test {

// A run of the whole program, and a user in front of it.
template <class D = LoggedDialogs, class P = BlankPictures>
class TestRun : public ::testing::Test, protected TestWorld<D, P> {
 protected:
  explicit TestRun(const std::filesystem::path& folder = sourceFolder() / "game") { this->files = filesOf(folder); }

  void start() { run.Main(); }
  Globals& globals() { return run.globals(); }
  // Opens a character window by the menu; null when it closed itself.
  frmPersonnage* newCharacter() {
    user.click(run.mainWindow()->mnuFileNewPJ);
    return dynamic_cast<frmPersonnage*>(run.desktop().activeChild());
  }

  orvane::Run run{this->world()};
  User user{run.desktop()};
};

// A game that is small enough to compute by hand.
class SmallRun : public TestRun<> {
 protected:
  SmallRun() : TestRun(sourceFolder() / "tests/scripts/small_game") { start(); }
};

}  // namespace orvane::test
