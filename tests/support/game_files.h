#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/support/memory_files.h"
#include "tests/support/source_folder.h"

namespace orvane::test {

inline std::string bytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The folder that the program is started in, in memory.
inline MemoryFiles gameFiles() {
  MemoryFiles files;
  for (const auto& entry : std::filesystem::directory_iterator(sourceFolder() / "game")) {
    if (!entry.is_regular_file()) continue;  // the sheets that somebody saved there
    const std::string name = entry.path().filename().string();
    files.contents[name] = files.contents["./" + name] = bytesOf(entry.path());
  }
  return files;
}

}  // namespace orvane::test
