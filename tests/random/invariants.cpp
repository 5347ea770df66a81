#include "tests/random/invariants.h"

#include <algorithm>
#include <charconv>
#include <numeric>
#include <set>

#include "editor/art_row.h"
#include "editor/martial_restrict.h"
#include "editor/pools.h"
#include "editor/skill_row.h"
#include "editor/skill_rules.h"

namespace orvane::test {
namespace {

// Handlers write plain whole numbers; anything else is a broken rule of its own.
int whole(const std::string& text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size() ? value : -100000;
}
int whole(const TextBox& box) { return whole(box.Text()); }
int level(const ListItem& row) { return whole(row.SubItems(SkillRow::Level)); }
int levelAtApplication(const ListItem& row) { return whole(row.SubItems(SkillRow::StartLevel)); }
int points(const ListItem& artRow) { return whole(artRow.SubItems(ArtRow::Points)); }

class Check {
 public:
  Check(const frmPersonnage& perso, const ReferenceData& data) : perso_(perso), data_(data) {}

  std::string run() {
    characteristics();
    languages();
    contacts();
    skills();
    martialArts();
    techniques();
    mutation();
    return broken_;
  }

 private:
  void require(bool holds, const char* rule) {
    if (!holds && broken_.empty()) broken_ = rule;
  }

  void characteristics() {
    int sum = whole(perso_.txtCaractRest);
    int negatives = 0;
    for (int i = 0; i < 8; ++i) {
      const int value = whole(perso_.txtCaract(i));
      require(value >= lowestCaract && value <= highestCaract, "a characteristic lies inside its limits");
      negatives += value < 0;
      sum += value;
    }
    require(sum == caractPool, "characteristics and what is left add up to their pool");
    require(whole(perso_.txtCaractRest) >= 0, "the pool of characteristics is not negative");
    require(negatives <= negativeCaractsAllowed, "no more characteristics are negative than may be");
    const auto value = [this](int i) { return whole(perso_.txtCaract(i)); };
    require(whole(perso_.txtEV) == value(0) + value(4), "EV follows its characteristics");
    require(whole(perso_.txtR) == value(1) + value(5), "R follows its characteristics");
    require(whole(perso_.txtSF) == value(2) + value(6), "SF follows its characteristics");
  }

  void languages() {
    int sum = whole(perso_.txtLangRest);
    require(sum >= 0, "the pool of languages is not negative");
    for (int i = 0; i < 3; ++i) {
      const int degree = whole(perso_.txtLang(i));
      require(degree >= 0 && degree <= highestDegree, "a degree lies inside its limits");
      sum += degree;
    }
    require(sum == languagePool, "languages and what is left add up to their pool");
  }

  void contacts() {
    const auto paid = [](int value) {
      return std::accumulate(contactPrices.begin(), contactPrices.begin() + value + 1, 0);
    };
    std::set<std::string> names;
    int sum = whole(perso_.txtContactRest);
    for (std::int32_t i = 1; i <= perso_.colContact.Count(); ++i) {
      const auto& contact = *perso_.colContact(i);
      names.insert(contact.sName);
      // A step stands in the boxes at once and reaches the record when the focus moves on.
      const bool selected = i == perso_.iContactSel && perso_.lstContact.ListIndex() != -1;
      const int info = selected ? whole(perso_.txtContact(0)) : contact.iInfo;
      const int react = selected ? whole(perso_.txtContact(1)) : contact.iReact;
      if (std::min(info, react) < 0 || std::max(info, react) > highestContactValue)
        return require(false, "a contact value lies inside its limits");
      sum += paid(info) + paid(react);
    }
    require(sum == contactPool, "contacts and what is left add up to their pool");
    require(whole(perso_.txtContactRest) >= 0, "the pool of contacts is not negative");
    require(perso_.colContact.Count() == perso_.lstContact.ListCount(), "each contact stands in the list");
    require(static_cast<int>(names.size()) == perso_.colContact.Count(), "no two contacts share a name");
  }

  const clsSkill* skillOf(const ListItem& row) const {
    const auto key = whole(row.SubItems(SkillRow::Key));
    const auto found = std::find_if(data_.colSkill.begin(), data_.colSkill.end(),
                                    [key](const auto& skill) { return skill.iKey == key; });
    return found == data_.colSkill.end() ? nullptr : &*found;
  }

