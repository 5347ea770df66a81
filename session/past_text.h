#pragma once

#include <functional>
#include <string>

#include "player/script.h"
#include "session/session_file.h"

namespace orvane {

// Whether it is meant for the act behind it: a clock or answers.
bool isAhead(const Act& act);

// The text of a session in front of one of its acts, without the clock and the answers that are meant for that act.
std::string textBefore(const std::string& text, const Script& script, const Act& act);

// The text of a session without a clock and answers that no act comes behind.
std::string wholeActs(const std::string& text, const Script& script);

// What a session holds. What a program that died left of an act is told, where it is half a line, and cut off. Throws a
// ScriptError, with the file as it was, for a file that is no session.
Script takePast(SessionFile& file, const std::function<void(const std::string& torn)>& tell);

}  // namespace orvane
