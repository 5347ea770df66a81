#include <algorithm>
#include <optional>

#include "check/checks.h"
#include "check/names.h"
#include "check/skill_index.h"
#include "check/trial.h"
#include "data/record_formats.h"
#include "editor/pools.h"
#include "editor/skill_rules.h"
#include "surface/numbers.h"

namespace orvane {
namespace {

// A number in the list of a profile.
struct Element {
  std::int32_t profile;  // position in colProfil
  std::int32_t nth;
  double key;
};

class ProfileCheck {
 public:
  ProfileCheck(DataFolder& folder, const Offer& offer, Pictures& pictures)
      : folder_(folder), data_(folder.data), offer_(offer), pictures_(pictures), index_(folder) {
    for (const auto& skill : data_.colSkill)
      nameless_.push_back(std::make_shared<clsSkill>(
          clsSkill{.iKey = skill->iKey, .sName = {}, .iStart = skill->iStart, .sDescro = {}}));
    placedFor_.resize(nameless_.size() + 1);
  }

  std::vector<std::int32_t> run() {
    if (offer_.profiles.empty())
      folder_.findings.add(noProfile, {profilFormat.file}, "aucun profil à choisir à côté d'« Assermenté »");
    std::vector<std::int32_t> applicable;
    for (const auto profile : offer_.profiles)
      if ((!data_.colProfil(profile)->bAsserm || data_.iProfilAsserm > 0) && tryProfile(profile))
        applicable.push_back(profile);
    return applicable;
  }

 private:
  // Whether it can be applied with every vehicle.
  bool tryProfile(std::int32_t profile) {
    elements_ = elements(profile);
    if (data_.colProfil(profile)->bAsserm)
      for (const auto& element : elements(data_.iProfilAsserm)) elements_.push_back(element);
    auto data = dataFor(profile);
    if (trial_)
      trial_->apply(std::move(data));
    else
      trial_.emplace(std::move(data), pictures_);
    auto& vehicle = trial_->window().cmbVehicle;
    int picked = vehicle.ListIndex();  // -1: the profile has none
    if (!judge(profile, picked)) return false;
    if (picked < 0) return true;
    while (++picked < vehicle.ListCount()) {
      trial_->act([&] { vehicle.setListIndex(picked); });
      if (!judge(profile, picked)) return false;
    }
    return std::all_of(offer_.vehicles.begin(), offer_.vehicles.end(),
                       [this](const auto& known) { return known.skill <= data_.colSkill.Count(); });
  }

  // The profile and no skills but its own and, behind a code 101, those of the vehicles, which keep their positions:
  // all others only cost time.
  ReferenceData dataFor(std::int32_t profile) {
    std::vector<std::int32_t> positions;
    const auto place = [&](std::int32_t skill) {
      if (std::exchange(placedFor_[static_cast<std::size_t>(skill)], profile) != profile) positions.push_back(skill);
    };
    const bool usesVehicle = !elementsFor(vehicleCode, nullptr).empty();
    for (const auto& vehicle : offer_.vehicles) {
      if (!usesVehicle) break;
      const auto at = static_cast<std::size_t>(vehicle.skill);
      if (positions.size() < at) positions.resize(at);
      if (vehicle.skill > data_.colSkill.Count()) continue;
      positions[at - 1] = vehicle.skill;
      placedFor_[at] = profile;
    }
    for (const auto& element : elements_)
      for (const auto skill : index_.positionsOf(element.key)) place(skill);

    ReferenceData data;
    data.colEthnie = least_.colEthnie;
    data.colProfil.Add(data_.colProfil(profile));
    if (data_.colProfil(profile)->bAsserm) {
      data.colProfil.Add(data_.colProfil(data_.iProfilAsserm));
      data.iProfilAsserm = 2;
    }
    rows_.clear();
    for (const auto skill : positions) {
      data.colSkill.Add(skill == 0 ? unlisted_ : nameless_[static_cast<std::size_t>(skill) - 1]);
      if (data.colSkill(data.colSkill.Count())->iKey != vehicleCode) rows_.push_back(skill);
    }
    return data;
  }

  // Finds what the rules told of a profile with a vehicle. False where they did not apply it to its end.
  bool judge(std::int32_t profile, int picked) {
    const Vehicle* vehicle = picked < 0 ? nullptr : &offer_.vehicles[static_cast<std::size_t>(picked)];
    std::size_t again = 0;
    std::int32_t row = -1;
    for (const auto& box : trial_->boxes()) {
      if (box.style != BoxStyle::Exclamation) {
        if (trial_->isOpen())
          findUnpaid(profile, vehicle);
        else
          findRepeatedCode(profile);
        return false;
      }
      // A box comes before the row of its skill, once for each repetition.
      again = std::exchange(row, box.skillRows) == box.skillRows ? again + 1 : 1;
      findRedundant(profile, rows_[static_cast<std::size_t>(row)], again, vehicle);
    }
    return true;
  }

