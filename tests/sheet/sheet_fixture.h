#pragma once

#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <sstream>
#include <string>

#include "data/reference_data.h"
#include "editor/frmPersonnage.h"
#include "sheet/composition.h"
#include "sheet/frmFeuille.h"
#include "surface/desktop.h"
#include "surface/user.h"
#include "tests/sheet/letter_pictures.h"
#include "tests/support/fakes.h"
#include "tests/support/logged_dialogs.h"
#include "tests/support/memory_files.h"

namespace orvane::test {

// A profile with and one without a grade, one skill, one martial art, two powers of a category.
inline ReferenceData tinyData() {
  ReferenceData data;
  data.colEthnie.Add(std::make_shared<clsEthnie>(clsEthnie{"Nordique", 3}));
  data.colGrade.Add(std::make_shared<clsGrade>(clsGrade{1500, "Officier", "Commande."}));
  for (const bool sworn : {false, true}) {
    auto profile = std::make_shared<clsProfil>();
    profile->sName = sworn ? "Agent" : "Civil";
    profile->bAsserm = sworn;
    profile->colSkillPro.Add(1);
    data.colProfil.Add(profile);
  }
  auto swornSkills = std::make_shared<clsProfil>();
  swornSkills->sName = "Assermenté";
  data.colProfil.Add(swornSkills);
  data.iProfilAsserm = 3;
  data.colSkill.Add(std::make_shared<clsSkill>(clsSkill{1, "Filature", 0, "Suivre."}));
  data.colSkill.Add(std::make_shared<clsSkill>(clsSkill{58, "Arts martiaux", 0, "Se battre."}));
  data.colMutation.Add(std::make_shared<clsMutation>(clsMutation{"Alpha", "Plus", "Bond", "Saute haut.", 7}));
  data.colMutation.Add(std::make_shared<clsMutation>(clsMutation{"Alpha", "Plus", "Peau épaisse", "Résiste.", 123}));
  auto art = std::make_shared<clsMartialArt>();
  art->sName = "Boxe";
  for (const char* name : {"Crochet", "Garde", "Direct"}) {
    auto technic = std::make_shared<clsMartialTechnic>();
    technic->sName = name;
    art->colMartialTechnic.Add(technic);
  }
  data.colMartialArt.Add(art);
  return data;
}

// A run on the tiny data with one open character, "Luc", that breaks no essential constraint.
template <class F>
class SheetRun : public ::testing::Test {
 protected:
  SheetRun() {
    globals.composeSheet = [this](frmPersonnage& window) { composeSheet(globals, window); };
    desktop.perform([&] { perso->Show(); });
    name(*perso, "Luc");
    dialogs.log.clear();
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
  frmFeuille* visualise() {
    const auto before = globals.frmCurrentFeuille;
    user.click(perso->cmdPrintPreview);
    return globals.frmCurrentFeuille == before ? nullptr : globals.frmCurrentFeuille;
  }
  ListItemRef skill(const std::string& text, const std::string& level, const std::string& key = "1") {
    const auto row = perso->lvwSkillGen.Add();
    row->setText(text);
    row->setSubItems(1, level);
    row->setSubItems(2, key);
    return row;
  }

  LoggedDialogs dialogs;
  FakeClock clock;
  NoSettings settings;
  F files;
  LetterPictures pictures;
  ReferenceData data = tinyData();
  Desktop desktop{World{dialogs, clock, settings, files, pictures}};
  Globals globals{desktop, data};
  User user{desktop};
  std::shared_ptr<frmPersonnage> perso = std::make_shared<frmPersonnage>(globals);
};

// What was printed on a picture: place, size and text, a line each, without the blanks that fill a line.
inline std::string printed(const PictureBox& picture) {
  std::ostringstream lines;
  for (const auto& entry : picture.log()->printed) {
    if (entry.picture != &picture) continue;
    lines << entry.x << " " << entry.y << " " << entry.points << " "
          << entry.text.substr(0, entry.text.find_last_not_of(' ') + 1) << "\n";
  }
  return lines.str();
}

// The lines of `printed` that start inside a box.
inline std::string printedIn(const PictureBox& picture, const Shape& box) {
  std::ostringstream lines;
  for (const auto& entry : picture.log()->printed) {
    const bool inside = entry.picture == &picture && entry.x >= box.Left() && entry.x < box.Left() + box.Width() &&
                        entry.y >= box.Top() && entry.y < box.Top() + box.Height();
    if (inside) lines << entry.points << " " << entry.text.substr(0, entry.text.find_last_not_of(' ') + 1) << "\n";
  }
  return lines.str();
}

}  // namespace orvane::test
