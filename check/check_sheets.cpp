#include <algorithm>
#include <set>
#include <tuple>
#include <unordered_map>

#include "check/checks.h"
#include "check/names.h"
#include "check/printed_box.h"
#include "check/trial.h"
#include "data/record_formats.h"
#include "editor/art_row.h"
#include "editor/skill_row.h"
#include "editor/skill_rules.h"
#include "sheet/composition.h"
#include "sheet/drawn_power.h"
#include "surface/failure.h"
#include "surface/user.h"

namespace orvane {
namespace {

class SheetCheck {
 public:
  SheetCheck(DataFolder& folder, const std::vector<std::int32_t>& profiles, Pictures& pictures)
      : folder_(folder),
        profiles_(profiles),
        trial_(dataOf(folder, profiles), pictures),
        user_(trial_.globals().desktop) {
    trial_.act([&] { window().txtPerso.setText("Personnage"); });
    for (std::int32_t i = 1; i <= folder.data.colSkill.Count(); ++i)
      skillByName_.try_emplace(folder.data.colSkill(i)->sName, i);
  }

  void run() {
    checkProfiles();
    checkEntries(window().cmbEthnie, &frmFeuille::shpEthnie, ethnieFormat.file);
    checkEntries(window().cmbDistrict, &frmFeuille::shpDistrict, districtFormat.file);
    if (pickProfile([this] { return window().cmbGrade.Enabled(); }))
      checkEntries(window().cmbGrade, &frmFeuille::shpGrade, gradeFormat.file);
    checkPowers();
    if (pickProfile([this] { return window().SSTabPerso.TabEnabled(frmPersonnage::ArtsMartiaux); })) checkArts();
    checkDrawnPowers();
  }

 private:
  // The window opens on them whatever the folder lacks.
  static ReferenceData dataOf(const DataFolder& folder, const std::vector<std::int32_t>& profiles) {
    ReferenceData data = folder.data;
    const auto least = leastData();
    if (data.colEthnie.Count() == 0) data.colEthnie = least.colEthnie;
    data.colProfil = {};
    if (data.iProfilAsserm > 0) {
      data.colProfil.Add(folder.data.colProfil(data.iProfilAsserm));
      data.iProfilAsserm = 1;
    }
    for (const auto profile : profiles) data.colProfil.Add(folder.data.colProfil(profile));
    if (profiles.empty()) data.colProfil.Add(std::make_shared<clsProfil>());
    return data;
  }

  frmPersonnage& window() { return trial_.window(); }
  void pick(ComboBox& box, int entry) {
    trial_.act([&] { box.setListIndex(entry); });
  }

  // Skills that the user has to name get another name.
  frmFeuille& composed() {
    for (const auto& row : window().lvwSkillGen.rows())
      if (isNamedByUser(number(*row, SkillRow::Key))) row->setText("…");
    trial_.act([&] { composeSheet(trial_.globals(), window()); });
    if (!trial_.globals().frmCurrentFeuille) throw Failure("aucune feuille ne peut être composée");
    return *trial_.globals().frmCurrentFeuille;
  }

  void checkProfiles() {
    auto& vehicles = window().cmbVehicle;
    for (std::size_t i = 0; i < profiles_.size(); ++i) {
      pick(window().cmbProfil, static_cast<int>(i));
      checkBox(composed(), &frmFeuille::shpProfil, folder_.places.of(profilFormat.file, profiles_[i], "sName"));
      checkSkills(*trial_.globals().frmCurrentFeuille);
      for (int vehicle = 1; vehicles.Enabled() && vehicle < vehicles.ListCount(); ++vehicle) {
        pick(vehicles, vehicle);
        checkSkills(composed());
      }
    }
  }

  // Picks the first profile that makes something so.
  template <class Condition>
  bool pickProfile(Condition isSo) {
    pick(window().cmbProfil, -1);
    for (int i = 0; i < window().cmbProfil.ListCount(); ++i) {
      pick(window().cmbProfil, i);
      if (isSo()) return true;
    }
    return false;
  }

  void checkEntries(ComboBox& box, Shape frmFeuille::*shape, std::string_view file) {
    for (int i = 0; i < box.ListCount() && folder_.wasRead(file); ++i) {
      pick(box, i);
      checkBox(composed(), shape, folder_.places.of(file, box.ItemData(i), "sName"));
    }
  }

  template <class Check>
  void eachPower(Check check) {
    for (int category = 0; category < window().cmbMutaCateg.ListCount(); ++category) {
      pick(window().cmbMutaCateg, category);
      for (int i = 0; i < window().cmbMutaName.ListCount(); ++i) {
        pick(window().cmbMutaName, i);
        check(window().cmbMutaName.ItemData(i));
      }
    }
  }

  void checkPowers() {
    eachPower([this](std::int32_t power) { checkPower(composed(), power); });
  }

  void checkPower(frmFeuille& sheet, std::int32_t power) {
    checkBox(sheet, &frmFeuille::shpMutaCateg, folder_.places.of(mutationFormat.file, power, "iNum"));
    checkBox(sheet, &frmFeuille::shpMutaName, folder_.places.of(mutationFormat.file, power, "sName"));
    checkBox(sheet, &frmFeuille::shpMutaDescro, folder_.places.of(mutationFormat.file, power, "sDescro"));
  }

