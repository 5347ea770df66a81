#include "screen/option_button_view.h"

#include <algorithm>

#include <QButtonGroup>
#include <QKeyEvent>
#include <QSignalBlocker>

#include "canvas/qt_text.h"
#include "surface/form.h"

namespace orvane {
namespace {

int arrowStep(int key) {
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Left:
      return -1;
    case Qt::Key_Down:
    case Qt::Key_Right:
      return 1;
    default:
      return 0;
  }
}

}  // namespace

OptionButtonView::OptionButtonView(OptionButton& option, QRadioButton& button, FormView& form)
    : View(option, button, form), option_(option), button_(button) {
  // In a group of its own that is not exclusive, yet to screen readers a radio button.
  auto* alone = new QButtonGroup(&button_);
  alone->setExclusive(false);
  alone->addButton(&button_);
  button_.setAutoExclusive(true);
  button_.setFocusPolicy(Qt::StrongFocus);
  on(&button_, &QRadioButton::clicked, [this] { act([this](User& user) { user.click(option_); }); });
  onEvent(button_, [this](QEvent& event) { return arrowPressed(event); });
}

void OptionButtonView::show() {
  const QSignalBlocker silent(button_);
  if (const QString caption = toQt(option_.Caption()); button_.text() != caption) button_.setText(caption);
  button_.setChecked(option_.Value());
}

bool OptionButtonView::arrowPressed(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const Deed select = [this](User& user) {
    if (!option_.Value()) user.click(option_);
  };
  if (stepPressed(event, select)) return true;
  const int step = arrowStep(static_cast<const QKeyEvent&>(event).key());
  if (step != 0) moveBy(step);
  return step != 0;
}

// A group may span several rows of captions on several tabs; arrows stay in the row.
std::vector<OptionButton*> OptionButtonView::row() const {
  std::vector<OptionButton*> members;
  for (auto* control : option_.form().controls()) {
    auto* member = dynamic_cast<OptionButton*>(control);
    if (member && member->holder() == option_.holder() && member->Name() == option_.Name() &&
        (member == &option_ || !member->unreachable()))
      members.push_back(member);
  }
  return members;
}

void OptionButtonView::moveBy(int step) {
  const auto members = row();
  const auto count = static_cast<int>(members.size());
  const auto here = static_cast<int>(std::find(members.begin(), members.end(), &option_) - members.begin());
  OptionButton& next = *members[static_cast<std::size_t>((here + step + count) % count)];
  if (View* view = viewOf(next)) view->focusWidget().setFocus(Qt::OtherFocusReason);
  act([&](User& user) { user.click(next); });
}

}  // namespace orvane
