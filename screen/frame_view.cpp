#include "screen/frame_view.h"

#include <QGroupBox>
#include <QPixmap>

#include "canvas/qt_text.h"

namespace orvane {

FrameView::FrameView(Frame& frame, QWidget& box, FormView& form) : View(frame, box, form) {
  if (auto* group = dynamic_cast<QGroupBox*>(&box)) group->setTitle(toQt(frame.Caption()));
}

ImageView::ImageView(Image& image, QLabel& label, FormView& form) : View(image, label, form) {
  constexpr qreal logoWidth = 320;
  QPixmap picture(":/art/" + toQt(image.picture()) + ".png");
  if (picture.isNull()) return;
  picture.setDevicePixelRatio(picture.width() / logoWidth);
  label.setPixmap(picture);
}

}  // namespace orvane
