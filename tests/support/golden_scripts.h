#pragma once

#include <filesystem>
#include <string>
#include <vector>

// Scripts with the output that a person has approved, found by the file system.
namespace orvane::test {

struct GoldenScript {
  std::string name;
  std::filesystem::path script;
  std::filesystem::path expected;
  std::filesystem::path data;  // the folder with the data files
};

// tests/scripts/NAME.script with NAME.expected, on the data files of tests/scripts/NAME where it has some of its own;
// examples/NAME.script with tests/scripts/examples/NAME.expected.
std::vector<GoldenScript> goldenScripts();

// What plays NAME.script in the current folder.
struct GoldenOutput {
  std::string transcript;
  std::string errors;
  int status = 0;
};

// The options of a script: a first line "# orvane-batch OPTION..." gives them, and the name of the script follows.
std::vector<std::string> goldenArguments(const GoldenScript& script);

// An empty folder with copies of the data files and the script, which is the current one as long as this lives.
class ScratchFolder {
 public:
  explicit ScratchFolder(const GoldenScript& script);
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  // The paths of all files that came since, sorted, a line each.
  std::string newFiles() const;

 private:
  std::vector<std::string> files() const;

  std::filesystem::path former_;
  std::filesystem::path folder_;
  std::vector<std::string> copied_;
};

// Everything about a playing, as an expected file holds it.
std::string goldenText(const GoldenOutput& output, const ScratchFolder& folder);

}  // namespace orvane::test
