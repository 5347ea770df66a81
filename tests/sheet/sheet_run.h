#pragma once

#include "sheet/frmFeuille.h"
#include "tests/support/test_run.h"

namespace orvane::test {

// A run with one open character, the civilian "Luc", who breaks no essential constraint.
class SheetRun : public SmallRun {
 protected:
  SheetRun() { name(*perso, "Luc"); }

  void name(frmPersonnage& window, const std::string& text) {
    user.activate(window);
    user.type(window.txtPerso, text);
    user.pick(window.cmbProfil, "Civil");
  }
  // Presses the button for a new sheet.
  std::shared_ptr<frmFeuille> visualise(frmPersonnage& window) {
    user.activate(window);
    user.click(window.cmdPrintPreview);
    dialogs.log.clear();
    return std::static_pointer_cast<frmFeuille>(globals().frmCurrentFeuille->shared_from_this());
  }
  // Opens a sheet without a character.
  std::shared_ptr<frmFeuille> blankSheet() {
    auto sheet = std::make_shared<frmFeuille>(globals());
    run.desktop().perform([&] { sheet->Show(); });
    return sheet;
  }

  std::shared_ptr<frmPersonnage> perso = std::static_pointer_cast<frmPersonnage>(newCharacter()->shared_from_this());
};

}  // namespace orvane::test
