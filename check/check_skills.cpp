#include "check/checks.h"
#include "check/names.h"
#include "check/skill_index.h"
#include "data/record_formats.h"
#include "editor/skill_rules.h"
#include "surface/numbers.h"

namespace orvane {
namespace {

class SkillCheck {
 public:
  SkillCheck(DataFolder& folder, const Offer& offer)
      : folder_(folder),
        data_(folder.data),
        vehicles_(offer.vehicles),
        index_(folder.data),
        isUsed_(static_cast<std::size_t>(folder.data.colSkill.Count()) + 1) {}

  void run() {
    for (const auto& vehicle : vehicles_) checkPosition(vehicle);
    for (std::int32_t i = 1; i <= data_.colProfil.Count(); ++i) checkKeys(i);
    for (std::int32_t i = 1; i <= data_.colSkill.Count(); ++i) checkSkill(i);
  }

 private:
  void checkPosition(const Vehicle& vehicle) {
    const auto& skills = data_.colSkill;
    const std::string what =
        "le véhicule " + quoted(vehicle.name) + " donne la compétence n° " + std::to_string(vehicle.skill) + ", ";
    if (vehicle.skill > skills.Count())
      return folder_.findings.add(vehiclePosition, {skillFormat.file},
                                  what + "et il n'y en a que " + std::to_string(skills.Count()));
    const auto& given = skills(vehicle.skill)->sName;
    if (isAbout(given, vehicle)) return;
    for (std::int32_t i = 1; i <= skills.Count(); ++i)
      if (isAbout(skills(i)->sName, vehicle))
        return folder_.findings.add(
            vehiclePosition, nameOfSkill(vehicle.skill),
            what + quoted(given) + " : " + quoted(skills(i)->sName) + " est la n° " + std::to_string(i));
  }

  void checkKeys(std::int32_t profile) {
    std::int32_t nth = 0;
    for (const double key : data_.colProfil(profile)->colSkillPro) {
      ++nth;
      for (const auto skill : index_.positionsOf(key)) use(skill);
      if (key == vehicleCode)
        for (const auto& vehicle : vehicles_) use(vehicle.skill);
      else if (index_.positionsOf(key).empty())
        folder_.findings.add(unknownSkill, folder_.places.of(profilFormat.file, profile, "colSkillPro", nth),
                             "aucune compétence n'a la clé " + numberText(key));
    }
  }

  void use(std::int32_t skill) {
    if (skill <= data_.colSkill.Count()) isUsed_[static_cast<std::size_t>(skill)] = true;
  }

  void checkSkill(std::int32_t position) {
    const auto& skill = *data_.colSkill(position);
    const auto limits = levelLimits(skill, false);
    if (limits.lowest > limits.highest)
      folder_.findings.add(baseTooHigh, folder_.places.of(skillFormat.file, position, "iStart"),
                           quoted(skill.sName) + " part de " + numberText(limits.lowest) +
                               ", au-dessus du plus haut niveau à atteindre hors profil, " +
                               numberText(limits.highest));
    if (!folder_.places.of(skillFormat.file, position, "iKey").isSound) return;
    if (skill.iKey == vehicleCode)
      folder_.findings.add(unreachableSkill, nameOfSkill(position),
                           quoted(skill.sName) + " a la clé 101 du véhicule de prédilection et n'est jamais proposée");
    else if (!isUsed_[static_cast<std::size_t>(position)] && data_.colProfil.Count() > 0)
      folder_.findings.add(unusedSkill, nameOfSkill(position), quoted(skill.sName) + " n'est dans aucun profil");
  }

  DataPlace nameOfSkill(std::int32_t position) const { return folder_.places.of(skillFormat.file, position, "sName"); }

  DataFolder& folder_;
  const ReferenceData& data_;
  const std::vector<Vehicle>& vehicles_;
  const SkillIndex index_;
  std::vector<bool> isUsed_;  // by the position of a skill: some profile names it
};

}  // namespace

void checkSkills(DataFolder& folder, const Offer& offer) {
  if (folder.data.colSkill.Count() > 0) SkillCheck(folder, offer).run();
}

}  // namespace orvane
