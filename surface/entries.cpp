#include "surface/entries.h"

namespace orvane {

int entryPosition(const Control& control, const Entry& entry, int count, const std::function<std::string(int)>& text) {
  if (const int* position = std::get_if<int>(&entry)) {
    if (*position >= 0 && *position < count) return *position;
    throw Refusal{"Pas d'entrée " + std::to_string(*position) + " dans " + control.id() + "."};
  }
  const auto& wanted = std::get<std::string>(entry);
  for (int i = 0; i < count; ++i)
    if (text(i) == wanted) return i;
  throw Refusal{"Pas d'entrée « " + wanted + " » dans " + control.id() + "."};
}

}  // namespace orvane
