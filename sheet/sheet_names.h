#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace orvane {

// Where the sheets are saved.
inline constexpr const char* sheetFolder = "./Perso";

// Why a character's name cannot name its files, a French clause without a full stop; none when it can.
std::optional<std::string> faultOfFileName(const std::string& name);

// NAME_1 for side 0, NAME_2 for side 1, with a suffix of four characters.
std::string sideName(const std::string& name, std::size_t side, const char* suffix);

// ./Perso/NAME_1.bmp for side 0, ./Perso/NAME_2.bmp for side 1.
std::string goalOf(const std::string& name, std::size_t side);

// ./Perso/NAME.pdf
std::string paperGoalOf(const std::string& name);

}  // namespace orvane