  // A drawn power is printed by the save, in the size that the equipment of sworn characters leaves behind.
  void checkDrawnPowers() {
    for (int i = 0; i < window().cmbMutaCateg.ListCount() && window().cmbMutaName.ListCount() == 0; ++i)
      pick(window().cmbMutaCateg, i);
    if (window().cmbMutaName.ListCount() == 0) return;
    user_.pick(window().SSTabPerso, frmPersonnage::Mutation);
    user_.click(window().cmdMutaRandomChoice);
    for (const bool sworn : {false, true}) {
      if (!pickProfile([&] { return window().cmbGrade.Enabled() == sworn; })) continue;
      eachPower([this](std::int32_t power) {
        auto& sheet = composed();
        printDrawnPower(sheet, window(), *folder_.data.colMutation(power));
        checkPower(sheet, power);
      });
    }
  }

  void checkArts() {
    const int profile = window().cmbProfil.ListIndex();
    for (std::int32_t art = 1; art <= window().colPersoArt.Count(); ++art) {
      pick(window().cmbProfil, -1);
      pick(window().cmbProfil, profile);
      buyMartialPoints();
      takeAllTechnics(art);
      checkBox(composed(), &frmFeuille::shpMartialArt, folder_.places.of(martialArtFormat.file, art, "sName"));
    }
  }

  void buyMartialPoints() {
    user_.pick(window().SSTabPerso, frmPersonnage::Competences);
    const auto& rows = window().lvwSkillGen.rows();
    const auto skill = std::find_if(rows.begin(), rows.end(),
                                    [](const auto& row) { return number(*row, SkillRow::Key) == martialSkillKey; });
    user_.row(window().lvwSkillGen, (*skill)->Index());
    clickWhileItHelps(window().cmdSkillGenModif(1), window().txtMartialArtRest);
  }

  void takeAllTechnics(std::int32_t art) {
    user_.pick(window().SSTabPerso, frmPersonnage::ArtsMartiaux);
    const int first = 2 * art - 1;
    for (const int row : {first, first + 1, first}) {
      user_.row(window().lvwMartialArt, row);
      clickWhileItHelps(window().cmdMartialArtModif(1), window().txtMartialTechnicRest);
      for (int i = 1; i <= window().lvwMartialTechnic.Count(); ++i)
        if (!window().lvwMartialTechnic.ListItems(i)->Checked()) user_.toggle(window().lvwMartialTechnic, i);
    }
  }

  void clickWhileItHelps(CommandButton& button, const TextBox& pool) {
    std::string before;
    do {
      before = pool.Text();
      user_.click(button);
    } while (pool.Text() != before);
  }

  void checkBox(frmFeuille& sheet, Shape frmFeuille::*shape, const DataPlace& place) {
    const PrintedBox box(sheet, sheet.*shape);
    if (box.lost.empty() || !cut_.insert({place.file, place.line, place.column}).second) return;
    const auto last = box.lastWord();
    if (box.wordTooWide)
      folder_.findings.add(wordTooWide, place,
                           quoted(box.firstLostWord()) +
                               " est plus large que sa case sur la feuille et n'y est pas imprimé, ni ce qui suit");
    else
      folder_.findings.add(cutOnSheet, place,
                           "sur la feuille, " + (last.empty() ? "rien n'est imprimé" : "coupé après " + quoted(last)) +
                               " : il y manque " + quoted(box.lost));
  }

  // The words of all columns, printed or lost, are those of the names in their order.
  void checkSkills(frmFeuille& sheet) {
    std::vector<std::pair<std::string, std::string>> words;
    std::int32_t shown = 0;
    for (const auto& row : window().lvwSkillGen.rows()) {
      if (window().prcSkillNotOnSheet(*row)) continue;
      ++shown;
      for (auto& word : wordsOf(row->Text())) words.emplace_back(std::move(word), row->Text());
    }
    std::size_t next = 0;
    for (int column = 0; column < sheet.shpNames.size(); ++column) {
      const PrintedBox box(sheet, sheet.shpNames(column));
      for (const auto& line : box.lines) {
        next += wordsOf(line).size();
        if (next < words.size() && words[next].second == words[next - 1].second) findWrapped(words[next].second);
      }
      if (!box.lost.empty()) findLostSkill(box, words[next].second, column + 1, shown);
      next += wordsOf(box.lost).size();
    }
  }

  void findWrapped(const std::string& skill) {
    folder_.findings.add(
        wrappedOnSheet, placeOf(skill),
        quoted(skill) + " prend deux lignes sur la feuille, et les niveaux derrière ne sont plus en face");
  }

  void findLostSkill(const PrintedBox& box, const std::string& skill, int column, std::int32_t shown) {
    if (box.wordTooWide)
      return folder_.findings.add(wordTooWide, placeOf(skill),
                                  quoted(box.firstLostWord()) + " est plus large que sa colonne sur la feuille," +
                                      " où manquent cette compétence et toutes celles derrière");
    if (std::exchange(foundTooMany_, true)) return;
    folder_.findings.add(tooManySkills, {skillFormat.file},
                         std::to_string(shown) +
                             " compétences à imprimer ne tiennent pas sur la feuille : la colonne " +
                             std::to_string(column) + " est coupée avant " + quoted(skill));
  }

  DataPlace placeOf(const std::string& skill) const {
    const auto found = skillByName_.find(skill);
    return found == skillByName_.end() ? DataPlace{.file = skillFormat.file, .isSound = false}
                                       : folder_.places.of(skillFormat.file, found->second, "sName");
  }

  DataFolder& folder_;
  const std::vector<std::int32_t>& profiles_;
  Trial trial_;
  User user_;
  std::unordered_map<std::string, std::int32_t> skillByName_;               // positions
  std::set<std::tuple<std::string_view, std::int32_t, std::int32_t>> cut_;  // places
  bool foundTooMany_ = false;
};

}  // namespace

void checkSheets(DataFolder& folder, const std::vector<std::int32_t>& profiles, Pictures& pictures) {
  SheetCheck(folder, profiles, pictures).run();
}

}  // namespace orvane
