#include <algorithm>
#include <set>
#include <tuple>

#include "check/checks.h"
#include "check/names.h"
#include "check/printed_box.h"
#include "check/trial.h"
#include "data/record_formats.h"
#include "editor/art_row.h"
#include "editor/skill_row.h"
#include "editor/skill_rules.h"
#include "sheet/composition.h"
#include "sheet/composition_sides.h"
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
  }

  void run() {
    checkProfiles();
    checkSkillNames();
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
    if (profiles.empty()) data.colProfil.Add({});
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
    for (std::size_t i = 0; i < profiles_.size(); ++i) {
      pick(window().cmbProfil, static_cast<int>(i));
      buyNamedSkills();
      const auto names = namesOnSheet();
      for (const auto& row : window().lvwSkillGen.rows()) row->setText("…");
      auto& sheet = composed();
      checkBox(sheet, &frmFeuille::shpProfil, folder_.places.of(profilFormat.file, profiles_[i], "sName"));
      checkColumns(sheet, names, folder_.data.colProfil(profiles_[i]));
    }
  }

  // They are on the sheet of whoever buys a level of them.
  void buyNamedSkills() {
    user_.pick(window().SSTabPerso, frmPersonnage::Competences);
    for (const auto& row : window().lvwSkillGen.rows()) {
      if (!isNamedByUser(number(*row, SkillRow::Key))) continue;
      user_.row(window().lvwSkillGen, row->Index());
      std::string before;
      while (window().prcSkillNotOnSheet(*row) && before != row->SubItems(SkillRow::Level)) {
        before = row->SubItems(SkillRow::Level);
        user_.click(window().cmdSkillGenModif(1));
      }
    }
  }

  std::vector<std::string> namesOnSheet() {
    std::vector<std::string> names;
    for (const auto& row : window().lvwSkillGen.rows())
      if (!window().prcSkillNotOnSheet(*row)) names.push_back(row->Text());
    return names;
  }

  // Whether the skills fit, each on a line of its own.
  void checkColumns(frmFeuille& sheet, const std::vector<std::string>& names, const clsProfil& profile) {
    std::size_t next = 0;
    for (int column = 0; column < sheet.shpNames.size(); ++column) {
      const PrintedBox box(sheet, sheet.shpNames(column));
      next += box.lines.size();
      if (!box.lost.empty() && !std::exchange(foundTooMany_, true))
        folder_.findings.add(tooManySkills, {skillFormat.file},
                             std::to_string(names.size()) + " compétences à imprimer avec le profil " +
                                 quoted(profile.sName) +
                                 " et les compétences à nommer ne tiennent pas sur la feuille :" + " la colonne " +
                                 std::to_string(column + 1) + " est coupée avant " + quoted(names[next]));
      next += wordsOf(box.lost).size();
    }
  }

  // Each alone, for what is wrong with one of them moves or hides those behind it.
  void checkSkillNames() {
    auto& sheet = composed();
    setFontSizes(sheet, workingSize);
    std::set<std::string> measured;
    for (std::int32_t i = 1; i <= folder_.data.colSkill.Count(); ++i) {
      const auto& skill = folder_.data.colSkill(i);
      const bool isPrinted = skill.iKey != vehicleCode && skill.iKey != martialSkillKey;
      if (!isPrinted || !measured.insert(skill.sName).second) continue;
      sheet.log = {};
      printSkillNames(sheet, 0, skill.sName);
      checkSkillName(PrintedBox(sheet, sheet.shpNames(0)), skill, folder_.places.of(skillFormat.file, i, "sName"));
    }
  }

  void checkSkillName(const PrintedBox& box, const clsSkill& skill, const DataPlace& place) {
    const std::string renamed = isNamedByUser(skill.iKey) ? " ; le joueur doit la renommer" : "";
    if (box.wordTooWide)
      folder_.findings.add(wordTooWide, place,
                           quoted(box.firstLostWord()) + " est plus large que sa colonne sur la feuille," +
                               " où manquent cette compétence et toutes celles derrière" + renamed);
    else if (box.lines.size() > 1)
      folder_.findings.add(wrappedOnSheet, place,
                           quoted(skill.sName) + " prend " +
                               (box.lines.size() == 2 ? "deux" : std::to_string(box.lines.size())) +
                               " lignes sur la feuille, et les niveaux derrière ne sont plus en face" + renamed);
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
        printDrawnPower(sheet, window(), folder_.data.colMutation(power));
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
      while (findWideTechnic(art)) {
      }
      checkBox(composed(), &frmFeuille::shpMartialArt, folder_.places.of(martialArtFormat.file, art, "sName"),
               ", avec toutes ses techniques");
    }
  }

  // Finds a technique that is too wide for the box of its art and gives it another name, for it hides those behind it.
  bool findWideTechnic(std::int32_t art) {
    auto& sheet = composed();
    const PrintedBox box(sheet, sheet.shpMartialArt);
    if (!box.wordTooWide) return false;
    for (auto& technic : window().colPersoArt(art)->colMartialTechnic) {
      const auto words = wordsOf(technic->sName);
      if (!technic->bSelected || std::count(words.begin(), words.end(), box.firstLostWord()) == 0) continue;
      for (std::int32_t i = 1; i <= folder_.technics.Count(); ++i)
        if (folder_.technics(i).sName == technic->sName)
          findWide(box, folder_.places.of(martialTechnicFormat.file, i, "sName"));
      technic->sName = "…";
      return true;
    }
    return false;
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

  void findWide(const PrintedBox& box, const DataPlace& place) {
    folder_.findings.add(wordTooWide, place,
                         quoted(box.firstLostWord()) +
                             " est plus large que sa case sur la feuille et n'y est pas imprimé, ni ce qui suit");
  }

  void checkBox(frmFeuille& sheet, Shape frmFeuille::*shape, const DataPlace& place, const std::string& with = {}) {
    const PrintedBox box(sheet, sheet.*shape);
    if (box.lost.empty() || !cut_.insert({place.file, place.line, place.column}).second) return;
    const auto last = box.lastWord();
    if (box.wordTooWide)
      findWide(box, place);
    else
      folder_.findings.add(cutOnSheet, place,
                           "sur la feuille, " + (last.empty() ? "rien n'est imprimé" : "coupé après " + quoted(last)) +
                               with + " : il y manque " + quoted(box.lost));
  }

  DataFolder& folder_;
  const std::vector<std::int32_t>& profiles_;
  Trial trial_;
  User user_;
  std::set<std::tuple<std::string_view, std::int32_t, std::int32_t>> cut_;  // places
  bool foundTooMany_ = false;
};

}  // namespace

void checkSheets(DataFolder& folder, const std::vector<std::int32_t>& profiles, Pictures& pictures) {
  SheetCheck(folder, profiles, pictures).run();
}

}  // namespace orvane
