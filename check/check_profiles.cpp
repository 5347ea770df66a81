#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include "check/checks.h"
#include "check/names.h"
#include "check/skill_index.h"
#include "check/trial.h"
#include "data/record_formats.h"
#include "editor/numbers_in_controls.h"
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

// An element that stands in the list of "Assermenté", too.
struct Clash {
  FindingKind kind;
  Element own;
  std::string what;
  std::string consequence;
};

class ProfileCheck {
 public:
  ProfileCheck(DataFolder& folder, const Offer& offer, Pictures& pictures)
      : folder_(folder), data_(folder.data), offer_(offer), pictures_(pictures), index_(folder) {
    for (const auto& skill : data_.colSkill)
      nameless_.push_back({.iKey = skill.iKey, .sName = {}, .iStart = skill.iStart, .sDescro = {}});
    placedFor_.resize(nameless_.size() + 1);
  }

  Applicable run() {
    if (offer_.profiles.empty())
      folder_.findings.add(noProfile, {profilFormat.file}, "aucun profil à choisir à côté d'« Assermenté »");
    for (const auto profile : offer_.profiles)
      if ((!data_.colProfil(profile).bAsserm || data_.iProfilAsserm > 0) && tryProfile(profile))
        applicable_.profiles.push_back(profile);
    findClashes();
    return applicable_;
  }

