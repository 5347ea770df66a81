#include "launch/work_folder.h"

#include <algorithm>
#include <map>
#include <sstream>

#include <QCryptographicHash>
#include <QStandardPaths>

#include "surface/failure.h"

namespace orvane {
namespace {

// A hidden list in the work folder: what was delivered there last, a checksum and a name a line.
const std::string recordName = ".livraison";

using Checksums = std::map<std::string, std::string>;  // by name of file

std::string checksum(const std::string& bytes) {
  return QCryptographicHash::hash(QByteArray::fromStdString(bytes), QCryptographicHash::Sha256).toHex().toStdString();
}

class WorkFolder {
 public:
  WorkFolder(Files& files, std::string installed, std::string folder)
      : files_(files), installed_(std::move(installed)), folder_(std::move(folder)) {}

  Delivery deliver() {
    makeFolder();
    read();
    for (const auto& [name, sum] : fresh_) deliver(name);
    if (fresh_ != delivered_) writeRecord();
    return delivery_;
  }

 private:
  void makeFolder() {
    for (std::size_t end = 0; end != std::string::npos;) {
      end = folder_.find('/', end + 1);
      if (const auto part = folder_.substr(0, end); !files_.directoryExists(part)) files_.MkDir(part);
    }
    if (!files_.directoryExists(folder_)) throw Failure("Ce n'est pas un dossier : " + folder_ + ".");
  }

  void read() {
    for (const auto& entry : files_.list(installed_))
      if (!entry.isFolder) fresh_[entry.name] = checksum(files_.read(installed_ + "/" + entry.name));
    if (fresh_.empty()) throw Failure("Il n'y a pas de données de jeu dans " + installed_ + ".");
    for (const auto& [name, sum] : fresh_)
      if (files_.fileExists(pathOf(name))) own_[name] = checksum(files_.read(pathOf(name)));
    readRecord();
    allUntouched_ = std::all_of(own_.begin(), own_.end(), [this](const auto& file) {
      return file.second == fresh_.at(file.first) || file.second == deliveredSum(file.first);
    });
  }

  void deliver(const std::string& name) {
    const auto own = own_.find(name);
    const bool isThere = own != own_.end();
    if (isThere && own->second == fresh_.at(name)) return;
    if (!isThere || allUntouched_) {
      write(name, files_.read(installed_ + "/" + name));
      if (isThere) delivery_.taken.push_back(name);
    } else if (deliveredSum(name) != fresh_.at(name)) {
      delivery_.waiting.push_back(name);
    }
  }

  // Whole or not at all.
  void write(const std::string& name, const std::string& bytes) {
    const std::string begun = pathOf("." + name + ".~");
    files_.Kill(begun);
    files_.write(begun, bytes);
    files_.replace(begun, pathOf(name));
  }

  void readRecord() {
    if (!files_.fileExists(pathOf(recordName))) return;
    std::istringstream lines(files_.read(pathOf(recordName)));
    for (std::string sum, name; lines >> sum && std::getline(lines >> std::ws, name);) delivered_[name] = sum;
  }

  void writeRecord() {
    std::string text;
    for (const auto& [name, sum] : fresh_) text += sum + " " + name + "\n";
    write(recordName, text);
  }

  std::string pathOf(const std::string& name) const { return folder_ + "/" + name; }

  std::string deliveredSum(const std::string& name) const {
    const auto found = delivered_.find(name);
    return found == delivered_.end() ? std::string() : found->second;
  }

  Files& files_;
  const std::string installed_;
  const std::string folder_;
  Checksums fresh_;      // of what is installed
  Checksums own_;        // of what the user has of it
  Checksums delivered_;  // of what was delivered the time before
  bool allUntouched_ = true;
  Delivery delivery_;
};

std::string listed(const std::vector<std::string>& names) {
  std::string text;
  for (const auto& name : names) text += (text.empty() ? "" : ", ") + name;
  return text;
}

}  // namespace

std::string workFolder() {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  if (qEnvironmentVariableIsEmpty("HOME") || documents.isEmpty())
    throw Failure("Il n'y a pas de dossier personnel (HOME) où garder vos personnages.");
  return documents.toStdString() + "/Orvane";
}

Delivery deliver(Files& files, const std::string& installed, const std::string& folder) {
  return WorkFolder(files, installed, folder).deliver();
}

std::string wordsOn(const Delivery& delivery, const std::string& installed, const std::string& folder) {
  if (!delivery.waiting.empty())
    return "Cette version apporte des données de jeu plus récentes : " + listed(delivery.waiting) +
           ".\n\nVous avez changé les vôtres : elles restent comme elles sont, dans\n" + folder +
           "\n\nLes nouvelles se trouvent dans\n" + installed;
  if (!delivery.taken.empty())
    return "Les données de jeu ont été mises à jour dans\n" + folder + "\n\n" + listed(delivery.taken) + ".";
  return {};
}

}  // namespace orvane
