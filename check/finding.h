#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvane {

// An error makes the reader stop or warn; a warning is about what the rules take for granted or would do; a note is
// about data that the rules know and offer to nobody.
enum class Severity { Error, Warning, Note };

// What is wrong with the data files at one place. Findings sort by their places.
struct Finding {
  std::string file;  // without a folder
  std::int32_t line = 1;
  std::int32_t column = 1;  // characters, from 1
  Severity severity = Severity::Error;
  std::string_view code;  // stable, English: see finding_kinds.h
  std::string text;       // French, without a full stop

  auto operator<=>(const Finding&) const = default;
};

}  // namespace orvane
