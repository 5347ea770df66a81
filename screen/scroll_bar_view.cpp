#include "screen/scroll_bar_view.h"

#include <algorithm>

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "screen/form_view.h"
#include "screen/measures.h"

namespace orvane {
namespace {

// What a page of the keyboard and a notch of the wheel move; the bar itself moves by one.
constexpr int pageSteps = 10;
constexpr int wheelSteps = 2;
constexpr int notch = 120;  // eighths of a degree

}  // namespace

ScrollBarView::ScrollBarView(ScrollBar& control, QScrollBar& bar, FormView& form)
    : View(control, bar, form), scroll_(control), bar_(bar) {
  bar_.setSingleStep(1);
  bar_.setPageStep(1);
  bar_.setFocusPolicy(Qt::StrongFocus);
  on(&bar_, &QScrollBar::valueChanged, [this](int value) { scrollTo(value); });
  onEvent(form.root(), [this](QEvent& event) { return rolled(event); });
}

void ScrollBarView::show() {
  const QSignalBlocker silent(bar_);
  placeWidget(scroll_, bar_);
  bar_.setRange(0, std::max(0, scroll_.Max()));
  bar_.setValue(scroll_.Value());
}

void ScrollBarView::scrollTo(int value) {
  const int reached = std::clamp(value, 0, std::max(0, scroll_.Max()));
  if (reached != scroll_.Value()) act([&](User& user) { user.scroll(scroll_, reached); });
}

// The wheel and the page keys scroll wherever they are used in the window.
bool ScrollBarView::rolled(QEvent& event) {
  if (event.type() == QEvent::Wheel) {
    const auto turn = static_cast<QWheelEvent&>(event).angleDelta();
    const int delta = bar_.orientation() == Qt::Vertical ? turn.y() : turn.x();
    if (delta == 0) return false;
    // A touchpad sends a notch in many small turns.
    turned_ += delta;
    const int steps = turned_ * wheelSteps / notch;
    turned_ -= steps * notch / wheelSteps;
    scrollTo(scroll_.Value() - steps);
    return true;
  }
  if (event.type() != QEvent::KeyPress || bar_.orientation() != Qt::Vertical) return false;
  const int key = static_cast<QKeyEvent&>(event).key();
  if (key != Qt::Key_PageUp && key != Qt::Key_PageDown) return false;
  scrollTo(scroll_.Value() + (key == Qt::Key_PageDown ? pageSteps : -pageSteps));
  return true;
}

}  // namespace orvane
