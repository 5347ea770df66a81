#include "screen/cancel_button.h"

#include "surface/form.h"

namespace orvane {

CommandButton* cancelButton(const Form& form) {
  for (auto* control : form.controls())
    if (auto* button = dynamic_cast<CommandButton*>(control); button && button->isCancel()) return button;
  return nullptr;
}

}  // namespace orvane
