#include "sheet/sheet_files.h"

#include <exception>
#include <functional>
#include <utility>

#include "surface/failure.h"

namespace orvane {
namespace {

constexpr const char* folder = "./Perso";
// All suffixes are of one length: where a goal has room, its companions have.
constexpr std::size_t longestFileName = 255;  // bytes
constexpr std::size_t suffixLength = 6;

bool isControl(const std::string& name, std::size_t i) {
  const auto byte = static_cast<unsigned char>(name[i]);
  const auto next = static_cast<unsigned char>(i + 1 < name.size() ? name[i + 1] : 0);
  // U+0080 to U+009F are two bytes.
  return byte < 0x20 || byte == 0x7F || (byte == 0xC2 && next >= 0x80 && next < 0xA0);
}

bool hasControl(const std::string& name) {
  for (std::size_t i = 0; i < name.size(); ++i)
    if (isControl(name, i)) return true;
  return false;
}

// For what is done after a failure: the first reason is the one to tell.
bool succeeds(const std::function<void()>& step) {
  try {
    step();
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace

std::optional<std::string> faultOfFileName(const std::string& name) {
  if (name.find('/') != std::string::npos) return "il contient une barre oblique (/)";
  if (hasControl(name)) return "il contient un caractère de contrôle";
  if (name.size() + suffixLength > longestFileName) return "il est trop long";
  return std::nullopt;
}

SheetFiles::SheetFiles(Files& files, const std::string& name) : files_(files) {
  const std::string stem = std::string(folder) + '/' + name;
  for (std::size_t i = 0; i < sides_.size(); ++i) {
    const std::string side = stem + '_' + std::to_string(i + 1);
    sides_[i] = {side + ".bmp", side + ".~n~", {}};
  }
}

void SheetFiles::makeFolder() {
  if (!files_.directoryExists(folder)) files_.MkDir(folder);
}

void SheetFiles::save(const std::string& front, const std::string& back) {
  try {
    writeBeside(sides_[0], front);
    writeBeside(sides_[1], back);
    for (auto& side : sides_) keepFormer(side);
    for (auto& side : sides_) putInPlace(side);
  } catch (const std::exception& failure) {
    const std::string remains = undo();
    removeTraces();
    throw Failure(failure.what() + remains);
  }
  removeTraces();
}

void SheetFiles::writeBeside(const Side& side, const std::string& bytes) {
  files_.write(side.fresh, bytes);
  if (files_.read(side.fresh) != bytes) throw Failure("Le fichier " + side.fresh + " se relit autrement qu'écrit.");
}

// A copy that a failed save had to leave behind may be all that is left of an old sheet: it is never overwritten.
std::string SheetFiles::freeNameBeside(const std::string& goal) const {
  const std::string stem = goal.substr(0, goal.size() - 4);
  for (const char mark : {'o', '1', '2', '3', '4', '5', '6', '7', '8', '9'}) {
    const std::string name = stem + ".~" + mark + '~';
    if (!files_.fileExists(name)) return name;
  }
  throw Failure("Trop d'anciennes copies gardées à côté de " + goal + ".");
}

void SheetFiles::keepFormer(Side& side) {
  if (!files_.fileExists(side.goal)) return;
  side.former = freeNameBeside(side.goal);
  files_.write(side.former, files_.read(side.goal));
  side.hadFormer = true;
}

void SheetFiles::putInPlace(Side& side) {
  side.attempted = true;
  files_.replace(side.fresh, side.goal);
}

std::string SheetFiles::undo() {
  std::string remains;
  for (auto& side : sides_) {
    remains += putBack(side);
  }
  return remains;
}

std::string SheetFiles::putBack(Side& side) {
  const bool untouched = !side.attempted || files_.fileExists(side.fresh);
  if (untouched) return {};
  if (side.hadFormer) {
    if (succeeds([&] { files_.replace(side.former, side.goal); })) return {};
    return " L'ancien fichier est gardé sous " + std::exchange(side.former, {}) + ".";
  }
  if (!files_.fileExists(side.goal) || succeeds([&] { files_.Kill(side.goal); })) return {};
  return " Le nouveau fichier " + side.goal + " n'a pas pu être retiré.";
}

void SheetFiles::removeTraces() {
  for (const auto& side : sides_)
    for (const auto& path : {side.fresh, side.former})
      if (!path.empty() && files_.fileExists(path)) succeeds([&] { files_.Kill(path); });
}

}  // namespace orvane
