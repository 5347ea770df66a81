#include "screen/frame_view.h"

#include <QGroupBox>

#include "screen/qt_text.h"

namespace orvane {

FrameView::FrameView(Frame& frame, QWidget& box, FormView& form) : View(frame, box, form) {
  if (auto* group = dynamic_cast<QGroupBox*>(&box)) group->setTitle(toQt(frame.Caption()));
}

}  // namespace orvane
