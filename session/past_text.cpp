#include "session/past_text.h"

#include <algorithm>

#include "player/act_kinds.h"
#include "player/script_parser.h"

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

Script takePast(SessionFile& file, const std::function<void(const std::string& torn)>& tell) {
  const auto parsed = [&](const std::string& text) { return parseScript(file.path(), text); };
  // A picture or a letter that was given for a session has a last line to lose too: nothing is cut before it is parsed.
  const Script whole = parsed(file.text());
  if (file.text().empty()) parsed(file.torn());
  if (!file.torn().empty()) tell(file.torn());
  const std::string text = wholeActs(file.text(), whole);
  if (text != file.text() || !file.torn().empty()) file.cut(text);
  return parsed(file.text());
}

}  // namespace orvane
