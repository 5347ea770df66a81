#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <map>
#include <set>

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
  SkillCheck(DataFolder& folder, Offer& offer)
      : folder_(folder),
        data_(folder.data),
        vehicles_(offer.vehicles),
        index_(folder),
        isUsed_(static_cast<std::size_t>(folder.data.colSkill.Count()) + 1) {}

  void run() {
    for (std::int32_t i = 1; i <= data_.colProfil.Count(); ++i) checkKeys(i);
    checkPositions();
    findUnknownSkills();
    for (std::int32_t i = 1; i <= data_.colSkill.Count(); ++i) checkSkill(i);
  }

 private:
  // A vehicle whose skill stands elsewhere.
  struct Moved {
    Vehicle vehicle;
    std::int32_t now;  // position in colSkill
  };

  void checkPositions() {
    std::map<std::int32_t, std::vector<Moved>> moved;  // by the distance
    for (auto& vehicle : vehicles_) {
      const auto now = positionOf(vehicle);
      vehicle.isInPlace = now == vehicle.skill;
      if (vehicle.isInPlace) continue;
      use(now);  // as it will be
      moved[now - vehicle.skill].push_back({vehicle, now});
    }
    for (const auto& [distance, vehicles] : moved)
      if (!isConsequence(distance, vehicles, moved) && distance != doubledBefore(vehicles)) findMoved(vehicles);
  }

  // Where the skill of a vehicle stands; its own position where nothing is wrong with it, or that is found at once.
  std::int32_t positionOf(const Vehicle& vehicle) {
    const auto& skills = data_.colSkill;
    if (vehicle.skill > skills.Count()) {
      folder_.findings.add(vehiclePosition, {skillFormat.file},
                           given(vehicle) + ", et il n'y en a que " + std::to_string(skills.Count()));
      return vehicle.skill;
    }
    const auto& skill = skills(vehicle.skill);
    if (skill.iKey == vehicleCode)
      folder_.findings.add(vehiclePosition, nameOfSkill(vehicle.skill),
                           given(vehicle) + ", " + quoted(skill.sName) + ", dont la clé 101 n'est jamais proposée");
    if (skill.iKey == vehicleCode || isAbout(skill.sName, vehicle)) return vehicle.skill;
    for (std::int32_t i = 1; i <= skills.Count(); ++i)
      if (isAbout(skills(i).sName, vehicle)) return i;
    return vehicle.skill;
  }

  // A line taken from one side of a skill to the other moves it by one; so does the skill of another vehicle.
  static bool isConsequence(std::int32_t distance, const std::vector<Moved>& vehicles,
                            const std::map<std::int32_t, std::vector<Moved>>& moved) {
    for (const auto& [other, cause] : moved) {
      const auto ends = std::minmax(cause.front().vehicle.skill, cause.front().now);
      const auto isBetween = [&](const Moved& one) {
        return ends.first < one.vehicle.skill && one.vehicle.skill < ends.second;
      };
      if (distance == (other > 0 ? -1 : 1) && std::abs(other) > 1 && cause.size() == 1 &&
          std::all_of(vehicles.begin(), vehicles.end(), isBetween))
        return true;
    }
    return false;
  }

  // How many lines before the skills of vehicles stand there a second time, which is found as such.
  std::int32_t doubledBefore(const std::vector<Moved>& vehicles) const {
    std::set<std::pair<std::int16_t, std::string_view>> known;
    std::int32_t doubled = 0;
    for (std::int32_t i = 1; i < vehicles.front().now; ++i)
      doubled += !known.emplace(data_.colSkill(i).iKey, data_.colSkill(i).sName).second;
    return doubled;
  }

  void findMoved(const std::vector<Moved>& vehicles) {
    std::vector<std::string> texts;
    for (const auto& [vehicle, now] : vehicles)
      texts.push_back(given(vehicle) + ", " + quoted(data_.colSkill(vehicle.skill).sName) + " : " +
                      quoted(data_.colSkill(now).sName) + " est la n° " + std::to_string(now));
    const auto first = std::min_element(vehicles.begin(), vehicles.end(),
                                        [](const auto& a, const auto& b) { return a.vehicle.skill < b.vehicle.skill; });
    folder_.findings.add(vehiclePosition, nameOfSkill(first->vehicle.skill), listed(texts) + lostBefore(*first));
  }

  // The line that has gone missing before a skill which stands one place before its own: the key that profiles want and
  // nobody bears, if it fits between the others there. That is then no finding of its own.
  std::string lostBefore(const Moved& first) {
    if (first.now != first.vehicle.skill - 1) return {};
    for (std::int32_t i = 1; i < first.now; ++i)
      for (const int beside : {1, -1})
        if (const auto lost = unknown_.find(data_.colSkill(i).iKey + beside); lost != unknown_.end()) {
          const auto places = unknown_.extract(lost).mapped();
          return " ; il manque sans doute la ligne de clé " + numberText(data_.colSkill(i).iKey + beside) +
                 ", citée dans profil.txt à la ligne " + std::to_string(places.front().line) + alsoCited(places);
        }
    return {};
  }

  static std::string given(const Vehicle& vehicle) {
    return "le véhicule " + quoted(vehicle.name) + " donne la compétence n° " + std::to_string(vehicle.skill);
  }

  void checkKeys(std::int32_t profile) {
    std::int32_t nth = 0;
    for (const double key : data_.colProfil(profile).colSkillPro) {
      ++nth;
      for (const auto skill : index_.positionsOf(key)) use(skill);
      if (key == vehicleCode)
        for (const auto& vehicle : vehicles_) use(vehicle.skill);
      else if (index_.positionsOf(key).empty() && !folder_.isDoubtful(skillFormat.file, key) && !isFixed(key))
        if (const auto place = folder_.places.of(profilFormat.file, profile, "colSkillPro", nth); place.isSound)
          unknown_[key].push_back(place);
    }
  }

  // Places that want the same key are one finding: it is the skill that is missing.
  void findUnknownSkills() {
    for (const auto& [key, places] : unknown_)
      folder_.findings.add(unknownSkill, places.front(),
                           "aucune compétence n'a la clé " + shown(key) + alsoCited(places));
  }

  // A missing skill of the rules is found without them.
  static bool isFixed(double key) { return key == martialSkillKey || isNamedByUser(key); }

  static std::string shown(double key) {
    std::array<char, 32> text{};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), key).ptr};
  }

  void use(std::int32_t skill) {
    if (skill <= data_.colSkill.Count()) isUsed_[static_cast<std::size_t>(skill)] = true;
  }

  void checkSkill(std::int32_t position) {
    const auto& skill = data_.colSkill(position);
    const auto limits = levelLimits(skill, false);
    if (limits.lowest > limits.highest)
      folder_.findings.add(baseTooHigh, folder_.places.of(skillFormat.file, position, "iStart"),
                           quoted(skill.sName) + " part de " + numberText(limits.lowest) +
                               ", au-dessus du plus haut niveau à atteindre hors profil, " +
                               numberText(limits.highest));
    if (!folder_.places.of(skillFormat.file, position, "iKey").isSound) return;
    const bool isOfVehicle =
        std::any_of(vehicles_.begin(), vehicles_.end(), [&](const auto& vehicle) { return vehicle.skill == position; });
    if (skill.iKey == vehicleCode && isOfVehicle) return;  // which is worse, and found already
    if (skill.iKey == vehicleCode)
      folder_.findings.add(unreachableSkill, nameOfSkill(position),
                           quoted(skill.sName) + " a la clé 101 du véhicule de prédilection et n'est jamais proposée");
    else if (!isUsed_[static_cast<std::size_t>(position)] && areProfilesRead() &&
             !folder_.isDoubtful(profilFormat.file, skill.iKey))
      folder_.findings.add(unusedSkill, nameOfSkill(position), quoted(skill.sName) + " n'est dans aucun profil");
  }

  // Without "Assermenté", which brings skills of its own, too much is unused.
  bool areProfilesRead() const { return data_.colProfil.Count() > 0 && data_.iProfilAsserm > 0; }

  DataPlace nameOfSkill(std::int32_t position) const { return folder_.places.of(skillFormat.file, position, "sName"); }

  DataFolder& folder_;
  const ReferenceData& data_;
  std::vector<Vehicle>& vehicles_;
  const SkillIndex index_;
  std::map<double, std::vector<DataPlace>> unknown_;  // in profiles, by their keys
  std::vector<bool> isUsed_;                          // by the position of a skill: some profile names it
};

}  // namespace

void checkSkills(DataFolder& folder, Offer& offer) {
  if (folder.data.colSkill.Count() > 0) SkillCheck(folder, offer).run();
}

}  // namespace orvane
