#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "canvas/qt_pictures.h"
#include "editor/frmPersonnage.h"
#include "editor/skill_row.h"
#include "editor/skill_rules.h"
#include "sheet/frmFeuille.h"
#include "shell/frmMain.h"
#include "shell/main_procedure.h"
#include "surface/user.h"
#include "tests/canvas/gui.h"
#include "tests/support/fakes.h"
#include "tests/support/game_files.h"
#include "tests/support/logged_dialogs.h"

namespace orvane::test {
namespace {

[[maybe_unused]] const auto* const gui = ::testing::AddGlobalTestEnvironment(new Gui);

// The shipped game, played with the real pictures and the real font.
class Game : public ::testing::Test {
 protected:
  Game() {
    run.Main();
    user.click(run.mainWindow()->mnuFileNewPJ);
    perso = run.globals().frmCurrentPerso;
    user.type(perso->txtPerso, "Essai");
  }

  // Some profiles bring a skill that the user has to name before there is a sheet.
  void nameFreeSkills() {
    for (const auto& row : perso->lvwSkillGen.rows())
      if (isNamedByUser(number(*row, SkillRow::Key))) row->setText("Vingt-cinq lettres, juste");
  }
  frmFeuille& preview() {
    nameFreeSkills();
    const frmFeuille* before = run.globals().frmCurrentFeuille;
    user.click(perso->cmdPrintPreview);
    frmFeuille& sheet = *run.globals().frmCurrentFeuille;
    EXPECT_NE(&sheet, before);
    user.activate(*perso);
    return sheet;
  }
  void forEachEntry(ComboBox& box, const std::function<void()>& act) {
    for (int i = 0; i < box.ListCount(); ++i) {
      user.pick(box, i);
      act();
    }
  }

  LoggedDialogs dialogs;
  FakeClock clock;
  NoSettings settings;
  MemoryFiles files = gameFiles();
  QtPictures pictures;
  orvane::Run run{World{dialogs, clock, settings, files, pictures}};
  User user{run.desktop()};
  frmPersonnage* perso = nullptr;
};

std::string lostOn(const frmFeuille& sheet) {
  std::string lines;
  for (const auto& lost : sheet.log.lost) lines += lost.shape + ": " + lost.words + "\n";
  return lines;
}

TEST_F(Game, IsReadWithoutAWord) {
  EXPECT_EQ(dialogs.log, std::vector<std::string>{});
  const auto& data = run.data();
  EXPECT_GE(data.colSkill.Count(), 60);
  EXPECT_GE(data.colProfil.Count(), 13);
  EXPECT_EQ(data.colGrade.Count(), 5);
  EXPECT_GE(data.colEthnie.Count(), 10);
  EXPECT_GE(data.colDistrict.Count(), 20);
  EXPECT_GE(data.colMutation.Count(), 60);
  EXPECT_GE(data.colMartialArt.Count(), 10);
}

TEST_F(Game, EveryProfileWithEveryVehicleCanBePaidAndFitsTheSheet) {
  forEachEntry(perso->cmbProfil, [this] {
    const int vehicles = perso->cmbVehicle.Enabled() ? perso->cmbVehicle.ListCount() : 1;
    for (int vehicle = 0; vehicle < vehicles; ++vehicle) {
      if (vehicle > 0) user.pick(perso->cmbVehicle, vehicle);
      EXPECT_EQ(dialogs.log, std::vector<std::string>{}) << perso->cmbProfil.Text();
      EXPECT_EQ(lostOn(preview()), "") << perso->cmbProfil.Text() << ", " << perso->cmbVehicle.Text();
      dialogs.log.clear();
    }
  });
}

TEST_F(Game, EveryChosenPowerFitsItsBoxes) {
  user.pick(perso->SSTabPerso, frmPersonnage::Mutation);
  int powers = 0;
  forEachEntry(perso->cmbMutaCateg, [&] {
    forEachEntry(perso->cmbMutaName, [&] {
      ++powers;
      EXPECT_EQ(lostOn(preview()), "") << perso->cmbMutaName.Text();
    });
  });
  EXPECT_GE(powers, 36);
}

// A drawn power is printed at the save, a sworn character's at 9 points, others' at 10, long or not.
TEST_F(Game, EveryDrawnPowerFitsItsBoxesAtTheSave) {
  const auto saveWith = [this](const std::string& profile, int category, int power) {
    user.click(run.mainWindow()->mnuFileNewPJ);
    perso = run.globals().frmCurrentPerso;
    user.type(perso->txtPerso, "Tirage");
    user.pick(perso->cmbProfil, profile);
    user.pick(perso->SSTabPerso, frmPersonnage::Mutation);
    user.pick(perso->cmbMutaCateg, category);
    user.click(perso->cmdMutaRandomChoice);
    const int powers = perso->cmbMutaName.ListCount();
    perso->cmbMutaName.setListIndex(power);
    nameFreeSkills();
    user.click(perso->cmdPrintPreview);
    const auto sheet = std::static_pointer_cast<frmFeuille>(run.globals().frmCurrentFeuille->shared_from_this());
    dialogs.answers = {Answer::OK, Answer::Yes};
    const std::size_t printed = sheet->log.printed.size();
    user.click(sheet->cmdSave(0));
    EXPECT_GT(sheet->log.printed.size(), printed);
    EXPECT_EQ(lostOn(*sheet), "") << profile << ", category " << category << ", power " << power;
    return powers;
  };
  for (const char* profile : {"Agent de patrouille", "Journaliste"})
    for (int category = 0; category < 4; ++category)
      for (int power = 0, powers = 1; power < powers; ++power) {
        powers = saveWith(profile, category, power);
        if (HasFailure()) return;
      }
}

// A name that wraps would stand on two lines beside one level, and all below would stand askew.
TEST_F(Game, EverySkillNameStandsOnOneLine) {
  frmFeuille& sheet = preview();
  sheet.pctVerso.setFontSize(10);
  for (const auto& skill : run.data().colSkill)
    EXPECT_LE(sheet.pctVerso.TextWidth(" " + skill->sName), sheet.shpNames(0).Width()) << skill->sName;
  for (int i = 0; i < sheet.shpNames.size(); ++i) EXPECT_EQ(sheet.shpNames(i).Width(), sheet.shpNames(0).Width());
}

TEST_F(Game, HasWhatTheRulesTakeForGranted) {
  const auto& data = run.data();
  EXPECT_EQ(data.colSkill(18)->sName, "Conduite auto");
  EXPECT_EQ(data.colSkill(16)->sName, "Conduite moto");
  EXPECT_EQ(data.colSkill(44)->sName, "Pilotage d'hélicoptère");
  std::set<std::int16_t> keys;
  for (const auto& skill : data.colSkill) EXPECT_TRUE(keys.insert(skill->iKey).second) << skill->sName;
  for (std::int16_t key = 56; key <= 60; ++key) EXPECT_EQ(keys.count(key), 1U) << key;
  for (const auto& profile : data.colProfil)
    for (const double key : profile->colSkillPro)
      EXPECT_EQ(keys.count(static_cast<std::int16_t>(key)), 1U) << profile->sName << ": " << key;
  std::map<std::string, int> powers;
  for (const auto& power : data.colMutation) ++powers[power->sCateg + power->sSign];
  for (const std::string category : {"Alpha", "Bêta", "Epsilon", "Psy"})
    for (const char* sign : {"Plus", "Moins"}) EXPECT_GT(powers[category + sign], 0) << category << sign;
  EXPECT_EQ(powers.size(), 8U);
}

}  // namespace
}  // namespace orvane::test
