#include "screen/label_view.h"

#include <QMouseEvent>

#include "screen/qt_text.h"

namespace orvane {

LabelView::LabelView(Label& label, QLabel& text, FormView& form) : View(label, text, form), label_(label), text_(text) {
  text_.setTextFormat(Qt::PlainText);  // names from the data files are no markup
  onEvent(text_, [this](QEvent& event) {
    if (event.type() != QEvent::MouseButtonPress || static_cast<QMouseEvent&>(event).button() != Qt::LeftButton)
      return false;
    act([this](User& user) { user.click(label_); });
    return true;
  });
}

void LabelView::show() {
  const QString caption = shownLines(label_.Caption());
  if (text_.text() != caption) text_.setText(caption);
}

ImageView::ImageView(Image& image, QLabel& label, FormView& form) : View(image, label, form) {
  constexpr qreal logoWidth = 320;
  QPixmap picture(":/art/" + toQt(image.picture()) + ".png");
  if (picture.isNull()) return;
  picture.setDevicePixelRatio(picture.width() / logoWidth);
  label.setPixmap(picture);
}

}  // namespace orvane
