#include <map>

#include "check/checks.h"
#include "check/names.h"
#include "data/record_formats.h"
#include "editor/art_row.h"
#include "editor/martial_restrict.h"
#include "editor/skill_rules.h"

namespace orvane {
namespace {

// What a restriction does to whoever spends points one by one.
struct Effect {
  bool refuses = false;
  bool letsAttack = false;
  bool letsDefend = false;
};

Effect effectOf(std::int16_t RO, std::int16_t RD, std::int16_t most) {
  Effect effect;
  // By defensive points: whether they can be reached with the offensive points of the row.
  std::vector<bool> reached(static_cast<std::size_t>(most) + 1);
  for (std::int16_t iO = 0; iO <= most; ++iO) {
    for (std::int16_t iD = 0; iO + iD <= most; ++iD) {
      const auto at = static_cast<std::size_t>(iD);
      const bool isNext = (iO == 0 && iD == 0) || (iO > 0 && reached[at]) || (iD > 0 && reached[at - 1]);
      const bool allowed = restrictionAllows(RO, RD, iO, iD);
      reached[at] = isNext && allowed;
      effect.refuses |= isNext && !allowed;
      effect.letsAttack |= reached[at] && iO > 0;
      effect.letsDefend |= reached[at] && iD > 0;
    }
  }
  return effect;
}

class MartialCheck {
 public:
  MartialCheck(DataFolder& folder, std::int16_t mostPoints) : folder_(folder), mostPoints_(mostPoints) {}

  void checkTypes() {
    for (std::int32_t i = 1; i <= folder_.technics.Count(); ++i) {
      const auto& type = folder_.technics(i).sType;
      if (type != offensive.technicType && type != defensive.technicType)
        folder_.findings.add(unknownType, folder_.places.of(martialTechnicFormat.file, i, "sType"),
                             quoted(type) + " n'est ni « o » ni « d » : la technique ne se voit nulle part");
    }
  }

  void checkRestrictions() {
    for (std::int32_t i = 1; i <= folder_.data.colMartialArt.Count(); ++i) {
      const auto& art = folder_.data.colMartialArt(i);
      const bool hasRule = art.iRestrictO != 0 && art.iRestrictD != 0;
      if (hasRule && findEffect(i, art)) continue;
      if (art.iRestrictO < 0)
        findNegative(i, "iRestrictO", art.iRestrictO);
      else if (art.iRestrictD < 0)
        findNegative(i, "iRestrictD", art.iRestrictD);
    }
  }

 private:
  // Whether the rule does something that no rule should.
  bool findEffect(std::int32_t position, const clsMartialArt& art) {
    const auto [known, isNew] = effects_.try_emplace({art.iRestrictO, art.iRestrictD});
    if (isNew) known->second = effectOf(art.iRestrictO, art.iRestrictD, mostPoints_);
    const auto& [refuses, letsAttack, letsDefend] = known->second;
    const std::string rule = "la règle " + std::to_string(art.iRestrictO) + " ; " + std::to_string(art.iRestrictD);
    const std::string points = ", avec " + std::to_string(mostPoints_) + " points au plus";
    const auto place = folder_.places.of(martialArtFormat.file, position, "iRestrictO");
    if (!letsAttack || !letsDefend)
      folder_.findings.add(
          restrictionNeverMet, place,
          rule + " ne laisse jamais placer de point " + (letsAttack ? "défensif" : "offensif") + points);
    else if (!refuses)
      folder_.findings.add(restrictionWithoutEffect, place, rule + " n'interdit jamais rien" + points);
    return !letsAttack || !letsDefend || !refuses;
  }

  void findNegative(std::int32_t position, std::string_view member, std::int16_t term) {
    folder_.findings.add(negativeRestriction, folder_.places.of(martialArtFormat.file, position, member),
                         std::to_string(term) + " est négatif, et un groupe est d'un point ou plus");
  }

  DataFolder& folder_;
  std::int16_t mostPoints_;  // of a character
  std::map<std::pair<std::int16_t, std::int16_t>, Effect> effects_;
};

}  // namespace

void checkMartialArts(DataFolder& folder, double martialPoints) {
  // Where no one has any, something else is wrong.
  if (martialPoints <= 0)
    martialPoints = levelLimits({.iKey = martialSkillKey, .sName = {}, .iStart = 0, .sDescro = {}}, true).highest;
  MartialCheck check(folder, static_cast<std::int16_t>(martialPoints));
  check.checkTypes();
  check.checkRestrictions();
}

}  // namespace orvane
