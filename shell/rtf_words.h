#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvane {

class RtfReader;

// Does what a control word or symbol says. Words that are not known do nothing.
void obeyRtfWord(RtfReader& reader, std::string_view word, std::optional<std::int32_t> parameter);

}  // namespace orvane
