#pragma once

#include <string>
#include <vector>

namespace orvane {

// What the player is asked for: [--keep-going] [--pdf] [--contact-sheet FILE] [--with TABLE [--jobs N]]
// [SCRIPT...]
struct CommandLine {
  static constexpr int mostJobs = 64;

  bool keepGoing = false;
  bool pdf = false;  // beside each pair of bitmaps
  bool wantsHelp = false;
  bool wantsVersion = false;
  std::string table;         // empty for none
  int jobs = 1;              // 1 to mostJobs
  std::string contactSheet;  // the PDF file of all characters; empty for none
  std::vector<std::string> scripts;
};

inline const std::string standardInput = "-";

// "-" where no script is named. Throws a ScriptError.
CommandLine parseCommandLine(const std::vector<std::string>& arguments);

// In French.
std::string usageAndHelp();

}  // namespace orvane
