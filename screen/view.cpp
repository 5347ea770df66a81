#include "screen/view.h"

#include <utility>

#include "screen/form_view.h"
#include "screen/steps.h"

namespace orvane {
namespace {

class EventHook : public QObject {
 public:
  EventHook(QObject* parent, std::function<bool(QEvent&)> reaction) : QObject(parent), reaction_(std::move(reaction)) {}
  bool eventFilter(QObject*, QEvent* event) override { return reaction_(*event); }

 private:
  std::function<bool(QEvent&)> reaction_;
};

}  // namespace

View::View(Control& control, QWidget& widget, FormView& form) : control_(control), widget_(widget), form_(form) {
  control_.watch(*this);
}

View::~View() { detach(); }

void View::sync() {
  widget_.setEnabled(isOpen());
  widget_.setVisible(control_.Visible());
  show();
}

void View::detach() {
  if (std::exchange(detached_, true)) return;
  control_.unwatch(*this);
}

void View::controlChanged(Control&) { form_.schedule(*this); }

void View::act(const Deed& deed) {
  if (detached_ || form_.isSyncing()) return;
  form_.door().act(deed);
  form_.schedule(*this);
}

bool View::stepPressed(const QEvent& event, const Deed& select) {
  const int step = stepAskedBy(event);
  auto* arrow = step == 0 ? nullptr : arrowBeside(control_, step);
  if (!arrow) return false;
  reveal();
  act([&](User& user) {
    if (select) select(user);
    user.click(*arrow);
    user.focus(control_);
  });
  return true;
}

View* View::viewOf(const Control& other) const { return form_.viewOf(other); }

void View::onEvent(QWidget& widget, std::function<bool(QEvent&)> reaction) {
  widget.installEventFilter(new EventHook(
      &context_, [this, reaction = std::move(reaction)](QEvent& event) { return !detached_ && reaction(event); }));
}

}  // namespace orvane
