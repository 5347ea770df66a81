#include "check/data_folder.h"

#include <cmath>
#include <optional>

#include "check/mended_bytes.h"
#include "check/names.h"
#include "check/nobody.h"
#include "data/excerpt.h"
#include "data/record_formats.h"
#include "surface/disk_files.h"
#include "surface/failure.h"
#include "surface/numbers.h"

namespace orvane {
namespace {

// The files of the folder, mended.
class FolderFiles : public DiskFiles {
 public:
  FolderFiles(std::string folder, Findings& findings) : folder_(std::move(folder)), findings_(findings) {}

  // By the path of the data file, titles with their line ends.
  std::map<std::string, std::string> titles;

  bool fileExists(const std::string& path) override { return DiskFiles::fileExists(folder_ + "/" + path); }
  std::string read(const std::string& path) override {
    const auto file = std::string_view(path).substr(path.rfind('/') + 1);
    std::string bytes = mendedBytes(DiskFiles::read(folder_ + "/" + path), file, findings_);
    titles[path] = bytes.substr(0, bytes.find('\n'));
    return bytes;
  }

 private:
  std::string folder_;
  Findings& findings_;
};

std::string shown(std::string_view bytes) { return bytes.empty() ? "un champ vide" : excerpt(bytes); }

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
      return {unreadableFile, std::string(fault.text.substr(0, fault.text.rfind('.')))};
    case FaultKind::EmptyFile:
      return {emptyFile, "fichier vide : il y manque jusqu'à la ligne de titre"};
    case FaultKind::NoLineEnd:
      return {noLineEnd, "une seule ligne, avec des octets nuls : ce n'est pas un fichier de texte"};
    case FaultKind::NoAssermente:
      return {noAssermente, "pas de profil « Assermenté » : la lecture s'arrête derrière ce fichier"};
    case FaultKind::AssermenteOutOfReach:
      return {assermenteOutOfReach, "le profil « Assermenté » vient au-delà du 32767e profil"};
    case FaultKind::UnknownTechnic:
      return {unknownTechnic, found + " n'est la clé d'aucune technique"};
    case FaultKind::Separator:
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

// The number that is read from an element of a list that is more, or less, than that number.
std::optional<double> looseValue(std::string_view bytes) {
  const double value = numericPrefix(bytes);
  try {
    if (strictNumber(bytes) == value) return std::nullopt;
  } catch (const Failure&) {
  }
  return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

class FolderReading : public Reading {
 public:
  explicit FolderReading(DataFolder& folder) : folder_(folder) {}

  void fault(const Fault& fault) override {
    loose_.reset();  // whatever stands there, a fault says more
    if (fault.kind <= FaultKind::NoLineEnd) folder_.unread.insert(fault.at.file);
    if (isConsequence(fault)) return;
    DataPlace place{fault.at.file, fault.at.line, fault.column, fault.at.field.member};
    if (fault.kind == FaultKind::NoAssermente) place.line = lineLikeAssermente();
    const auto [kind, text] = toldOf(fault);
    folder_.findings.add(kind, place, text);
    if (!place.member.empty()) folder_.places.spoil(fault.kind == FaultKind::Separator);
    isAssermenteOutOfReach_ |= fault.kind == FaultKind::AssermenteOutOfReach;
  }

  void field(const FieldText& text) override {
    findLooseNumber();
    folder_.places.field(text);
    const bool isListElement = text.field.member.starts_with("col");
    if (const auto value = isListElement ? looseValue(text.bytes) : std::nullopt)
      loose_ = {{text.file, text.line, text.column, text.field.member},
                shown(text.bytes) + " est lu comme " + numberText(*value)};
  }

  void record() override {
    findLooseNumber();
    folder_.places.record();
  }

 private:
  // Of a finding that the user has already.
  bool isConsequence(const Fault& fault) const {
    if (fault.kind == FaultKind::UnknownTechnic)
      return !folder_.wasRead(martialTechnicFormat.file) || !folder_.places.hasRecords(martialTechnicFormat.file);
    return fault.kind == FaultKind::NoAssermente && (isAssermenteOutOfReach_ || folder_.data.colProfil.Count() == 0);
  }

  void findLooseNumber() {
    if (!loose_) return;
    folder_.findings.add(looseNumber, loose_->first, loose_->second);
    folder_.places.spoil(false);
    loose_.reset();
  }

  // Of the first profile whose name is nearly "Assermenté", else the title line.
  std::int32_t lineLikeAssermente() const {
    const auto& profiles = folder_.data.colProfil;
    for (std::int32_t i = 1; i <= profiles.Count(); ++i)
      if (foldedName(profiles(i)->sName) == foldedName("Assermenté"))
        return folder_.places.of(profilFormat.file, i, "sName").line;
    return 1;
  }

  DataFolder& folder_;
  // The field told last, of a list, where it is more or less than a number.
  std::optional<std::pair<DataPlace, std::string>> loose_;
  bool isAssermenteOutOfReach_ = false;
};

constexpr std::size_t longestTitle = 60;  // of a column, characters

// Reads title lines as if they were records.
class TitleReading : public Reading, public DiskFiles {
 public:
  explicit TitleReading(std::map<std::string, std::string> titles) : titles_(std::move(titles)) {}

  std::set<std::string_view> records;  // the files whose title line makes a record

  bool fileExists(const std::string& path) override { return titles_.count(path) > 0; }
  std::string read(const std::string& path) override { return "\n" + titles_[path] + "\n"; }

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

}  // namespace

DataFolder readFolder(const std::string& path) {
  DataFolder folder;
  FolderFiles files(path, folder.findings);
  FolderReading reading(folder);
  Nobody nobody;
  folder.technics = readData(folder.data, files, nobody, reading);
  findRecordsInTitles(files.titles, folder.findings);
  return folder;
}

}  // namespace orvane
