#include "surface/scroll_bar.h"

namespace orvane {

ScrollBar::ScrollBar(Place place, std::string name, Design design) : PlacedControl(place, std::move(name)) {
  setSizeTwips(design.width, design.height);
}

void ScrollBar::setValue(int value) {
  if (store(value_, value)) Change.fire();
}

PropertyList ScrollBar::properties() const {
  return {{"Value", value_}, {"Max", max_}, {"Enabled", Enabled()}, {"Visible", Visible()}};
}

Effect ScrollBar::prepareScroll(int value) {
  if (value < 0 || value > max_)
    throw Refusal{id() + " va de 0 à " + std::to_string(max_) + ", pas jusqu'à " + std::to_string(value) + "."};
  return [this, value] { setValue(value); };
}

}  // namespace orvane
