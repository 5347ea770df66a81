#pragma once

#include <string>

#include "player/script.h"

namespace orvane {

// Whether it is meant for the act behind it: a clock or answers.
bool isAhead(const Act& act);

// The text of a session in front of one of its acts, without the clock and the answers that are meant for that act.
std::string textBefore(const std::string& text, const Script& script, const Act& act);

// The text of a session without a clock and answers that no act comes behind.
std::string wholeActs(const std::string& text, const Script& script);

}  // namespace orvane
