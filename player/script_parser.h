#pragma once

#include <string>
#include <string_view>

#include "player/script.h"

namespace orvane {

// Why a script cannot be played: "FILE:LINE: reason", the reason in French.
struct ScriptError {
  std::string message;
};

// Parses the bytes of a script. The file is what messages call it. Throws a ScriptError.
Script parseScript(const std::string& file, std::string_view bytes);

}  // namespace orvane
