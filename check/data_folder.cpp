#include "check/data_folder.h"

#include <cmath>
#include <optional>

#include "check/mended_bytes.h"
#include "check/names.h"
#include "check/nobody.h"
#include "check/report.h"
#include "data/excerpt.h"
#include "data/record_formats.h"
#include "surface/disk_files.h"
#include "surface/failure.h"
#include "surface/numbers.h"

namespace orvane {
namespace {

constexpr std::string_view technicsOfArt = "colMartialTechnic";
constexpr std::size_t longestKey = 5;  // digits

// The files of the folder, mended.
class FolderFiles : public DiskFiles {
 public:
  FolderFiles(std::string folder, Findings& findings) : folder_(std::move(folder)), findings_(findings) {}

  // By the path of the data file, titles with their line ends.
  std::map<std::string, std::string> titles;

  bool fileExists(const std::string& path) override { return DiskFiles::fileExists(pathInFolder(path)); }
  std::unique_ptr<FileParts> open(const std::string& path) override {
    std::string bytes = mendedBytes(DiskFiles().read(pathInFolder(path)), nameIn(path), findings_);
    titles[path] = bytes.substr(0, bytes.find('\n'));
    return std::make_unique<WholeFile>(std::move(bytes));
  }

 private:
  static std::string_view nameIn(std::string_view path) { return path.substr(path.rfind('/') + 1); }
  std::string pathInFolder(std::string_view path) const { return pathOf(folder_, nameIn(path)); }

  std::string folder_;
  Findings& findings_;
};

std::string shown(std::string_view bytes) { return bytes.empty() ? "un champ vide" : excerpt(bytes); }

bool isBlankLine(const Fault& fault) {
  return fault.kind == FaultKind::Separator && fault.at.position == 1 &&
         fault.at.bytes.find_first_not_of(' ') == std::string_view::npos;
}

// What failed and why; the file stands before it.
std::string withoutPath(std::string_view failure) {
  const auto path = failure.find(" : ");
  const auto reason = failure.rfind(" (");
  if (path > reason || reason == std::string_view::npos) return std::string(failure);
  return std::string(failure.substr(0, path)).append(failure.substr(reason, failure.rfind('.') - reason));
}

struct Told {
  FindingKind kind;
  std::string text;
};

Told toldOf(const Fault& fault) {
  const std::string found = shown(fault.at.bytes);
  switch (fault.kind) {
    case FaultKind::MissingFile:
      return {missingFile, "fichier manquant"};
    case FaultKind::UnreadableFile:
      return {unreadableFile, withoutPath(fault.text)};
    case FaultKind::EmptyFile:
      return {emptyFile, "fichier vide : il y manque jusqu'à la ligne de titre"};
    case FaultKind::NoLineEnd:
      return {noLineEnd, "une seule ligne, avec des octets nuls : ce n'est pas un fichier de texte"};
    case FaultKind::NoAssermente:
      return {noAssermente, "pas de profil « Assermenté » : la lecture s'arrête derrière ce fichier"};
    case FaultKind::AssermenteOutOfReach:
      return {assermenteOutOfReach, "le profil « Assermenté » vient au-delà du 32767e profil"};
    case FaultKind::Separator:
      if (isBlankLine(fault)) return {missingSeparator, "ligne vide : il n'en faut aucune, pas même à la fin"};
      return {missingSeparator, "« ; » manque à la fin du champ"};
    case FaultKind::Integer:
      return {notAnInteger, found + " n'est pas un nombre entier (-32768 à 32767)"};
    case FaultKind::IntegerToEnd:
      return {notAnInteger, found + " n'est pas un nombre entier (-32768 à 32767) sans rien derrière"};
    case FaultKind::Boolean:
      return {notABoolean, found + " n'est ni True, False, Vrai ou Faux, ni un nombre"};
    case FaultKind::Number:
      return {numberTooLarge, found + " est un nombre trop grand"};
    case FaultKind::Key:
      return {keyOutOfRange, found + " n'est pas une clé (-32768 à 32767)"};
    default:
      return {noCharacter, "l'octet <" +
                               hexadecimal(fault.at.bytes[static_cast<std::size_t>(fault.column - fault.at.column)]) +
                               "> n'est pas un caractère de Windows-1252"};
  }
}

// The number that is read from an element of a list; of techniques, that is rounded. Nothing where there is none.
std::optional<double> valueRead(const FieldText& element) {
  const double value = numericPrefix(element.bytes);
  try {
    return element.field.member == technicsOfArt ? toInt16(value) : value;
  } catch (const Failure&) {
    return std::nullopt;
  }
}

// Whether it is no more, and no less, than that number.
bool isJust(std::string_view bytes, double value) {
  try {
    return strictNumber(bytes) == value;
  } catch (const Failure&) {
    return false;
  }
}

class FolderReading : public Reading {
 public:
  explicit FolderReading(DataFolder& folder) : folder_(folder) {}

