#include <limits>
#include <type_traits>
#include <unordered_map>
#include <unordered_set>

#include "check/checks.h"
#include "check/names.h"
#include "data/record_formats.h"
#include "editor/skill_rules.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::int32_t mostRecords = std::numeric_limits<std::int16_t>::max();

class ContentsCheck {
 public:
  explicit ContentsCheck(DataFolder& folder) : folder_(folder) {}

  void run() {
    const auto& data = folder_.data;
    checkRecords(data.colEthnie, ethnieFormat);
    checkRecords(data.colGrade, gradeFormat);
    checkRecords(data.colProfil, profilFormat);
    checkRecords(data.colSkill, skillFormat);
    checkRecords(data.colMutation, mutationFormat);
    checkRecords(folder_.technics, martialTechnicFormat);
    checkRecords(data.colMartialArt, martialArtFormat);
    checkRecords(data.colDistrict, districtFormat);
    checkRepetitions(data.colSkill, skillFormat, duplicateKey, "un profil qui la cite donne les deux compétences");
    checkRepetitions(folder_.technics, martialTechnicFormat, duplicateKey,
                     "les arts ne trouvent que la première technique");
    checkRepetitions(data.colMutation, mutationFormat, duplicateNumber, "deux pouvoirs d'une catégorie le portent");
    if (data.colSkill.Count() > 0) checkFixedKeys();
    if (data.colMartialArt.Count() > 0) checkTechnicsOfArts();
    findUnknownTechnics();
    findRepeatedTechnics();
  }

 private:
  template <class Record>
  void checkRecords(const Collection<Record>& records, const RecordFormat<Record>& format) {
    if (!folder_.wasRead(format.file)) return;
    if (records.Count() == 0) folder_.findings.add(noRecord, {format.file}, "aucun enregistrement");
    if (records.Count() > mostRecords)
      folder_.findings.add(tooManyRecords, folder_.places.of(format.file, mostRecords + 1, "sName"),
                           "au-delà de 32767 enregistrements, les règles ne comptent plus");
    std::unordered_map<std::string, std::int32_t> known;
    for (std::int32_t i = 1; i <= records.Count(); ++i) {
      const auto [former, isNew] = known.try_emplace(groupOf(records(i)) + foldedName(records(i).sName), i);
      if (!isNew && !isDoubled(records(former->second), records(i)))
        findAlike(format.file, records(former->second).sName, former->second, records(i).sName, i);
      checkReturns(records(i).sName, false, folder_.places.of(format.file, i, "sName"));
      if constexpr (requires { records(i).sDescro; })
        checkReturns(records(i).sDescro, takesReturns<Record>, folder_.places.of(format.file, i, "sDescro"));
    }
  }

  // Finds "[return]" with other letters, blanks or one bracket, too. Those that the reader has turned into line ends
  // are gone by now, and were longer.
  void checkReturns(std::string_view text, bool mayHaveReturns, const DataPlace& place) {
    constexpr std::string_view word = "return";
    const bool hasBracket = text.find('[') != std::string_view::npos || text.find(']') != std::string_view::npos;
    const std::string lower = hasBracket ? lowerCase(text) : std::string();
    for (auto at = lower.find(word); at != std::string::npos; at = lower.find(word, at + 1)) {
      const auto before = lower.find_last_not_of(' ', at - 1);
      const auto behind = lower.find_first_not_of(' ', at + word.size());
      const bool opens = at > 0 && before != std::string::npos && lower[before] == '[';
      const bool closes = behind != std::string::npos && lower[behind] == ']';
      if (!opens && !closes) continue;
      const auto start = opens ? before : at;
      auto there = place;
      there.column += static_cast<std::int32_t>(widthInFile(text.substr(0, start)));
      folder_.findings.add(literalReturn, there,
                           std::string(text.substr(start, (closes ? behind + 1 : at + word.size()) - start)) +
                               " reste tel quel dans ce texte" +
                               (mayHaveReturns ? " : il s'écrit [return]" : ", où il ne vaut rien"));
    }
  }

  // In characters, with the markers of the line ends.
  static std::size_t widthInFile(std::string_view text) {
    std::size_t width = characterCount(text);
    for (auto at = text.find(crLf); at != std::string_view::npos; at = text.find(crLf, at + 1))
      width += std::string_view("[return]").size() - crLf.size();
    return width;
  }

  // Those whose descriptions may have several lines.
  template <class Record>
  static constexpr bool takesReturns = std::is_same_v<Record, clsProfil> || std::is_same_v<Record, clsMutation> ||
                                       std::is_same_v<Record, clsMartialArt> || std::is_same_v<Record, clsDistrict>;

  // Powers are told apart by their category and sign, too.
  static std::string groupOf(const clsMutation& power) { return power.sCateg + ";" + power.sSign + ";"; }
  template <class Record>
  static std::string groupOf(const Record&) {
    return {};
  }

