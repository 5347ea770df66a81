#pragma once

#include <filesystem>
#include <string>

#include "tests/support/memory_files.h"
#include "tests/support/source_folder.h"

namespace orvane::test {

std::string bytesOf(const std::filesystem::path& path);

// A folder that the program could be started in, in memory; without an argument that of the game.
MemoryFiles filesOf(const std::filesystem::path& folder = sourceFolder() / "game");

// Compares a text with what a person has approved, or rewrites that where the environment has ORVANE_REBASELINE.
void expectApproved(const std::filesystem::path& approved, const std::string& text);

}  // namespace orvane::test
