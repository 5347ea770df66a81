#include "tests/support/approved.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace orvane::test {

namespace fs = std::filesystem;

std::string bytesOf(const fs::path& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

MemoryFiles filesOf(const fs::path& folder) {
  MemoryFiles files;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;  // the sheets that somebody saved there
    const std::string name = entry.path().filename().string();
    files.contents[name] = files.contents["./" + name] = bytesOf(entry.path());
  }
  return files;
}

namespace {

// A transcript has hundreds of lines: the first that differs tells more than both texts.
std::string firstDifference(const std::string& expected, const std::string& actual) {
  std::istringstream expectedLines(expected), actualLines(actual);
  for (int number = 1;; ++number) {
    std::string wanted, got;
    const bool wantedEnds = !std::getline(expectedLines, wanted);
    const bool gotEnds = !std::getline(actualLines, got);
    if (wantedEnds && gotEnds) return "only the ends of lines differ";
    if (wantedEnds) wanted = "(the end)";
    if (gotEnds) got = "(the end)";
    if (wanted != got) return "line " + std::to_string(number) + "\n  approved: " + wanted + "\n  now:      " + got;
  }
}

}  // namespace

void expectApproved(const fs::path& approved, const std::string& text) {
  if (std::getenv("ORVANE_REBASELINE")) {
    std::ofstream(approved, std::ios::binary) << text;
    return;
  }
  const std::string expected = bytesOf(approved);
  if (expected == text) return;
  const fs::path now = fs::temp_directory_path() / ("now-" + approved.filename().string());
  std::ofstream(now, std::ios::binary) << text;
  ADD_FAILURE() << approved.filename() << ", " << firstDifference(expected, text) << "\n  diff " << approved.string()
                << " " << now.string()
                << "\n  An intended change is approved with ORVANE_REBASELINE=1 (see README.md).";
}

}  // namespace orvane::test
