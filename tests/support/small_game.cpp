#include "tests/support/small_game.h"

#include <map>

namespace orvane::test {
namespace {

void addProfile(ReferenceData& data, const std::string& name, bool sworn, std::initializer_list<double> keys) {
  auto profile = std::make_shared<clsProfil>();
  profile->sName = name;
  profile->bAsserm = sworn;
  profile->sDescro = name + ", description.";
  for (const double key : keys) profile->colSkillPro.Add(key);
  data.colProfil.Add(profile);
  if (name == "Assermenté") data.iProfilAsserm = static_cast<std::int16_t>(data.colProfil.Count());
}

void addProfiles(ReferenceData& data) {
  addProfile(data, "Assermenté", false, {20});
  addProfile(data, "Patrouilleur", true, {11, 101, 58});
  addProfile(data, "Civil", false, {10, 12});
  addProfile(data, "Deux codes", true, {11, 101, 101});
  addProfile(data, "Redondant", true, {20, 11, 11});
  addProfile(data, "Ruineux", false, {11, 14, 15, 101});
  addProfile(data, "Arts ruineux", false, {13, 58});
}

void addSkill(ReferenceData& data, std::int16_t key, const std::string& name, std::int16_t start) {
  data.colSkill.Add(std::make_shared<clsSkill>(clsSkill{key, name, start, name + ", description."}));
}

void addSkills(ReferenceData& data) {
  const std::map<int, std::string> names{{12, "Écoute"},   {13, "Zoologie"}, {16, "Moto"},   {18, "Voiture"},
                                         {44, "Hélico"},   {56, "Langage"},  {57, "Métier"}, {58, "Arts martiaux"},
                                         {59, "Sciences"}, {60, "Loisir"}};
  const std::map<int, std::int16_t> starts{{10, -2}, {11, 0}, {12, 3}, {13, -72}, {14, -90}, {16, 0}, {18, 0},
                                           {20, 0},  {44, 0}, {56, 0}, {57, 0},   {58, 0},   {59, 0}, {60, 0}};
  for (std::int16_t key = 1; key <= 60; ++key) {
    const auto name = names.find(key);
    const auto start = starts.find(key);
    addSkill(data, key, name != names.end() ? name->second : "Talent " + std::to_string(100 + key).substr(1),
             start != starts.end() ? start->second : std::int16_t{2});
  }
  addSkill(data, 101, "Véhicule", 0);
}

void addPower(ReferenceData& data, const std::string& category, const std::string& sign, std::int16_t number,
              const std::string& name) {
  data.colMutation.Add(
      std::make_shared<clsMutation>(clsMutation{category, sign, name, name + ", description.", number}));
}

void addPowers(ReferenceData& data) {
  addPower(data, "Alpha", "Moins", 3, "Os fragiles");
  addPower(data, "Alpha", "Plus", 7, "Peau épaisse");
  addPower(data, "alpha", "Plus", 8, "Jamais offert");
  addPower(data, "Alpha", "Plus", 42, "Bond");
  addPower(data, "Alpha", "Plus", 123, "Griffes");
  addPower(data, "Bêta", "Plus", 1234, "Ondes");
}

std::shared_ptr<clsMartialTechnic> technic(const std::string& name, const std::string& type) {
  auto made = std::make_shared<clsMartialTechnic>();
  made->sName = name;
  made->sType = type;
  made->sDescro = name + ", description.";
  return made;
}

void addArt(ReferenceData& data, const std::string& name, std::int16_t offensive, std::int16_t defensive,
            std::initializer_list<std::shared_ptr<clsMartialTechnic>> technics) {
  auto art = std::make_shared<clsMartialArt>();
  art->sName = name;
  art->iRestrictO = offensive;
  art->iRestrictD = defensive;
  art->sDescro = name + ", description.";
  for (const auto& one : technics) art->colMartialTechnic.Add(one);
  data.colMartialArt.Add(art);
}

void addArts(ReferenceData& data) {
  const auto hook = technic("Crochet", "o");
  addArt(data, "Boxe", 2, 1, {hook, technic("Garde", "d"), technic("Direct", "o"), technic("Uppercut", "o")});
  addArt(data, "Lutte", 0, 1, {technic("Clé", "o"), hook, technic("Cri", "O")});
  addArt(data, "Vide", 1, 1, {});
}

}  // namespace

ReferenceData smallGame() {
  ReferenceData data;
  data.colEthnie.Add(std::make_shared<clsEthnie>(clsEthnie{"Nordique", 3}));
  data.colEthnie.Add(std::make_shared<clsEthnie>(clsEthnie{"Saline", 2}));
  for (const char* name : {"Agent", "Officier", "Capitaine"})
    data.colGrade.Add(std::make_shared<clsGrade>(clsGrade{1500, name, std::string(name) + ", description."}));
  data.colDistrict.Add(std::make_shared<clsDistrict>(clsDistrict{"Port", "Les docks."}));
  addProfiles(data);
  addSkills(data);
  addPowers(data);
  addArts(data);
  return data;
}

}  // namespace orvane::test
