#include "screen/check_box_view.h"

#include <QSignalBlocker>

#include "canvas/qt_text.h"

namespace orvane {

CheckBoxView::CheckBoxView(CheckBox& box, QCheckBox& button, FormView& form)
    : View(box, button, form), box_(box), button_(button) {
  on(&button_, &QCheckBox::clicked, [this] { act([this](User& user) { user.click(box_); }); });
}

void CheckBoxView::show() {
  const QSignalBlocker silent(button_);
  if (const QString caption = toQt(box_.Caption()); button_.text() != caption) button_.setText(caption);
  button_.setChecked(box_.Value() != 0);
}

}  // namespace orvane
