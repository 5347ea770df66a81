#include <map>
#include <set>

#include "canvas/qt_pictures.h"
#include "editor/skill_row.h"
#include "editor/skill_rules.h"
#include "sheet/frmFeuille.h"
#include "sheet/prcPrintInShape.h"
#include "tests/canvas/gui.h"
#include "tests/support/test_run.h"

namespace orvane::test {
namespace {

[[maybe_unused]] const auto* const gui = ::testing::AddGlobalTestEnvironment(new Gui);

// The shipped game, played with the real pictures and the real font.
class Game : public TestRun<LoggedDialogs, QtPictures> {
 protected:
  Game() {
    start();
    perso = newCharacter();
    user.type(perso->txtPerso, "Essai");
  }

  // Some profiles bring a skill that the user has to name before there is a sheet.
  frmFeuille& preview() {
    for (const auto& row : perso->lvwSkillGen.rows())
      if (isNamedByUser(number(*row, SkillRow::Key))) row->setText("Vingt-cinq lettres, juste");
    const frmFeuille* before = globals().frmCurrentFeuille;
    user.click(perso->cmdPrintPreview);
    EXPECT_NE(globals().frmCurrentFeuille, before);
    user.activate(*perso);
    return *globals().frmCurrentFeuille;
  }
  static std::string lostOn(const frmFeuille& sheet) {
    std::string lines;
    for (const auto& lost : sheet.log.lost) lines += lost.shape + ": " + lost.words + "\n";
    return lines;
  }

  frmPersonnage* perso = nullptr;
};

TEST_F(Game, IsReadWithoutAWord) { EXPECT_EQ(dialogs.log, Log{}); }

TEST_F(Game, EveryProfileWithEveryVehicleCanBePaidAndFitsTheSheet) {
  for (int profile = 0; profile < perso->cmbProfil.ListCount(); ++profile) {
    user.pick(perso->cmbProfil, profile);
    const int vehicles = perso->cmbVehicle.Enabled() ? perso->cmbVehicle.ListCount() : 1;
    for (int vehicle = 0; vehicle < vehicles; ++vehicle) {
      if (vehicle > 0) user.pick(perso->cmbVehicle, vehicle);
      EXPECT_EQ(dialogs.log, Log{}) << perso->cmbProfil.Text();
      EXPECT_EQ(lostOn(preview()), "") << perso->cmbProfil.Text() << ", " << perso->cmbVehicle.Text();
      dialogs.log.clear();
    }
  }
}

// Chosen powers are printed small where their description is long; a drawn one at the size of the save, which is 9
// points for a sworn character and 10 for others, long or not.
TEST_F(Game, EveryPowerFitsItsBoxes) {
  frmFeuille& sheet = preview();
  for (const float points : {9.0F, 10.0F}) {
    sheet.pctRecto.setFontSize(points);
    for (const auto& power : run.data().colMutation)
      for (auto [text, box] : {std::pair{power.sCateg + " " + power.sSign + " 123", &sheet.shpMutaCateg},
                               {power.sName, &sheet.shpMutaName},
                               {power.sDescro, &sheet.shpMutaDescro}})
        prcPrintInShape(std::move(text), sheet.pctRecto, *box);
  }
  EXPECT_EQ(lostOn(sheet), "");
}

// A name that wraps would stand on two lines beside one level, and all below would stand askew.
TEST_F(Game, EverySkillNameStandsOnOneLine) {
  frmFeuille& sheet = preview();
  sheet.pctVerso.setFontSize(10);
  for (const auto& skill : run.data().colSkill)
    for (const auto& box : sheet.shpNames)
      EXPECT_LE(sheet.pctVerso.TextWidth(" " + skill.sName), box.Width()) << skill.sName;
}

TEST_F(Game, HasWhatTheRulesTakeForGranted) {
  const auto& data = run.data();
  EXPECT_EQ(data.colSkill(18).sName, "Conduite auto");
  EXPECT_EQ(data.colSkill(16).sName, "Conduite moto");
  EXPECT_EQ(data.colSkill(44).sName, "Pilotage d'hélicoptère");
  std::set<std::int16_t> keys;
  for (const auto& skill : data.colSkill) EXPECT_TRUE(keys.insert(skill.iKey).second) << skill.sName;
  for (std::int16_t key = 56; key <= 60; ++key) EXPECT_EQ(keys.count(key), 1U) << key;
  for (const auto& profile : data.colProfil)
    for (const double key : profile.colSkillPro)
      EXPECT_EQ(keys.count(static_cast<std::int16_t>(key)), 1U) << profile.sName << ": " << key;
}

// The vehicle of the profiles is any of three skills.
TEST_F(Game, EverySkillIsInSomeProfile) {
  const auto& data = run.data();
  std::set<double> used;
  for (const int vehicle : {16, 18, 44}) used.insert(data.colSkill(vehicle).iKey);
  for (const auto& profile : data.colProfil) used.insert(profile.colSkillPro.begin(), profile.colSkillPro.end());
  for (const auto& skill : data.colSkill) EXPECT_EQ(used.count(skill.iKey), 1U) << skill.sName;
}

TEST_F(Game, NoTwoArtsAreAlike) {
  std::set<std::pair<std::int16_t, std::int16_t>> restrictions;
  std::set<std::set<std::string>> techniques;
  for (const auto& art : run.data().colMartialArt) {
    EXPECT_TRUE(restrictions.emplace(art.iRestrictO, art.iRestrictD).second) << art.sName;
    std::map<std::string, std::set<std::string>> names;
    for (int i = 1; i <= art.colMartialTechnic.Count(); ++i) {
      const auto technic = art.colMartialTechnic(i);
      names[technic->sType].insert(technic->sName);
    }
    for (const char* type : {"o", "d"}) EXPECT_TRUE(techniques.insert(names[type]).second) << art.sName << ' ' << type;
  }
}

// A drawn power is printed with its place in the list, from 0: so its number ends.
TEST_F(Game, EveryCategoryHasThirteenPowersNumberedByTheirPlace) {
  std::map<std::string, int> powers;
  for (const auto& power : run.data().colMutation) {
    const int place = powers[std::string(power.sCateg) + power.sSign]++;
    EXPECT_GE(power.iNum, 100) << power.sName;
    EXPECT_TRUE(power.sSign == "Moins" || power.iNum % 100 == place) << power.sName;
  }
  for (const std::string category : {"Alpha", "Bêta", "Epsilon", "Psy"}) {
    EXPECT_EQ(powers[category + "Plus"], 13) << category;
    EXPECT_GT(powers[category + "Moins"], 0) << category;
  }
  EXPECT_EQ(powers.size(), 8U);
}

TEST_F(Game, NoLineBreaksInFrontOfAMark) {
  for (const auto& [name, bytes] : files.contents)
    for (const char* mark : {" ;", " :", " !", " ?"})
      EXPECT_TRUE(!name.ends_with(".txt") || bytes.find(mark) == std::string::npos) << name << mark;
}

}  // namespace
}  // namespace orvane::test