  // The pool, worked out anew from the state of the character.
  void skills() {
    double pool = skillPoolBase;
    if (perso_.chkMuta.Value() == 0) pool += pointsWithoutPower;
    if (!perso_.chkMuta.Enabled()) pool += pointsForDraw;
    for (const auto& row : perso_.lvwSkillGen.rows()) {
      const auto* skill = skillOf(*row);
      if (!skill) return require(false, "each row of the skill list has a skill");
      const bool martial = skill->iKey == martialSkillKey;
      if (row->Bold()) pool -= profileSkillCost(skill->iStart) + (martial ? martialSkillExtraCost : 0);
      pool -= level(*row) - levelAtApplication(*row);
      const auto [lowest, highest] = levelLimits(*skill, row->Bold());
      require(level(*row) >= lowest && level(*row) <= std::max(lowest, highest), "a level stays inside its limits");
      if (martial) martialLevel_ = level(*row);
    }
    require(whole(perso_.txtSkillRest) == pool, "the skill pool is what the state of the character says");
    require(pool >= 0, "the skill pool is not negative");
  }

  void martialArts() {
    int sum = whole(perso_.txtMartialArtRest);
    require(sum >= 0, "the pool of martial arts is not negative");
    const auto& rows = perso_.lvwMartialArt.rows();
    for (std::size_t i = 0; i + 1 < rows.size(); i += 2) {
      const int iO = points(*rows[i]);
      const int iD = points(*rows[i + 1]);
      sum += iO + iD;
      const auto& art = *perso_.colPersoArt(static_cast<std::int32_t>(i / 2 + 1));
      if (art.iRestrictO != 0 && art.iRestrictD != 0)
        require(restrictionAllows(art.iRestrictO, art.iRestrictD, static_cast<std::int16_t>(iO),
                                  static_cast<std::int16_t>(iD)),
                "every art keeps its restriction");
      require(taken(i / 2 + 1, "o") <= iO && taken(i / 2 + 1, "d") <= iD, "no more techniques than points");
    }
    require(sum == martialLevel_, "martial arts and their pool add up to the level of the martial skill");
    require(perso_.SSTabPerso.TabEnabled(4) == (martialLevel_ != 0), "the martial tab is open with the martial skill");
  }

  int taken(std::size_t art, std::string_view type) const {
    const auto& technics = std::as_const(perso_.colPersoArt(static_cast<std::int32_t>(art))->colMartialTechnic);
    int count = 0;
    for (std::int32_t i = 1; i <= technics.Count(); ++i) count += technics(i)->bSelected && technics(i)->sType == type;
    return count;
  }

  // Only while the tab is shown do the list and the count follow the selected row.
  void techniques() {
    if (perso_.SSTabPerso.Tab() != frmPersonnage::ArtsMartiaux || !perso_.lvwMartialArt.SelectedItem()) return;
    int checked = 0;
    for (const auto& row : perso_.lvwMartialTechnic.rows()) checked += row->Checked();
    const int rights = std::min(points(*perso_.lvwMartialArt.SelectedItem()), perso_.lvwMartialTechnic.Count());
    require(whole(perso_.txtMartialTechnicRest) == rights - checked, "the techniques left follow points and checks");
  }

  void mutation() {
    const bool chosen = perso_.chkMuta.Value() == 1 && perso_.chkMuta.Enabled() &&
                        perso_.cmdMutaRandomChoice.Enabled() && perso_.cmbMutaCateg.Enabled() &&
                        perso_.cmbMutaCateg.ListIndex() >= 0 && perso_.cmbMutaName.Visible();
    const bool none = perso_.chkMuta.Value() == 0 && perso_.chkMuta.Enabled() &&
                      !perso_.cmdMutaRandomChoice.Enabled() && !perso_.cmbMutaCateg.Enabled() &&
                      perso_.cmbMutaCateg.ListIndex() == -1 && perso_.cmbMutaName.ListCount() == 0;
    const bool drawn = perso_.chkMuta.Value() == 1 && !perso_.chkMuta.Enabled() &&
                       !perso_.cmdMutaRandomChoice.Enabled() && !perso_.cmbMutaCateg.Enabled() &&
                       perso_.cmbMutaName.ListIndex() >= 0 && !perso_.cmbMutaName.Visible();
    require(chosen + none + drawn == 1, "the mutation tab is in one of its three states");
  }

  const frmPersonnage& perso_;
  const ReferenceData& data_;
  int martialLevel_ = 0;
  std::string broken_;
};

}  // namespace

std::string brokenInvariant(const frmPersonnage& perso, const ReferenceData& data) { return Check(perso, data).run(); }

}  // namespace orvane::test
