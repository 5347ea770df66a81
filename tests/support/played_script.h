#pragma once

#include <functional>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "canvas/qt_pictures.h"
#include "player/play_scripts.h"
#include "surface/disk_files.h"
#include "tests/support/approved.h"
#include "tests/support/fakes.h"
#include "tests/support/temporary_folder.h"

namespace orvane::test {

// A script with the transcript that a person has approved, found by the file system: tests/scripts/NAME.script with
// NAME.expected, on the data files of tests/scripts/NAME where it has some of its own, else on those of the game;
// examples/NAME.script with tests/scripts/examples/NAME.expected.
struct GoldenScript {
  std::string name;
  std::filesystem::path script;
  std::filesystem::path expected;
  std::filesystem::path data;
  bool isExample = false;
};

inline std::vector<GoldenScript> goldenScripts() {
  namespace fs = std::filesystem;
  const fs::path own = sourceFolder() / "tests/scripts";
  std::vector<GoldenScript> found;
  for (const bool isExample : {false, true})
    for (const auto& entry : fs::directory_iterator(isExample ? sourceFolder() / "examples" : own)) {
      if (entry.path().extension() != ".script") continue;
      const std::string name = entry.path().stem();
      const fs::path expected = (isExample ? own / "examples" : own) / (name + ".expected");
      found.push_back(
          {name, entry.path(), expected, fs::exists(own / name) ? own / name : sourceFolder() / "game", isExample});
    }
  return found;
}

// Plays a script, through a door or by the player alone, in a folder of its own with copies of the data files, which is
// the current one as long as this lives; with the real pictures, at midday.
class PlayedScript {
 public:
  using Player = std::function<decltype(playScripts)>;

  explicit PlayedScript(const GoldenScript& script, Door* door = nullptr, const Player& player = playScripts)
      : script_(script) {
    namespace fs = std::filesystem;
    fs::current_path(folder_.path());
    for (const auto& entry : fs::directory_iterator(script.data))
      if (entry.is_regular_file()) fs::copy_file(entry.path(), entry.path().filename());
    fs::copy_file(script.script, script.script.filename());
    DiskFiles files;
    QtPictures pictures;
    FakeClock midday;
    std::istringstream in;
    status_ = player(arguments(), in, out_, errors_, {files, pictures, midday, door});
  }
  ~PlayedScript() { std::filesystem::current_path(former_); }
  PlayedScript(const PlayedScript&) = delete;
  PlayedScript& operator=(const PlayedScript&) = delete;

  // As the expected file holds it: the transcript, standard error, the files that were written, the exit status.
  std::string text() const {
    std::string text = out_.str();
    if (!errors_.str().empty()) text += "--- standard error\n" + errors_.str();
    if (const auto files = written(); !files.empty()) text += "--- files\n";
    for (const auto& path : written()) text += path + "\n";
    return text + "--- exit status " + std::to_string(status_) + "\n";
  }
  // The bytes of the bitmaps that were written, by path.
  std::map<std::string, std::string> bitmaps() const {
    std::map<std::string, std::string> found;
    for (const auto& path : written())
      if (path.ends_with(".bmp")) found[path] = bytesOf(path);
    return found;
  }

 private:
  // The options stand in a first line "# orvane-batch OPTION...".
  std::vector<std::string> arguments() const {
    std::istringstream words(bytesOf(script_.script));
    std::string line;
    std::getline(words, line);
    std::istringstream options(line.starts_with("# orvane-batch ") ? line.substr(15) : "");
    std::vector<std::string> found(std::istream_iterator<std::string>(options), {});
    found.push_back(script_.script.filename());
    return found;
  }
  std::set<std::string> written() const {
    namespace fs = std::filesystem;
    std::set<std::string> paths;
    for (const auto& entry : fs::recursive_directory_iterator("."))
      if (entry.is_regular_file() && !fs::exists(script_.data / entry.path()))
        paths.insert(entry.path().lexically_normal());
    paths.erase(script_.script.filename());
    return paths;
  }

  GoldenScript script_;
  std::filesystem::path former_ = std::filesystem::current_path();
  TemporaryFolder folder_;
  std::ostringstream out_;
  std::ostringstream errors_;
  int status_ = 0;
};

}  // namespace orvane::test
