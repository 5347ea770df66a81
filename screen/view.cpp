#include "screen/view.h"

#include <utility>

#include "canvas/qt_text.h"
#include "screen/form_view.h"
#include "screen/readable_colours.h"
#include "screen/steps.h"
#include "surface/form.h"

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

QString inOneHint(QStringList words) {
  words.removeAll(QString());
  QString hint = words.value(0);
  for (const auto& next : words.mid(1)) hint += (next.front().isUpper() ? ". " : ", ") + next;
  return hint;
}

View::View(Control& control, QWidget& widget, FormView& form)
    : control_(control), widget_(widget), form_(form), designHint_(widget.toolTip()) {
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

void View::settle() {
  const QString hint =
      inOneHint({designHint_, markInWords(backColorOf(control_)), toQt(control_.form().hint(control_))});
  if (widget_.toolTip() != hint) widget_.setToolTip(hint);
}

void View::say(const QString& text) {
  focusWidget().setAccessibleDescription(QString());  // the same words are news each time
  focusWidget().setAccessibleDescription(text);
}

void View::takeStep(CommandButton& arrow, const Deed& before, const Deed& after) {
  form_.reveal(arrow);
  std::string former;
  act([&](User& user) {
    before(user);
    former = arrow.form().stepped(arrow);
    user.click(arrow);
    after(user);
  });
  const std::string now = detached_ ? std::string() : arrow.form().stepped(arrow);
  if (now.empty()) return;
  say(now == former ? "Refusé : " + toQt(now) + " (" + toQt(arrow.form().hint(arrow)) + ")" : toQt(now));
}

bool View::stepPressed(const QEvent& event, const Deed& select) {
  const int step = stepAskedBy(event);
  auto* arrow = step == 0 ? nullptr : arrowBeside(control_, step);
  if (!arrow) return false;
  takeStep(*arrow, select, [this](User& user) { user.focus(control_); });
  return true;
}

View* View::viewOf(const Control& other) const { return form_.viewOf(other); }

void View::onEvent(QWidget& widget, std::function<bool(QEvent&)> reaction) {
  widget.installEventFilter(new EventHook(
      &context_, [this, reaction = std::move(reaction)](QEvent& event) { return !detached_ && reaction(event); }));
}

}  // namespace orvane
