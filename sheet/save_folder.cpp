#include "sheet/save_folder.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "sheet/sheet_names.h"
#include "surface/failure.h"

namespace orvane {
namespace {

constexpr std::string_view stem = ".sauvegarde-";
constexpr std::string_view overMark = "-finie";
constexpr std::size_t mostDigits = 6;

constexpr const char* freshSuffix = ".bmp";
constexpr const char* formerSuffix = ".old";
constexpr const char* nothingSuffix = ".nil";
constexpr const char* freshPaperSuffix = ".pdf";
constexpr const char* formerPaperSuffix = ".was";

std::string inFolder(const std::string& folder, const std::string& name) { return folder + '/' + name; }

bool namesSaveFolder(std::string_view name) {
  if (!name.starts_with(stem)) return false;
  name.remove_prefix(stem.size());
  if (name.ends_with(overMark)) name.remove_suffix(overMark.size());
  return !name.empty() && name.size() <= mostDigits && name.front() != '0' &&
         name.find_first_not_of("0123456789") == std::string_view::npos;
}

// All that may stand behind the name of the character.
std::vector<std::string> suffixes() {
  std::vector<std::string> found = {freshPaperSuffix, formerPaperSuffix};
  for (const std::size_t side : {0U, 1U})
    for (const char* suffix : {freshSuffix, formerSuffix, nothingSuffix}) found.push_back(sideName("", side, suffix));
  return found;
}

// The character of a file in a save folder; none for any other file.
std::optional<std::string> characterOf(const std::string& file) {
  for (const auto& suffix : suffixes()) {
    if (!file.ends_with(suffix)) continue;
    const std::string name = file.substr(0, file.size() - suffix.size());
    if (!faultOfFileName(name)) return name;
  }
  return std::nullopt;
}

bool isSaveOf(const std::vector<FolderEntry>& entries, const std::optional<std::string>& name) {
  return std::all_of(entries.begin(), entries.end(),
                     [&](const auto& entry) { return !entry.isFolder && name && characterOf(entry.name) == name; });
}

}  // namespace

SaveFolder::SaveFolder(Files& files, std::string path, std::optional<std::string> name)
    : files_(&files), path_(std::move(path)), name_(std::move(name)) {}

SaveFolder SaveFolder::make(Files& files, const std::string& name) {
  const auto entries = files.list(sheetFolder);
  const auto isTaken = [&](const std::string& wanted) {
    return std::any_of(entries.begin(), entries.end(), [&](const auto& entry) {
      return entry.name == wanted || entry.name == wanted + std::string(overMark);
    });
  };
  int number = 1;
  while (isTaken(std::string(stem) + std::to_string(number))) ++number;
  const std::string path = inFolder(sheetFolder, std::string(stem) + std::to_string(number));
  if (!files.MkDir(path)) throw Failure("Création du dossier impossible : " + path + " (ce nom est déjà pris).");
  return {files, path, name};
}

std::vector<SaveFolder> SaveFolder::findAll(Files& files) {
  std::vector<SaveFolder> found;
  for (const auto& entry : files.list(sheetFolder)) {
    if (!entry.isFolder || !namesSaveFolder(entry.name)) continue;
    const std::string path = inFolder(sheetFolder, entry.name);
    const auto entries = files.list(path);
    const auto name = entries.empty() ? std::nullopt : characterOf(entries.front().name);
    if (isSaveOf(entries, name)) found.push_back({files, path, name});
  }
  return found;
}

bool SaveFolder::isOver() const { return path_.ends_with(overMark); }

std::array<SavedSide, 2> SaveFolder::sides() const {
  std::array<SavedSide, 2> sides;
  for (std::size_t i = 0; i < sides.size(); ++i) {
    const auto path = [&](const char* suffix) { return inFolder(path_, sideName(name_.value(), i, suffix)); };
    sides[i] = {goalOf(name_.value(), i), path(freshSuffix), path(formerSuffix), path(nothingSuffix)};
  }
  return sides;
}

SavedPaper SaveFolder::paper() const {
  const auto path = [&](const char* suffix) { return inFolder(path_, name_.value() + suffix); };
  return {paperGoalOf(name_.value()), path(freshPaperSuffix), path(formerPaperSuffix)};
}

std::vector<std::string> SaveFolder::contents() const {
  std::vector<std::string> paths;
  for (const auto& entry : files_->list(path_))
    if (!entry.isFolder && characterOf(entry.name) == name_) paths.push_back(inFolder(path_, entry.name));
  return paths;
}

void SaveFolder::end() {
  files_->sync(sheetFolder);
  const std::string over = path_ + std::string(overMark);
  files_->replace(path_, over);
  path_ = over;
  files_->sync(sheetFolder);
}

void SaveFolder::reopen() {
  const std::string begun = path_.substr(0, path_.size() - overMark.size());
  files_->replace(path_, begun);
  path_ = begun;
}

void SaveFolder::remove() {
  for (const auto& path : contents()) files_->Kill(path);
  files_->Kill(path_);
}

}  // namespace orvane
