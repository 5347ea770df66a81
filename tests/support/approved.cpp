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

void expectApproved(const fs::path& approved, const std::string& text) {
  if (std::getenv("ORVANE_REBASELINE"))
    std::ofstream(approved, std::ios::binary) << text;
  else
    EXPECT_EQ(bytesOf(approved), text) << approved;
}

}  // namespace orvane::test
