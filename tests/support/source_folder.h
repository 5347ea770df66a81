#pragma once

#include <filesystem>

namespace orvane::test {

// The folder of this project's sources.
std::filesystem::path sourceFolder();

}  // namespace orvane::test
