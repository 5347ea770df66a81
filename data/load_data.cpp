#include "data/load_data.h"

#include <limits>
#include <new>
#include <string>
#include <unordered_map>

#include "data/data_file.h"
#include "data/record_formats.h"
#include "surface/desktop.h"
#include "surface/failure.h"

namespace orvane {
namespace {

constexpr std::int32_t lastPosition = std::numeric_limits<std::int16_t>::max();

class Loader {
 public:
  Loader(ReferenceData& data, Files& files, Dialogs& dialogs, Reading& reading)
      : data_(data), files_(files), reading_(reading), tools_{dialogs, *data.texts, [this](std::int16_t iKey) {
                                                                return technicOf(iKey);
                                                              }} {}

  Technics load() {
    readInto(data_.colEthnie, ethnieFormat);
    readInto(data_.colGrade, gradeFormat);
    const bool isRead = read(profilFormat, [this](clsProfil profil, RecordLine& line) {
      data_.colProfil.Add(std::move(profil));
      noteAssermente(line);
    });
    if (isRead && data_.iProfilAsserm == 0) fault(FaultKind::NoAssermente, profilFormat.file);
    readInto(data_.colSkill, skillFormat);
    readInto(data_.colMutation, mutationFormat);
    read(martialTechnicFormat, [this](const clsMartialTechnic& technic, RecordLine&) { addTechnic(technic); });
    readInto(data_.colMartialArt, martialArtFormat);
    readInto(data_.colDistrict, districtFormat);
    return std::move(colAllTechnic_);
  }

 private:
  // Adds the record of each line. False where the file cannot be read at all.
  template <class Record, class Add>
  bool read(const RecordFormat<Record>& format, Add add) {
    DataFile file(reading_, files_, format.file);
    while (auto line = file.readline()) {
      auto record = format.read(*line, tools_);
      if (!line->isRecord()) continue;
      add(std::move(record), *line);
      reading_.record();
    }
    return file.isRead();
  }

  template <class Record>
  void readInto(Collection<Record>& records, const RecordFormat<Record>& format) {
    read(format, [&records](Record record, RecordLine&) { records.Add(std::move(record)); });
  }

  void fault(FaultKind kind, std::string_view file, std::string_view text = {}) {
    reading_.fault({kind, {.file = file}, 1, text});
  }

  void noteAssermente(RecordLine& line) {
    if (data_.colProfil(data_.colProfil.Count()).canBeChosen()) return;
    if (data_.colProfil.Count() > lastPosition)
      line.fault(FaultKind::AssermenteOutOfReach);
    else
      data_.iProfilAsserm = static_cast<std::int16_t>(data_.colProfil.Count());
  }

  // Of two techniques with one key, arts can only reach the first.
  void addTechnic(const clsMartialTechnic& record) {
    colAllTechnic_.Add(record);
    auto& first = technicByKey_[record.iKey];
    if (!first) first = std::make_shared<clsMartialTechnic>(record);
  }

  std::shared_ptr<clsMartialTechnic> technicOf(std::int16_t iKey) const {
    const auto found = technicByKey_.find(iKey);
    return found == technicByKey_.end() ? nullptr : found->second;
  }

  ReferenceData& data_;
  Files& files_;
  Reading& reading_;
  ReadingTools tools_;
  Technics colAllTechnic_;
  std::unordered_map<std::int16_t, std::shared_ptr<clsMartialTechnic>> technicByKey_;
};

// The reading of a start: tells faults in message boxes, and ends at most of them.
class ReadingOfAStart : public Reading {
 public:
  struct End {};

  explicit ReadingOfAStart(Dialogs& dialogs) : dialogs_(dialogs) {}

  void fault(const Fault& fault) override {
    switch (fault.kind) {
      case FaultKind::MissingFile:
        return tell(describe(fault), BoxStyle::Critical);
      case FaultKind::UnknownTechnic:
        return tell(describe(fault), BoxStyle::Exclamation);
      case FaultKind::NoAssermente:
        tell(describe(fault), BoxStyle::Critical);
        throw End();
      default:
        tell("error : " + describe(fault), BoxStyle::Plain);
        throw End();
    }
  }

  void tell(const std::string& prompt, BoxStyle style) { dialogs_.MsgBox(prompt, style, App::Title); }

 private:
  Dialogs& dialogs_;
};

}  // namespace

Technics readData(ReferenceData& data, Files& files, Dialogs& dialogs, Reading& reading) {
  return Loader(data, files, dialogs, reading).load();
}

void prcLoadData(ReferenceData& data, Files& files, Dialogs& dialogs) {
  ReadingOfAStart reading(dialogs);
  try {
    readData(data, files, dialogs, reading);
  } catch (const ReadingOfAStart::End&) {
    return;  // what ended it was told
  } catch (const std::bad_alloc&) {
    reading.tell("error : mémoire insuffisante pour lire les fichiers de données.", BoxStyle::Plain);
  }
}

}  // namespace orvane
