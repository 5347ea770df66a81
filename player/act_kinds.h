#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "player/operands.h"
#include "player/script.h"

namespace orvane {

struct Stage;

// A kind of act: how it is written, and what it does. Playing throws a Refusal where a user could not do it.
struct ActKind {
  std::string name;
  std::vector<Operand> operands;
  void (*play)(Stage& stage, const Act& act);
  bool prints = false;  // or expects, and does nothing else
};

// Null for a name that no act has.
const ActKind* actNamed(std::string_view name);

}  // namespace orvane
