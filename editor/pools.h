#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// What a character has to spend, how far its values go and, where a step costs more than a point, its price.
namespace orvane {

// Languages
inline constexpr double languagePool = 9;
inline constexpr double highestDegree = 5;

// Characteristics
inline constexpr double caractPool = 10;
inline constexpr double lowestCaract = -2;
inline constexpr double highestCaract = 3;
inline constexpr int negativeCaractsAllowed = 2;

// Contacts. A price, by the value that it leads to (place 0 is unused); the step back down gives it back.
inline constexpr double contactPool = 14;
using ContactPrices = std::array<std::int16_t, 4>;
inline constexpr ContactPrices contactPrices{0, 1, 2, 3};
inline constexpr double highestContactValue = contactPrices.size() - 1;

// Skills. The pool that a profile starts from, and what it gains without a mutant power and by having one drawn.
inline constexpr double skillPoolBase = 80;
inline constexpr double pointsWithoutPower = 20;
inline constexpr double pointsForDraw = 5;
inline constexpr double highestLevel = 4;
// The level that a profile brings.
inline constexpr double profileSkillLevel = 1;
inline constexpr double highestProfileSkillLevel = 8;
// The same for the martial-arts skill, which comes with as many martial-art points; what it costs on top.
inline constexpr double martialSkillLevel = 10;
inline constexpr double highestMartialSkillLevel = 99;
inline constexpr double martialSkillExtraCost = 9;

}  // namespace orvane
