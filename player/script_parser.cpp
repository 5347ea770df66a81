#include "player/script_parser.h"

#include <algorithm>

#include "player/act_kinds.h"
#include "surface/text.h"

namespace orvane {
namespace {

std::string usage(const ActKind& kind) {
  std::string shown = "« " + kind.name + " » s'écrit : " + kind.name;
  for (const Operand operand : kind.operands) shown += std::string(" <") + operandName(operand) + ">";
  return shown;
}

bool takesMany(const ActKind& kind) { return !kind.operands.empty() && kind.operands.back() == Operand::Answer; }

void takeOperands(Act& act, const std::vector<Word>& words) {
  const auto& operands = act.kind->operands;
  const std::size_t count = words.size() - 1;
  if (count < operands.size() || (count > operands.size() && !takesMany(*act.kind))) throw LineError{usage(*act.kind)};
  for (std::size_t i = 0; i < count; ++i) takeOperand(act, operands[std::min(i, operands.size() - 1)], words[i + 1]);
}

Act parseAct(const std::vector<Word>& words) {
  Act act;
  if (!words.front().quoted) act.kind = actNamed(words.front().text);
  if (!act.kind) throw LineError{"acte inconnu « " + words.front().text + " »"};
  takeOperands(act, words);
  return act;
}

void parseLine(Script& script, std::string_view line, int number) {
  requireUtf8(line);
  if (line.starts_with('#')) return;
  const auto words = scriptWords(line);
  if (words.empty()) return;
  script.acts.push_back(parseAct(words));
  script.acts.back().line = number;
}

}  // namespace

Script parseScript(const std::string& file, std::string_view bytes) {
  Script script{file, {}};
  bytes = withoutByteOrderMark(bytes);
  if (bytes.ends_with('\r')) bytes.remove_suffix(1);  // a last line without its LF
  int number = 0;
  try {
    while (!bytes.empty()) parseLine(script, cutLine(bytes), ++number);
  } catch (const LineError& error) {
    throw ScriptError{file + ":" + std::to_string(number) + ": " + error.reason};
  }
  return script;
}

}  // namespace orvane