 private:
  // Whether it can be applied with every vehicle.
  bool tryProfile(std::int32_t profile) {
    elements_ = elements(profile);
    if (data_.colProfil(profile).bAsserm)
      for (const auto& element : elements(data_.iProfilAsserm)) elements_.push_back(element);
    auto data = dataFor(profile);
    if (trial_)
      trial_->apply(std::move(data));
    else
      trial_.emplace(std::move(data), pictures_);
    auto& vehicle = trial_->window().cmbVehicle;
    int picked = vehicle.ListIndex();  // -1: the profile has none
    const bool usesVehicle = picked >= 0;
    costs_.clear();
    bool isApplied = judge(profile, picked);
    while (trial_->isOpen() && usesVehicle && ++picked < vehicle.ListCount()) {
      trial_->act([&] { vehicle.setListIndex(picked); });
      isApplied = judge(profile, picked) && isApplied;
    }
    if (!costs_.empty()) findUnpaid(profile);
    return isApplied &&
           (!usesVehicle || std::all_of(offer_.vehicles.begin(), offer_.vehicles.end(),
                                        [this](const auto& known) { return known.skill <= data_.colSkill.Count(); }));
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
    if (data_.colProfil(profile).bAsserm) {
      data.colProfil.Add(data_.colProfil(data_.iProfilAsserm));
      data.iProfilAsserm = 2;
    }
    rows_.clear();
    for (const auto skill : positions) {
      data.colSkill.Add(skill == 0 ? unlisted_ : nameless_[static_cast<std::size_t>(skill) - 1]);
      if (data.colSkill(data.colSkill.Count()).iKey != vehicleCode) rows_.push_back(skill);
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
          noteCost(vehicle);
        else
          findRepeatedCode(profile);
        return false;
      }
      // A box comes before the row of its skill, once for each repetition.
      again = std::exchange(row, box.skillRows) == box.skillRows ? again + 1 : 1;
      findRedundant(profile, rows_[static_cast<std::size_t>(row)], again, vehicle);
    }
    noteMartialPoints(vehicle);
    return true;
  }

  // Who gives up the mutant power can buy levels of the martial-arts skill, a point each, with all that is left.
  void noteMartialPoints(const Vehicle* vehicle) {
    const auto& skills = index_.positionsOf(martialSkillKey);
    if (skills.empty()) return;
    const auto [lowest, highest] =
        levelLimits(data_.colSkill(skills.front()), !elementsFor(martialSkillKey, vehicle).empty());
    const double left = number(trial_->window().txtSkillRest) + pointsWithoutPower;
    const double points = number(trial_->window().txtMartialArtRest) + std::min(std::max(highest - lowest, 0.0), left);
    applicable_.martialPoints = std::max(applicable_.martialPoints, points);
  }

  // What the pool cannot pay.
  void noteCost(const Vehicle* vehicle) {
    double cost = 0;
    for (const auto position : rows_) {
      const auto& skill = data_.colSkill(position);
      if (elementsFor(skill.iKey, vehicle).empty()) continue;
      cost += profileSkillCost(skill.iStart) + (skill.iKey == martialSkillKey ? martialSkillExtraCost : 0);
    }
    costs_.push_back(numberText(cost) + (costs_.empty() ? " points de compétence" : "") + withVehicle(vehicle));
  }

  void findUnpaid(std::int32_t profile) {
    folder_.findings.add(poolTooSmall, folder_.places.of(profilFormat.file, profile, "sName"),
                         quoted(data_.colProfil(profile).sName) + " coûte " + listed(costs_) + ", et il n'y en a que " +
                             numberText(skillPoolBase) + " (" + numberText(skillPoolBase + pointsWithoutPower) +
                             " sans pouvoir mutant)");
  }

  void findRepeatedCode(std::int32_t profile) {
    const auto codes = elementsFor(vehicleCode, nullptr);
    const std::string consequence = " : la fenêtre du personnage se ferme";
    if (isClash(profile, codes, 1))
      noteClash(repeatedVehicleCode, profile, codes, "code 101 plusieurs fois", consequence);
    else
      folder_.findings.add(repeatedVehicleCode, placeOf(codes[1]), "code 101 plusieurs fois" + consequence);
  }

  void findRedundant(std::int32_t profile, std::int32_t skill, std::size_t again, const Vehicle* vehicle) {
    const auto named = elementsFor(data_.colSkill(skill).iKey, vehicle);
    const bool byVehicle =
        std::any_of(named.begin(), named.end(), [](const auto& element) { return element.key == vehicleCode; });
    if (byVehicle && !vehicle->isInPlace) return;
    const std::string name = quoted(data_.colSkill(skill).sName);
    const std::string redundant = name + " est redondante";
    const std::string with = withVehicle(byVehicle ? vehicle : nullptr);
    if (isClash(profile, named, again))
      noteClash(redundantSkill, profile, named, redundant, with);
    else if (byVehicle)
      folder_.findings.add(redundantSkill, placeOf(named[again]), redundant + with);
    else
      folder_.findings.add(
          redundantSkill, placeOf(named[again]),
          name + " est citée " + (again == 1 ? "deux" : std::to_string(again + 1)) + " fois dans ce profil");
  }

  // Whether a profile repeats by this element what it has, or "Assermenté" does.
  static bool isClash(std::int32_t profile, const std::vector<Element>& named, std::size_t again) {
    return named.front().profile == profile && named[again].profile != profile;
  }

  // What a profile and "Assermenté" both name.
  void noteClash(const FindingKind& kind, std::int32_t profile, const std::vector<Element>& named, std::string what,
                 std::string consequence) {
    const auto isOwn = [&](const auto& element) { return element.profile == profile; };
    const auto own = std::find_if(named.rbegin(), named.rend(), isOwn);
    clashes_[named.back().nth].push_back({kind, *own, std::move(what), std::move(consequence)});
  }

  // Where most of the profiles that "Assermenté" serves clash with it, it is the one that is wrong.
  void findClashes() {
    const auto sworn = std::count_if(offer_.profiles.begin(), offer_.profiles.end(),
                                     [this](auto profile) { return data_.colProfil(profile).bAsserm; });
    for (const auto& [nth, clashes] : clashes_) {
      std::set<std::int32_t> profiles;
      for (const auto& clash : clashes) profiles.insert(clash.own.profile);
      if (profiles.size() > 1 && 2 * static_cast<std::ptrdiff_t>(profiles.size()) > sworn)
        findInAssermente(nth, clashes.front(), profiles);
      else
        for (const auto& [kind, own, what, consequence] : clashes)
          folder_.findings.add(kind, placeOf(own), what + " avec « Assermenté »" + consequence);
    }
  }

  void findInAssermente(std::int32_t nth, const Clash& clash, const std::set<std::int32_t>& profiles) {
    std::vector<std::string> names;
    for (const auto profile : profiles) names.push_back(quoted(data_.colProfil(profile).sName));
    folder_.findings.add(clash.kind, placeOf({data_.iProfilAsserm, nth, 0}),
                         clash.what + " avec les profils " + listed(names) + clash.consequence);
  }

  static std::string withVehicle(const Vehicle* vehicle) {
    return vehicle ? " avec le véhicule " + quoted(vehicle->name) : std::string();
  }

  std::vector<Element> elements(std::int32_t profile) const {
    std::vector<Element> list;
    for (const double key : data_.colProfil(profile).colSkillPro)
      list.push_back({profile, static_cast<std::int32_t>(list.size()) + 1, key});
    return list;
  }

  // Of the profile under trial and what it brings in, those that name a skill, also as that of the vehicle.
  std::vector<Element> elementsFor(std::int16_t key, const Vehicle* vehicle) const {
    const bool isOfVehicle =
        vehicle && vehicle->skill <= data_.colSkill.Count() && data_.colSkill(vehicle->skill).iKey == key;
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
  const clsSkill unlisted_{.iKey = vehicleCode, .sName = {}, .iStart = 0, .sDescro = {}};
  // All skills without their names, which the window would sort in vain.
  std::vector<clsSkill> nameless_;
  std::vector<std::int32_t> placedFor_;  // by the position of a skill, the profile under trial that has it

  Applicable applicable_;
  std::map<std::int32_t, std::vector<Clash>> clashes_;  // by the element of "Assermenté"
  std::optional<Trial> trial_;
  std::vector<Element> elements_;   // of the profile under trial, then of the one that it brings in
  std::vector<std::string> costs_;  // of the profile under trial, by vehicle, where the pool cannot pay them
  std::vector<std::int32_t> rows_;  // the positions of the skills that it lists
};

}  // namespace

Applicable checkProfiles(DataFolder& folder, const Offer& offer, Pictures& pictures) {
  if (folder.data.colProfil.Count() == 0 || folder.data.colSkill.Count() == 0) return {};
  return ProfileCheck(folder, offer, pictures).run();
}

}  // namespace orvane
