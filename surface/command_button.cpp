#include "surface/command_button.h"

#include "surface/form.h"

namespace orvane {

CommandButton::CommandButton(Place place, std::string name, Design design)
    : Control(place, std::move(name)),
      caption_(std::move(design.caption)),
      picture_(design.picture),
      cancel_(design.cancel) {
  setVisible(design.visible);
}

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
