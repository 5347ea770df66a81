#include "screen/tab_stops.h"

namespace orvane {

QWidget* tabStopBehind(const QWidget& widget, const QWidget& pane) {
  for (auto* next = widget.nextInFocusChain(); next != &widget; next = next->nextInFocusChain())
    if (pane.isAncestorOf(next) && next->focusPolicy() & Qt::TabFocus && next->isEnabled() && next->isVisible())
      return next;
  return nullptr;
}

}  // namespace orvane
