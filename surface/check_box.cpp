#include "surface/check_box.h"

namespace orvane {

CheckBox::CheckBox(Place place, std::string name, Design design)
    : Control(place, std::move(name)), value_(design.value), caption_(std::move(design.caption)) {}

void CheckBox::setValue(int value) {
  if (store(value_, value)) Click.fire();
}

PropertyList CheckBox::properties() const {
  return {{"Value", value_}, {"Enabled", Enabled()}, {"Visible", Visible()}};
}

Effect CheckBox::prepareClick() {
  return [this] { setValue(1 - value_); };
}

}  // namespace orvane