  void fault(const Fault& fault) override {
    loose_.reset();  // whatever stands there, a fault says more
    if (fault.kind <= FaultKind::NoLineEnd) folder_.unread.insert(fault.at.file);
    if (isConsequence(fault)) return;
    const DataPlace place{fault.at.file, fault.at.line, fault.column, fault.at.field.member};
    if (fault.kind == FaultKind::UnknownTechnic)
      folder_.unknownTechnics.push_back({place, toInt16(numericPrefix(fault.at.bytes))});
    else
      find(fault, place);
    isAssermenteOutOfReach_ |= fault.kind == FaultKind::AssermenteOutOfReach;
    if (place.member.empty()) return;
    const bool isBroken = fault.kind == FaultKind::Separator;
    folder_.places.spoil(isBroken);
    if (isBroken && !isListElement(fault.at.field)) folder_.places.spoilRecord();
    if (isBroken || isKey(fault.at.field)) noteDigits(fault.at);
  }

  void field(const FieldText& text) override {
    findLooseNumber();
    folder_.places.field(text);
    if (text.position == 1) keysOfArt_.clear();
    if (text.field.member == "sDescro" && hasList(text.file)) findSwallowedKey(text);
    if (!isListElement(text.field)) return;
    const DataPlace place{text.file, text.line, text.column, text.field.member};
    const auto value = valueRead(text);
    if (!value || !std::isfinite(*value)) return;
    if (!isJust(text.bytes, *value)) {
      loose_ = {place, shown(text.bytes) + " est lu comme " + numberText(*value)};
      noteDigits(text);
    } else if (text.field.member == technicsOfArt) {
      noteRepetition({place, static_cast<std::int16_t>(*value)});
    }
  }

  void record() override {
    findLooseNumber();
    findMisread();
    folder_.places.record();
  }

 private:
  static bool isListElement(const Field& field) { return field.member.starts_with("col"); }
  static bool isKey(const Field& field) { return field.member == "iKey" || isListElement(field); }

  static bool hasList(std::string_view file) { return file == profilFormat.file || file == martialArtFormat.file; }

  // The first key of a list, where the ";" before it is missing; all of the text, where one before that is, which has
  // its own finding.
  void findSwallowedKey(FieldText text) {
    const auto start = text.bytes.find_last_not_of("0123456789") + 1;
    if (start == text.bytes.size() || (start > 0 && text.bytes[start - 1] == ' ')) return;
    text.bytes.remove_prefix(start);
    text.column += static_cast<std::int32_t>(start);
    noteDigits(text);
    if (start > 0)
      folder_.findings.add(swallowedKey, {text.file, text.line, text.column, text.field.member},
                           "finit par " + shown(text.bytes) + " : « ; » manque sans doute devant cette clé");
  }

  // A text where a number or a word should be waits for the end of its line: it may be what a missing ";" did.
  void find(const Fault& fault, DataPlace place) {
    auto told = toldOf(fault);
    if (isBlankLine(fault)) place.member = {};
    if (fault.kind == FaultKind::NoAssermente) {
      if (const auto like = profileLikeAssermente()) {
        place.line = folder_.places.of(profilFormat.file, like, "sName").line;
        told.text += " ; " + quoted(folder_.data.colProfil(like).sName) + " n'est pas écrit ainsi";
      }
    } else if (fault.kind == FaultKind::Integer || fault.kind == FaultKind::Boolean) {
      return misread_.push_back({place, told});
    } else if (fault.kind == FaultKind::Separator && !misread_.empty() && !isListElement(fault.at.field)) {
      place = misread_.front().first;
      told.text = misread_.front().second.text + ", et « ; » manque dans cette ligne";
      misread_.clear();
    }
    folder_.findings.add(told.kind, place, told.text);
  }

  void findMisread() {
    for (const auto& [place, told] : misread_) folder_.findings.add(told.kind, place, told.text);
    misread_.clear();
  }

  void noteRepetition(const CitedTechnic& cited) {
    if (!keysOfArt_.insert(cited.key).second) folder_.repeatedTechnics.push_back(cited);
  }

  void noteDigits(const FieldText& text) {
    std::string digits;
    for (const char c : std::string(text.bytes) + ";") {
      if (c >= '0' && c <= '9') {
        digits += c;
        continue;
      }
      if (!digits.empty() && digits.size() <= longestKey) folder_.doubtfulKeys[text.file].insert(std::stoi(digits));
      digits.clear();
    }
  }

