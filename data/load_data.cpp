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
  Loader(ReferenceData& data, Files& files, Dialogs& dialogs) : data_(data), files_(files), dialogs_(dialogs) {}

  void load() {
    eachLine("ethnie.txt", [&](RecordLine& line) { data_.colEthnie.Add(readEthnie(line)); });
    eachLine("grade.txt", [&](RecordLine& line) { data_.colGrade.Add(readGrade(line)); });
    if (eachLine("profil.txt", [&](RecordLine& line) { addProfil(line); }) && data_.iProfilAsserm == 0) {
      tell("Erreur: pas de profil \"Assermenté\" chargé.", BoxStyle::Critical);
      return;
    }
    eachLine("skill.txt", [&](RecordLine& line) { data_.colSkill.Add(readSkill(line)); });
    eachLine("mutation.txt", [&](RecordLine& line) { data_.colMutation.Add(readMutation(line, dialogs_)); });
    eachLine("martial_technic.txt", [&](RecordLine& line) { addTechnic(line); });
    eachLine("martial_art.txt", [&](RecordLine& line) { addArt(line); });
    eachLine("district.txt", [&](RecordLine& line) { data_.colDistrict.Add(readDistrict(line, dialogs_)); });
  }

  void tell(const std::string& prompt, BoxStyle style) { dialogs_.MsgBox(prompt, style, std::string(App::Title)); }

 private:
  // False where there is no such file, which is told.
  template <class Read>
  bool eachLine(const std::string& name, Read read) {
    const std::string path = "./" + name;
    if (!files_.fileExists(path)) {
      tell("Fichier " + name + " manquant.", BoxStyle::Critical);
      return false;
    }
    DataFile file(name, files_.read(path));
    while (auto line = file.readline()) read(*line);
    return true;
  }

  void addProfil(RecordLine& line) {
    auto profil = readProfil(line, dialogs_);
    const bool isAsserm = profil->sName == "Assermenté";
    data_.colProfil.Add(std::move(profil));
    if (!isAsserm) return;
    if (data_.colProfil.Count() > lastPosition) line.fail("le profil \"Assermenté\" vient au-delà du 32767e profil.");
    data_.iProfilAsserm = static_cast<std::int16_t>(data_.colProfil.Count());
  }

  // Of two techniques with one key, arts can only reach the first.
  void addTechnic(RecordLine& line) {
    auto technic = readMartialTechnic(line);
    const std::int16_t key = technic->iKey;
    colAllTechnic_.try_emplace(key, std::move(technic));
  }

  void addArt(RecordLine& line) {
    const auto technic = [&](std::int16_t key) {
      const auto found = colAllTechnic_.find(key);
      return found == colAllTechnic_.end() ? nullptr : found->second;
    };
    data_.colMartialArt.Add(readMartialArt(line, technic, dialogs_));
  }

  ReferenceData& data_;
  Files& files_;
  Dialogs& dialogs_;
  std::unordered_map<std::int16_t, std::shared_ptr<clsMartialTechnic>> colAllTechnic_;
};

}  // namespace

void prcLoadData(ReferenceData& data, Files& files, Dialogs& dialogs) {
  Loader loader(data, files, dialogs);
  try {
    loader.load();
  } catch (const Failure& failure) {
    loader.tell("error : " + std::string(failure.what()), BoxStyle::Plain);
  } catch (const std::bad_alloc&) {
    loader.tell("error : mémoire insuffisante pour lire les fichiers de données.", BoxStyle::Plain);
  }
}

}  // namespace orvane
