#include "screen/steps.h"

#include <QKeyEvent>

#include "surface/form.h"

namespace orvane {

int stepAskedBy(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return 0;
  const auto& press = static_cast<const QKeyEvent&>(event);
  const bool ctrl = press.modifiers() & Qt::ControlModifier;
  switch (press.key()) {
    case Qt::Key_Plus:
      return ctrl ? 0 : 1;
    case Qt::Key_Minus:
      return ctrl ? 0 : -1;
    case Qt::Key_Right:
      return ctrl ? 1 : 0;
    case Qt::Key_Left:
      return ctrl ? -1 : 0;
    default:
      return 0;
  }
}

bool standTogether(const Control& one, const Control& other) {
  return one.holder() == other.holder() && one.tab() == other.tab();
}

CommandButton* arrowBeside(const Control& control, int step) {
  const auto picture = step < 0 ? CommandButton::Picture::LeftArrow : CommandButton::Picture::RightArrow;
  for (auto* other : control.form().controls()) {
    auto* arrow = dynamic_cast<CommandButton*>(other);
    if (arrow && arrow->picture() == picture && standTogether(*arrow, control)) return arrow;
  }
  return nullptr;
}

}  // namespace orvane
