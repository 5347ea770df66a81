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

Effect effectOf(std::int16_t RO, std::int16_t RD) {
  const auto most = static_cast<std::int16_t>(
      levelLimits({.iKey = martialSkillKey, .sName = {}, .iStart = 0, .sDescro = {}}, true).highest);
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
  explicit MartialCheck(DataFolder& folder) : folder_(folder) {}

  void checkTypes() {
    for (std::int32_t i = 1; i <= folder_.technics.Count(); ++i) {
      const auto& type = folder_.technics(i)->sType;
      if (type != offensive.technicType && type != defensive.technicType)
        folder_.findings.add(unknownType, folder_.places.of(martialTechnicFormat.file, i, "sType"),
                             quoted(type) + " n'est ni « o » ni « d » : la technique ne se voit nulle part");
    }
  }

  void checkRestrictions() {
    for (std::int32_t i = 1; i <= folder_.data.colMartialArt.Count(); ++i) {
      const auto& art = *folder_.data.colMartialArt(i);
      if (art.iRestrictO != 0 && art.iRestrictD != 0) checkRestriction(i, art);
    }
  }

 private:
  void checkRestriction(std::int32_t position, const clsMartialArt& art) {
    const auto [known, isNew] = effects_.try_emplace({art.iRestrictO, art.iRestrictD});
    if (isNew) known->second = effectOf(art.iRestrictO, art.iRestrictD);
    const auto& [refuses, letsAttack, letsDefend] = known->second;
    const std::string rule = "la règle " + std::to_string(art.iRestrictO) + " ; " + std::to_string(art.iRestrictD);
    const auto place = folder_.places.of(martialArtFormat.file, position, "iRestrictO");
    if (!letsAttack || !letsDefend)
      folder_.findings.add(restrictionNeverMet, place,
                           rule + " ne laisse jamais placer de point " + (letsAttack ? "défensif" : "offensif"));
    else if (!refuses)
      folder_.findings.add(restrictionWithoutEffect, place, rule + " n'interdit jamais rien");
  }

  DataFolder& folder_;
  std::map<std::pair<std::int16_t, std::int16_t>, Effect> effects_;
};

}  // namespace

void checkMartialArts(DataFolder& folder) {
  MartialCheck check(folder);
  check.checkTypes();
  check.checkRestrictions();
}

}  // namespace orvane