  void findUnpaid(std::int32_t profile, const Vehicle* vehicle) {
    double cost = 0;
    for (const auto position : rows_) {
      const auto& skill = *data_.colSkill(position);
      if (elementsFor(skill.iKey, vehicle).empty()) continue;
      cost += profileSkillCost(skill.iStart) + (skill.iKey == martialSkillKey ? martialSkillExtraCost : 0);
    }
    folder_.findings.add(poolTooSmall, folder_.places.of(profilFormat.file, profile, "sName"),
                         quoted(data_.colProfil(profile)->sName) + " coûte " + numberText(cost) +
                             " points de compétence" + withVehicle(vehicle) + ", et il n'y en a que " +
                             numberText(skillPoolBase) + " (" + numberText(skillPoolBase + pointsWithoutPower) +
                             " sans pouvoir mutant)");
  }

  void findRepeatedCode(std::int32_t profile) {
    const auto codes = elementsFor(vehicleCode, nullptr);
    folder_.findings.add(
        repeatedVehicleCode, placeOf(repetition(profile, codes, 1)),
        "code 101 plusieurs fois" + withAssermente(profile, codes) + " : la fenêtre du personnage se ferme");
  }

  void findRedundant(std::int32_t profile, std::int32_t skill, std::size_t again, const Vehicle* vehicle) {
    const auto named = elementsFor(data_.colSkill(skill)->iKey, vehicle);
    const bool byVehicle =
        std::any_of(named.begin(), named.end(), [](const auto& element) { return element.key == vehicleCode; });
    folder_.findings.add(redundantSkill, placeOf(repetition(profile, named, again)),
                         quoted(data_.colSkill(skill)->sName) + " est redondante" + withAssermente(profile, named) +
                             withVehicle(byVehicle ? vehicle : nullptr));
  }

  // Where a repetition is told: in the list of the profile itself, as far as it has a part in it.
  static Element repetition(std::int32_t profile, const std::vector<Element>& named, std::size_t again) {
    const auto own = static_cast<std::size_t>(
        std::count_if(named.begin(), named.end(), [&](const auto& element) { return element.profile == profile; }));
    return named[own == 0 ? again : std::min(again, own - 1)];
  }

  static std::string withVehicle(const Vehicle* vehicle) {
    return vehicle ? " avec le véhicule " + quoted(vehicle->name) : std::string();
  }

  static std::string withAssermente(std::int32_t profile, const std::vector<Element>& named) {
    return named.front().profile == profile && named.back().profile != profile ? " avec « Assermenté »" : "";
  }

  std::vector<Element> elements(std::int32_t profile) const {
    std::vector<Element> list;
    for (const double key : data_.colProfil(profile)->colSkillPro)
      list.push_back({profile, static_cast<std::int32_t>(list.size()) + 1, key});
    return list;
  }

  // Of the profile under trial and what it brings in, those that name a skill, also as that of the vehicle.
  std::vector<Element> elementsFor(std::int16_t key, const Vehicle* vehicle) const {
    const bool isOfVehicle =
        vehicle && vehicle->skill <= data_.colSkill.Count() && data_.colSkill(vehicle->skill)->iKey == key;
    std::vector<Element> found;
    for (const auto& element : elements_)
      if (element.key == key || (isOfVehicle && element.key == vehicleCode)) found.push_back(element);
    return found;
  }

  DataPlace placeOf(const Element& element) const {
    return folder_.places.of(profilFormat.file, element.profile, "colSkillPro", element.nth);
  }

  DataFolder& folder_;
  const ReferenceData& data_;
  const Offer& offer_;
  Pictures& pictures_;
  const SkillIndex index_;

  const ReferenceData least_ = leastData();
  // A skill that the rules leave out of the list.
  const std::shared_ptr<const clsSkill> unlisted_ =
      std::make_shared<clsSkill>(clsSkill{.iKey = vehicleCode, .sName = {}, .iStart = 0, .sDescro = {}});
  // All skills without their names, which the window would sort in vain.
  std::vector<std::shared_ptr<const clsSkill>> nameless_;
  std::vector<std::int32_t> placedFor_;  // by the position of a skill, the profile under trial that has it

  std::optional<Trial> trial_;
  std::vector<Element> elements_;   // of the profile under trial, then of the one that it brings in
  std::vector<std::int32_t> rows_;  // the positions of the skills that it lists
};

}  // namespace

std::vector<std::int32_t> checkProfiles(DataFolder& folder, const Offer& offer, Pictures& pictures) {
  if (folder.data.colProfil.Count() == 0 || folder.data.colSkill.Count() == 0) return {};
  return ProfileCheck(folder, offer, pictures).run();
}

}  // namespace orvane
