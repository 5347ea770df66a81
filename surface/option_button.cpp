#include "surface/option_button.h"

#include "surface/form.h"

namespace orvane {

void OptionButton::setValue(bool value) {
  if (value_ == value) return;
  if (value) clearGroup();
  store(value_, value);
  if (value) Click.fire();
}

void OptionButton::clearGroup() {
  for (auto* control : form().controls())
    if (control->holder() == holder())
      if (auto* other = dynamic_cast<OptionButton*>(control)) other->store(other->value_, false);
}

PropertyList OptionButton::properties() const {
  return {{"Value", value_}, {"Enabled", Enabled()}, {"Visible", Visible()}};
}

Effect OptionButton::prepareClick() {
  return [this] { setValue(true); };
}

}  // namespace orvane
