#include "screen/scroll_bar_view.h"

#include <algorithm>
#include <cmath>

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "screen/form_view.h"
#include "screen/measures.h"
#include "surface/picture_box.h"

namespace orvane {
namespace {

// What a page of the keyboard and a notch of the wheel move; the bar itself moves by one.
constexpr int pageSteps = 10;
constexpr int wheelSteps = 2;
constexpr int notch = 120;  // eighths of a degree

}  // namespace

ScrollBarView::ScrollBarView(ScrollBar& control, QScrollBar& bar, FormView& form)
    : View(control, bar, form), scroll_(control), window_(form.root()), bar_(bar) {
  bar_.setSingleStep(1);
  bar_.setPageStep(1);
  bar_.setFocusPolicy(Qt::StrongFocus);
  on(&bar_, &QScrollBar::valueChanged, [this](int value) { scrollTo(value); });
  onEvent(form.root(), [this](QEvent& event) { return rolled(event); });
}

void ScrollBarView::show() {
  const QSignalBlocker silent(bar_);
  place();
  bar_.setRange(0, std::max({0, std::min(scroll_.Max(), reach()), scroll_.Value()}));
  bar_.setValue(scroll_.Value());
  bar_.setVisible(scroll_.Visible() && (bar_.maximum() > 0 || !scroll_.form().isResizable()));
}

// Along the edge, up to the other bar if there is one.
void ScrollBarView::place() {
  if (!scroll_.form().isResizable()) return placeWidget(scroll_, bar_);
  const QSize beyond = beyondDesign(scroll_.form(), window_);
  QRect place = placeOf(scroll_);
  int free = 0;
  for (auto* control : scroll_.form().controls())
    if (const auto* other = dynamic_cast<ScrollBar*>(control); other && other != &scroll_ && !other->Visible())
      free = pixels(std::min(other->widthTwips(), other->heightTwips()));
  if (isVertical())
    place.adjust(beyond.width(), 0, beyond.width(), beyond.height() + free);
  else
    place.adjust(0, beyond.height(), beyond.width() + free, beyond.height());
  bar_.setGeometry(place);
}

// In steps, until the end of the picture on show is at the edge.
int ScrollBarView::reach() const {
  int reach = scroll_.form().isResizable() ? 0 : scroll_.Max();
  for (auto* control : scroll_.form().controls()) {
    const auto* picture = dynamic_cast<PictureBox*>(control);
    if (!picture || !picture->hasPicture() || !picture->Visible()) continue;
    const int hidden =
        isVertical() ? pixels(picture->heightTwips()) - bar_.height() : pixels(picture->widthTwips()) - bar_.width();
    const float step = twipsPerUnit(scroll_.form().ScaleMode());
    reach = std::max(reach, static_cast<int>(std::ceil(twips(hidden) / step)));
  }
  return reach;
}

void ScrollBarView::scrollTo(int value) {
  const int reached = std::clamp(value, 0, bar_.maximum());
  if (reached != scroll_.Value()) act([&](User& user) { user.scroll(scroll_, reached); });
}

// The wheel and the page keys scroll wherever they are used in the window.
bool ScrollBarView::rolled(QEvent& event) {
  if (event.type() == QEvent::Resize) show();
  if (event.type() == QEvent::Wheel) {
    const auto turn = static_cast<QWheelEvent&>(event).angleDelta();
    const int delta = isVertical() ? turn.y() : turn.x();
    if (delta == 0) return false;
    // A touchpad sends a notch in many small turns.
    turned_ += delta;
    const int steps = turned_ * wheelSteps / notch;
    turned_ -= steps * notch / wheelSteps;
    scrollTo(scroll_.Value() - steps);
    return true;
  }
  if (event.type() != QEvent::KeyPress || !isVertical()) return false;
  const int key = static_cast<QKeyEvent&>(event).key();
  if (key != Qt::Key_PageUp && key != Qt::Key_PageDown) return false;
  scrollTo(scroll_.Value() + (key == Qt::Key_PageDown ? pageSteps : -pageSteps));
  return true;
}

}  // namespace orvane
