#include "surface/command_button.h"

#include "surface/form.h"

namespace orvane {

PropertyList CommandButton::properties() const { return {{"Enabled", Enabled()}, {"Visible", Visible()}}; }

Effect CommandButton::prepareClick() {
  return [this] { Click.fire(); };
}

CommandButton* cancelButton(const Form& form) {
  for (auto* control : form.controls())
    if (auto* button = dynamic_cast<CommandButton*>(control); button && button->isCancel()) return button;
  return nullptr;
}

}  // namespace orvane
