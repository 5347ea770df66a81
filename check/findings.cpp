#include "check/findings.h"

#include <algorithm>
#include <utility>

namespace orvane {
namespace {

constexpr std::pair<std::string_view, std::string_view> namesInHelp[] = {
    {"sName", "nom"},
    {"sDescro", "description"},
    {"iMaxD", "nombre"},
    {"iSalaire", "solde"},
    {"bAsserm", "True ou False"},
    {"colSkillPro", "clé"},
    {"iKey", "clé"},
    {"iStart", "base"},
    {"sCateg", "catégorie"},
    {"sSign", "signe"},
    {"iNum", "numéro"},
    {"sType", "o ou d"},
    {"iRestrictO", "restriction offensive"},
    {"iRestrictD", "restriction défensive"},
    {"colMartialTechnic", "clé"},
};

std::string nameInHelp(std::string_view member) {
  const auto* const found = std::find_if(std::begin(namesInHelp), std::end(namesInHelp),
                                         [&](const auto& known) { return known.first == member; });
  return std::string(found == std::end(namesInHelp) ? member : found->second);
}

}  // namespace

void Findings::add(const FindingKind& kind, const DataPlace& place, std::string text) {
  if (!place.isSound) return;
  if (!place.member.empty()) text = nameInHelp(place.member) + " : " + text;
  findings_.push_back({std::string(place.file), place.line, place.column, kind.severity, kind.code, std::move(text)});
}

std::vector<Finding> Findings::sorted() const {
  auto sorted = findings_;
  std::sort(sorted.begin(), sorted.end());
  sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
  return sorted;
}

}  // namespace orvane
