#include <limits>
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
    const auto keyOf = [](const auto& record) { return record.iKey; };
    checkRepetitions(data.colSkill, skillFormat, "iKey", keyOf, duplicateKey);
    checkRepetitions(folder_.technics, martialTechnicFormat, "iKey", keyOf, duplicateKey);
    const auto numberOf = [](const clsMutation& power) { return power.sCateg + std::to_string(power.iNum); };
    checkRepetitions(data.colMutation, mutationFormat, "iNum", numberOf, duplicateNumber);
    if (data.colSkill.Count() > 0) checkFixedKeys();
    if (data.colMartialArt.Count() > 0) checkTechnicsOfArts();
  }

 private:
  template <class Member, class Record>
  void checkRecords(const Collection<Member>& records, const RecordFormat<Record>& format) {
    if (!folder_.wasRead(format.file)) return;
    if (records.Count() == 0) folder_.findings.add(noRecord, {format.file}, "aucun enregistrement");
    if (records.Count() > mostRecords)
      folder_.findings.add(tooManyRecords, folder_.places.of(format.file, mostRecords + 1, "sName"),
                           "au-delà de 32767 enregistrements, les règles ne comptent plus");
    std::unordered_map<std::string, std::int32_t> known;
    for (std::int32_t i = 1; i <= records.Count(); ++i) {
      const auto [former, isNew] = known.try_emplace(groupOf(*records(i)) + foldedName(records(i)->sName), i);
      if (!isNew) findAlike(format.file, records(former->second)->sName, former->second, records(i)->sName, i);
      checkReturns(records(i)->sName, format.file, i, "sName", ", où il ne vaut rien");
      if constexpr (requires { records(i)->sDescro; })
        checkReturns(records(i)->sDescro, format.file, i, "sDescro", " : il s'écrit [return]");
    }
  }

  // Those that the reader has turned into line ends are gone by now.
  void checkReturns(std::string_view text, std::string_view file, std::int32_t position, std::string_view member,
                    std::string_view advice) {
    for (auto at = text.find('['); at != std::string_view::npos; at = text.find('[', at + 1))
      if (const auto word = text.substr(at, 8); word.ends_with(']') && lowerCase(word) == "[return]")
        return folder_.findings.add(literalReturn, folder_.places.of(file, position, member),
                                    std::string(word) + " reste tel quel dans ce texte" +
                                        std::string(word == "[return]" ? ", où il ne vaut rien" : advice));
  }

  // Powers are told apart by their category and sign, too.
  static std::string groupOf(const clsMutation& power) { return power.sCateg + ";" + power.sSign + ";"; }
  template <class Record>
  static std::string groupOf(const Record&) {
    return {};
  }

  void findAlike(std::string_view file, const std::string& former, std::int32_t formerAt, const std::string& name,
                 std::int32_t at) {
    const std::string line = std::to_string(folder_.places.of(file, formerAt, "sName").line);
    folder_.findings.add(alikeNames, folder_.places.of(file, at, "sName"),
                         name == former ? quoted(name) + " se nomme comme à la ligne " + line
                                        : quoted(name) + " ne diffère de " + quoted(former) + ", ligne " + line +
                                              ", que par des blancs ou la casse");
  }

  // What tells records apart, for which their member stands.
  template <class Member, class Record, class Identity>
  void checkRepetitions(const Collection<Member>& records, const RecordFormat<Record>& format, std::string_view member,
                        Identity identityOf, const FindingKind& kind) {
    std::unordered_map<decltype(identityOf(*records(1))), std::int32_t> known;
    for (std::int32_t i = 1; i <= records.Count(); ++i) {
      const auto place = folder_.places.of(format.file, i, member);
      if (!place.isSound) continue;
      const auto [former, isNew] = known.try_emplace(identityOf(*records(i)), i);
      if (!isNew)
        folder_.findings.add(
            kind, place,
            "déjà donné à la ligne " + std::to_string(folder_.places.of(format.file, former->second, member).line));
    }
  }

  // The rules know some skills by their keys.
  void checkFixedKeys() {
    std::set<std::int16_t> missing(namedKeys.begin(), namedKeys.end());
    missing.insert(martialSkillKey);
    for (const auto& skill : folder_.data.colSkill) missing.erase(skill->iKey);
    for (const auto key : missing)
      folder_.findings.add(missingKey, {skillFormat.file},
                           "aucune compétence n'a la clé " + std::to_string(key) + ", dont les règles se servent");
  }

  void checkTechnicsOfArts() {
    std::unordered_set<const clsMartialTechnic*> used;
    std::unordered_set<std::int16_t> keys;
    for (const auto& art : folder_.data.colMartialArt)
      for (std::int32_t i = 1; i <= art->colMartialTechnic.Count(); ++i)
        used.insert(std::as_const(*art).colMartialTechnic(i).get());
    for (std::int32_t i = 1; i <= folder_.technics.Count(); ++i) {
      const auto& technic = folder_.technics(i);
      if (!folder_.places.of(martialTechnicFormat.file, i, "iKey").isSound) continue;
      const bool isFirstOfKey = keys.insert(technic->iKey).second;
      if (isFirstOfKey && used.count(technic.get()) == 0)
        folder_.findings.add(unusedTechnic, folder_.places.of(martialTechnicFormat.file, i, "sName"),
                             quoted(technic->sName) + " n'est dans aucun art martial");
    }
  }

  DataFolder& folder_;
};

}  // namespace

void checkContents(DataFolder& folder) { ContentsCheck(folder).run(); }

}  // namespace orvane
