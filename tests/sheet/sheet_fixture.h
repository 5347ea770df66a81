#pragma once

#include <sstream>

#include "sheet/composition.h"
#include "sheet/frmFeuille.h"
#include "tests/support/run_fixture.h"

namespace orvane::test {

// A run with one open character, the civilian "Luc", who breaks no essential constraint.
class SheetRun : public RunFixture {
 protected:
  SheetRun() {
    globals.composeSheet = [this](frmPersonnage& window) { composeSheet(globals, window); };
    name(*perso, "Luc");
    choose("Civil");
    boxes();
  }

  void name(frmPersonnage& window, const std::string& text) {
    desktop.activate(window);
    user.pick(window.SSTabPerso, 0);
    user.type(window.txtPerso, text);
    user.focus(window.txtAge);
  }
  void choose(const std::string& profile) {
    user.pick(perso->SSTabPerso, 0);
    user.pick(perso->cmbProfil, profile);
  }
  // Presses the button; the new sheet, or null when none was made.
  std::shared_ptr<frmFeuille> visualise() {
    const auto before = globals.frmCurrentFeuille;
    desktop.activate(*perso);
    user.click(perso->cmdPrintPreview);
    boxes();
    if (globals.frmCurrentFeuille == before) return nullptr;
    return std::static_pointer_cast<frmFeuille>(globals.frmCurrentFeuille->shared_from_this());
  }
  // Opens a sheet without a character.
  std::shared_ptr<frmFeuille> blankSheet() {
    auto sheet = std::make_shared<frmFeuille>(globals);
    desktop.perform([&] { sheet->Show(); });
    return sheet;
  }

  std::shared_ptr<frmPersonnage> perso = std::static_pointer_cast<frmPersonnage>(open()->shared_from_this());
};

// What was printed inside a box of a picture: size and text, a line each, without the blanks that fill a line.
inline std::string printedIn(const PictureBox& picture, const Shape& box) {
  std::ostringstream lines;
  for (const auto& entry : picture.log()->printed) {
    const bool inside = entry.picture == &picture && entry.x >= box.Left() && entry.x < box.Left() + box.Width() &&
                        entry.y >= box.Top() && entry.y < box.Top() + box.Height();
    if (inside) lines << entry.points << " " << entry.text.substr(0, entry.text.find_last_not_of(' ') + 1) << "\n";
  }
  return lines.str();
}

inline std::string printedMutation(const frmFeuille& sheet) {
  return printedIn(sheet.pctRecto, sheet.shpMutaCateg) + printedIn(sheet.pctRecto, sheet.shpMutaName) +
         printedIn(sheet.pctRecto, sheet.shpMutaDescro);
}

}  // namespace orvane::test
