#include <unordered_set>

#include "check/checks.h"
#include "check/names.h"
#include "check/trial.h"
#include "data/record_formats.h"
#include "sheet/drawn_power.h"

namespace orvane {
namespace {

constexpr std::size_t numberWidth = 3;  // of a power, in its entry

std::string entries(const ComboBox& box) {
  std::string list;
  for (int i = 0; i < box.ListCount(); ++i) list += (i > 0 ? ", " : "") + box.List(i);
  return list;
}

bool has(const ComboBox& box, const std::string& entry) {
  for (int i = 0; i < box.ListCount(); ++i)
    if (box.List(i) == entry) return true;
  return false;
}

class PowerCheck {
 public:
  PowerCheck(DataFolder& folder, Pictures& pictures) : folder_(folder), trial_(dataOf(folder), pictures) {}

  void checkGrades() {
    const auto& offered = trial_.window().cmbGrade;
    for (std::int32_t i = offered.ListCount() + 1; i <= folder_.data.colGrade.Count(); ++i)
      folder_.findings.add(unreachableGrade, folder_.places.of(gradeFormat.file, i, "sName"),
                           quoted(folder_.data.colGrade(i).sName) + " : seuls les " +
                               std::to_string(offered.ListCount()) + " premiers grades sont proposés");
  }

  void checkPowers() {
    auto& categories = trial_.window().cmbMutaCateg;
    for (int i = 0; i < categories.ListCount(); ++i) {
      trial_.act([&] { categories.setListIndex(i); });
      checkList(categories.List(i));
    }
    for (std::int32_t i = 1; i <= folder_.data.colMutation.Count(); ++i)
      if (offered_.count(i) == 0) findWhyNotOffered(i, folder_.data.colMutation(i));
  }

 private:
  static ReferenceData dataOf(const DataFolder& folder) {
    ReferenceData data = leastData();
    data.colGrade = folder.data.colGrade;
    data.colMutation = folder.data.colMutation;
    return data;
  }

  // The powers of the selected category.
  void checkList(const std::string& category) {
    const auto& names = trial_.window().cmbMutaName;
    if (names.ListCount() == 0)
      folder_.findings.add(emptyCategory, {mutationFormat.file},
                           "aucun pouvoir " + quoted(category) + " à choisir : le tirage y est refusé");
    for (int i = 0; i < names.ListCount(); ++i) {
      offered_.insert(names.ItemData(i));
      checkNumber(names.ItemData(i), names.List(i));
    }
  }

  void checkNumber(std::int32_t position, const std::string& entry) {
    const auto& power = folder_.data.colMutation(position);
    const auto place = folder_.places.of(mutationFormat.file, position, "iNum");
    const std::string number = std::to_string(power.iNum);
    if (number.size() > numberWidth)
      folder_.findings.add(powerNumber, place, number + " prend plus de trois caractères");
    else if (const auto printed = drawnPowerName(entry); printed != power.sName)
      folder_.findings.add(powerNumber, place,
                           number + " a moins de trois chiffres : un tirage imprime " + quoted(printed));
  }

  void findWhyNotOffered(std::int32_t position, const clsMutation& power) {
    const auto place = [&](std::string_view member) {
      return folder_.places.of(mutationFormat.file, position, member);
    };
    const auto& window = trial_.window();
    const bool isCategory = has(window.cmbMutaCateg, power.sCateg);
    const bool isSign = has(window.cmbMutaSign, power.sSign);
    if (!isCategory)
      folder_.findings.add(unknownCategory, place("sCateg"),
                           quoted(power.sCateg) + " n'est pas une catégorie (" + entries(window.cmbMutaCateg) + ")");
    if (!isSign)
      folder_.findings.add(unknownSign, place("sSign"),
                           quoted(power.sSign) + " n'est pas un signe (" + entries(window.cmbMutaSign) + ")");
    if (isCategory && isSign)
      folder_.findings.add(
          unreachablePower, place("sName"),
          quoted(power.sName) + " est de signe " + quoted(power.sSign) + " et n'est proposé à personne");
  }

  DataFolder& folder_;
  Trial trial_;
  std::unordered_set<std::int32_t> offered_;  // positions
};

}  // namespace

void checkPowers(DataFolder& folder, Pictures& pictures) {
  PowerCheck check(folder, pictures);
  if (folder.wasRead(gradeFormat.file)) check.checkGrades();
  if (folder.data.colMutation.Count() > 0) check.checkPowers();
}

}  // namespace orvane