  // What tells records apart, with its member; empty where nothing does.
  static std::string identityOf(const clsSkill& skill) { return std::to_string(skill.iKey); }
  static std::string identityOf(const clsMartialTechnic& technic) { return std::to_string(technic.iKey); }
  static std::string identityOf(const clsMutation& power) { return std::to_string(power.iNum) + " " + power.sCateg; }
  template <class Record>
  static std::string identityOf(const Record&) {
    return {};
  }
  static constexpr std::string_view identityMember(const clsMutation*) { return "iNum"; }
  static constexpr std::string_view identityMember(const void*) { return "iKey"; }

  // A line that stands twice is found by its identity.
  template <class Record>
  static bool isDoubled(const Record& former, const Record& record) {
    const auto identity = identityOf(record);
    return !identity.empty() && identity == identityOf(former);
  }

  void findAlike(std::string_view file, std::string_view former, std::int32_t formerAt, std::string_view name,
                 std::int32_t at) {
    const std::string line = std::to_string(folder_.places.of(file, formerAt, "sName").line);
    const bool isSworn = file == profilFormat.file && name == clsProfil::swornName;
    folder_.findings.add(alikeNames, folder_.places.of(file, at, "sName"),
                         name == former ? quoted(name) + " se nomme comme à la ligne " + line +
                                              (isSworn ? ", et le dernier seul compte" : "")
                                        : quoted(name) + " ne diffère de " + quoted(former) + ", ligne " + line +
                                              ", que par des blancs ou la casse");
  }

  template <class Record>
  void checkRepetitions(const Collection<Record>& records, const RecordFormat<Record>& format, const FindingKind& kind,
                        const std::string& consequence) {
    constexpr auto member = identityMember(static_cast<const Record*>(nullptr));
    std::unordered_map<std::string, std::int32_t> known;
    for (std::int32_t i = 1; i <= records.Count(); ++i) {
      const auto place = folder_.places.of(format.file, i, member);
      if (!place.isSound) continue;
      const auto identity = identityOf(records(i));
      const auto [former, isNew] = known.try_emplace(identity, i);
      if (!isNew)
        folder_.findings.add(kind, place,
                             identity.substr(0, identity.find(' ')) + " est déjà à la ligne " +
                                 std::to_string(folder_.places.of(format.file, former->second, member).line) +
                                 (records(former->second).sName == records(i).sName ? ", avec le même nom" : "") +
                                 " : " + consequence);
    }
  }

  // The rules know some skills by their keys.
  void checkFixedKeys() {
    std::set<std::int16_t> missing(namedKeys.begin(), namedKeys.end());
    missing.insert(martialSkillKey);
    for (const auto& skill : folder_.data.colSkill) missing.erase(skill.iKey);
    for (const auto key : missing)
      if (!folder_.isDoubtful(skillFormat.file, key))
        folder_.findings.add(missingKey, {skillFormat.file},
                             "aucune compétence n'a la clé " + std::to_string(key) + ", dont les règles se servent");
  }

  void checkTechnicsOfArts() {
    std::unordered_set<std::int16_t> used;
    std::unordered_set<std::int16_t> keys;
    for (const auto& art : folder_.data.colMartialArt)
      for (std::int32_t i = 1; i <= art.colMartialTechnic.Count(); ++i) used.insert(art.colMartialTechnic(i)->iKey);
    for (std::int32_t i = 1; i <= folder_.technics.Count(); ++i) {
      const auto& technic = folder_.technics(i);
      if (!folder_.places.of(martialTechnicFormat.file, i, "iKey").isSound) continue;
      const bool isFirstOfKey = keys.insert(technic.iKey).second;
      const bool isUsed = used.count(technic.iKey) > 0 || folder_.isDoubtful(martialArtFormat.file, technic.iKey);
      if (isFirstOfKey && !isUsed)
        folder_.findings.add(unusedTechnic, folder_.places.of(martialTechnicFormat.file, i, "sName"),
                             quoted(technic.sName) + " n'est dans aucun art martial");
    }
  }

  // Places that want the same key are one finding: it is the technique that is missing.
  void findUnknownTechnics() {
    std::map<std::int16_t, std::vector<DataPlace>> places;
    for (const auto& [place, key] : folder_.unknownTechnics) places[key].push_back(place);
    for (const auto& [key, cited] : places)
      if (!folder_.isDoubtful(martialTechnicFormat.file, key))
        folder_.findings.add(unknownTechnic, cited.front(),
                             quoted(std::to_string(key)) + " n'est la clé d'aucune technique" + alsoCited(cited));
  }

  void findRepeatedTechnics() {
    for (const auto& [place, key] : folder_.repeatedTechnics)
      for (const auto& technic : folder_.technics)
        if (technic.iKey == key) {
          folder_.findings.add(repeatedTechnic, place, quoted(technic.sName) + " est citée deux fois dans cet art");
          break;
        }
  }

  DataFolder& folder_;
};

}  // namespace

void checkContents(DataFolder& folder) { ContentsCheck(folder).run(); }

}  // namespace orvane
