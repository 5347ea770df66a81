#include <cstdint>
#include <string>

#include "fuzz/require.h"
#include "player/script_parser.h"
#include "surface/property.h"

namespace orvane::fuzz {
namespace {

void checkActs(const Script& script) {
  int line = 0;
  for (const Act& act : script.acts) {
    require(act.kind != nullptr, "an act has a kind");
    require(act.line > line, "acts stand in the order of their lines");
    line = act.line;
    const Script again = parseScript("again", "type t " + quoted(act.text));
    require(again.acts.at(0).text == act.text, "a text that was read is written to be read again");
  }
}

}  // namespace
}  // namespace orvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace orvane;
  try {
    fuzz::checkActs(parseScript("x", {reinterpret_cast<const char*>(bytes), size}));
  } catch (const ScriptError& error) {
    fuzz::require(error.message.starts_with("x:"), "a reason says where");
  }
  return 0;
}
