#pragma once

#include <optional>
#include <string>
#include <vector>

#include "surface/control.h"
#include "surface/world.h"

namespace orvane {

struct ActKind;

// A control as scripts name it: "txtAge", "txtCaract(3)".
struct ControlName {
  std::string name;
  std::optional<int> index;

  std::string text() const { return index ? name + "(" + std::to_string(*index) + ")" : name; }
};

// One line of a script. Which operands it has is up to its kind.
struct Act {
  const ActKind* kind = nullptr;
  int line = 0;  // from 1
  ControlName target;
  std::string property;
  Entry entry;
  std::string text;
  std::string value;  // as a transcript shows it
  int number = 0;
  float seconds = 0;
  std::vector<Answer> answers;
};

struct Script {
  std::string file;
  std::vector<Act> acts;
};

}  // namespace orvane
