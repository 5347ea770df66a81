#pragma once

#include <string>

#include "screen/windows.h"
#include "surface/desktop.h"

namespace orvane::test {

// The drawn powers that anything of their characters' windows, or of the box in front, tells in some way; empty when
// none does.
std::string toldSecrets(const Desktop& desktop, const Windows& windows);

}  // namespace orvane::test
