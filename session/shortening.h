#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "surface/world.h"

namespace orvane {

struct Shortened {
  std::string text;
  std::size_t acts = 0;  // before
  std::size_t kept = 0;
};

// The session without acts that its result does not need, comments left where they are. The result, which both were
// played for, is all that the windows hold, the sheets they would show, and the sheets that were saved. Goes by the
// data of the current directory and writes nothing. Told how many acts are settled; stops trying further ones where
// that gives false. Throws a Failure where the session cannot be played whole.
Shortened shortened(const std::string& session, Files& files, Pictures& pictures,
                    const std::function<bool(std::size_t settled, std::size_t of)>& progress);

}  // namespace orvane