  // Of a finding that the user has already.
  bool isConsequence(const Fault& fault) const {
    if (fault.kind == FaultKind::UnknownTechnic)
      return !folder_.wasRead(martialTechnicFormat.file) || !folder_.places.hasRecords(martialTechnicFormat.file);
    return fault.kind == FaultKind::NoAssermente &&
           (isAssermenteOutOfReach_ || folder_.data.colProfil.Count() == 0 || isAssermenteBroken());
  }

  bool isAssermenteBroken() const {
    const auto& profiles = folder_.data.colProfil;
    for (std::int32_t i = 1; i <= profiles.Count(); ++i)
      if (!folder_.places.of(profilFormat.file, i, "bAsserm").isSound &&
          foldedName(profiles(i).sName).starts_with(foldedName(clsProfil::swornName)))
        return true;
    return false;
  }

  void findLooseNumber() {
    if (!loose_) return;
    folder_.findings.add(looseNumber, loose_->first, loose_->second);
    folder_.places.spoil(false);
    loose_.reset();
  }

  // The position of the first profile whose name is nearly "Assermenté", 0 without one.
  std::int32_t profileLikeAssermente() const {
    const auto& profiles = folder_.data.colProfil;
    for (std::int32_t i = 1; i <= profiles.Count(); ++i)
      if (foldedName(profiles(i).sName) == foldedName(clsProfil::swornName)) return i;
    return 0;
  }

  DataFolder& folder_;
  // The field told last, of a list, where it is more or less than a number.
  std::optional<std::pair<DataPlace, std::string>> loose_;
  std::vector<std::pair<DataPlace, Told>> misread_;  // in the line that is being read
  std::set<std::int16_t> keysOfArt_;                 // in the same line
  bool isAssermenteOutOfReach_ = false;
};

constexpr std::size_t longestTitle = 60;  // of a column, characters

// Reads title lines as if they were records.
class TitleReading : public Reading, public DiskFiles {
 public:
  explicit TitleReading(std::map<std::string, std::string> titles) : titles_(std::move(titles)) {}

  std::set<std::string_view> records;  // the files whose title line makes a record

  bool fileExists(const std::string& path) override { return titles_.count(path) > 0; }
  std::unique_ptr<FileParts> open(const std::string& path) override {
    return std::make_unique<WholeFile>("\n" + titles_[path] + "\n");
  }

  void fault(const Fault& fault) override { isFaulty_ |= fault.kind >= FaultKind::Separator; }
  void field(const FieldText& text) override {
    if (text.position == 1) isFaulty_ = false;
    file_ = text.file;
    length_ = text.bytes.size();
  }
  void record() override {
    // In a file of mere texts a title is told from a record by its length.
    const bool isTitle = file_ == districtFormat.file && length_ <= longestTitle;
    if (!isFaulty_ && !isTitle) records.insert(file_);
  }

 private:
  std::map<std::string, std::string> titles_;
  std::string_view file_;
  std::size_t length_ = 0;  // of the field told last
  bool isFaulty_ = false;
};

void findRecordsInTitles(const std::map<std::string, std::string>& titles, Findings& findings) {
  TitleReading reading(titles);
  ReferenceData data;
  Nobody nobody;
  readData(data, reading, nobody, reading);
  for (const auto file : reading.records)
    findings.add(titleIsRecord, {file}, "un enregistrement à la place de la ligne de titre n'est pas lu");
}

// A key that cannot be read is probably one beside those of its neighbours.
template <class Records>
void doubtNeighbours(DataFolder& folder, const Records& records, std::string_view file) {
  for (std::int32_t i = 1; i <= records.Count(); ++i) {
    if (folder.places.of(file, i, "iKey").isSound) continue;
    if (i > 1) folder.doubtfulKeys[file].insert(records(i - 1).iKey + 1);
    if (i < records.Count()) folder.doubtfulKeys[file].insert(records(i + 1).iKey - 1);
  }
}

}  // namespace

DataFolder readFolder(const std::string& path) {
  DataFolder folder;
  FolderFiles files(path, folder.findings);
  FolderReading reading(folder);
  Nobody nobody;
  folder.technics = readData(folder.data, files, nobody, reading);
  doubtNeighbours(folder, folder.data.colSkill, skillFormat.file);
  doubtNeighbours(folder, folder.technics, martialTechnicFormat.file);
  findRecordsInTitles(files.titles, folder.findings);
  return folder;
}

}  // namespace orvane
