#include "tests/support/golden_scripts.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <unistd.h>

#include "tests/support/approved.h"

namespace orvane::test {
namespace {

namespace fs = std::filesystem;

const fs::path source = sourceFolder();
const fs::path scripts = source / "tests/scripts";

void addScripts(std::vector<GoldenScript>& found, const fs::path& folder, const fs::path& expected) {
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() != ".script") continue;
    const std::string name = entry.path().stem();
    const fs::path data = fs::exists(scripts / name) ? scripts / name : source / "game";
    found.push_back({name, entry.path(), expected / (name + ".expected"), data});
  }
}

}  // namespace

std::vector<GoldenScript> goldenScripts() {
  std::vector<GoldenScript> found;
  addScripts(found, scripts, scripts);
  addScripts(found, source / "examples", scripts / "examples");
  std::sort(found.begin(), found.end(), [](auto& one, auto& other) { return one.script < other.script; });
  return found;
}

std::vector<std::string> goldenArguments(const GoldenScript& script) {
  std::istringstream words(bytesOf(script.script));
  std::string line;
  std::getline(words, line);
  std::vector<std::string> arguments;
  if (line.starts_with("# orvane-batch ")) {
    std::istringstream options(line.substr(15));
    arguments.assign(std::istream_iterator<std::string>(options), {});
  }
  arguments.push_back(script.name + ".script");
  return arguments;
}

ScratchFolder::ScratchFolder(const GoldenScript& script)
    : former_(fs::current_path()),
      folder_(fs::temp_directory_path() / ("orvane-" + script.name + "-" + std::to_string(getpid()))) {
  fs::remove_all(folder_);
  fs::create_directories(folder_);
  for (const auto& entry : fs::directory_iterator(script.data))
    if (entry.is_regular_file()) fs::copy_file(entry.path(), folder_ / entry.path().filename());
  fs::copy_file(script.script, folder_ / (script.name + ".script"));
  fs::current_path(folder_);
  copied_ = files();
}

ScratchFolder::~ScratchFolder() {
  fs::current_path(former_);
  fs::remove_all(folder_);
}

std::vector<std::string> ScratchFolder::files() const {
  std::vector<std::string> paths;
  for (const auto& entry : fs::recursive_directory_iterator(folder_))
    if (entry.is_regular_file()) paths.push_back(fs::relative(entry.path(), folder_));
  std::sort(paths.begin(), paths.end());
  return paths;
}

std::string ScratchFolder::newFiles() const {
  std::string lines;
  for (const auto& path : files())
    if (!std::binary_search(copied_.begin(), copied_.end(), path)) lines += path + "\n";
  return lines;
}

std::string goldenText(const GoldenOutput& output, const ScratchFolder& folder) {
  std::string text = output.transcript;
  if (!output.errors.empty()) text += "--- standard error\n" + output.errors;
  if (const std::string files = folder.newFiles(); !files.empty()) text += "--- files\n" + files;
  return text + "--- exit status " + std::to_string(output.status) + "\n";
}

}  // namespace orvane::test
