#include "session/past_text.h"

#include <algorithm>

#include "player/act_kinds.h"

namespace orvane {

bool isAhead(const Act& act) { return act.kind == actNamed("clock") || act.kind == actNamed("answer"); }

namespace {

// Lines count from 1.
std::string linesBefore(const std::string& text, int line) {
  std::size_t end = 0;
  for (int passed = 1; passed < line; ++passed) end = text.find('\n', end) + 1;
  return text.substr(0, end);
}

std::string textBefore(const std::string& text, const Script& script, std::size_t act) {
  while (act > 0 && isAhead(script.acts[act - 1])) --act;
  return act == script.acts.size() ? text : linesBefore(text, script.acts[act].line);
}

}  // namespace

std::string textBefore(const std::string& text, const Script& script, const Act& act) {
  return textBefore(text, script, static_cast<std::size_t>(&act - script.acts.data()));
}

std::string wholeActs(const std::string& text, const Script& script) {
  return textBefore(text, script, script.acts.size());
}

}  // namespace orvane
