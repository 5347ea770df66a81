#include "screen/form_view.h"

#include <algorithm>
#include <utility>

#include <QFocusEvent>
#include <QHash>
#include <QScopedValueRollback>

#include "canvas/qt_text.h"
#include "screen/line_edits.h"
#include "screen/make_view.h"
#include "screen/steps.h"
#include "surface/desktop.h"

namespace orvane {

QString widgetName(const Control& control) {
  const QString name = toQt(control.Name());
  return control.Index() ? QString("%1_%2").arg(name).arg(*control.Index()) : name;
}

FormView::FormView(Form& form, QWidget& root, ScreenDoor& door)
    : form_(form.shared_from_this()), root_(root), door_(door) {
  makeViews();
  followFocus();
  root_.installEventFilter(this);
  syncAll();
}

FormView::~FormView() { detach(); }

void FormView::makeViews() {
  QHash<QString, QWidget*> widgets;
  for (auto* widget : root_.findChildren<QWidget*>()) widgets.insert(widget->objectName(), widget);
  for (auto* control : form_->controls())
    if (auto view = makeView(*control, widgets.value(widgetName(*control)), *this)) views_.push_back(std::move(view));
}

void FormView::followFocus() {
  for (auto& view : views_)
    if (view->control().takesFocus()) view->focusWidget().installEventFilter(this);
}

View* FormView::viewOf(const Control& control) const {
  for (auto& view : views_)
    if (&view->control() == &control) return view.get();
  return nullptr;
}

void FormView::reveal(const Control& arrow) {
  for (auto& view : views_)
    if (standTogether(view->control(), arrow)) view->reveal();
}

void FormView::schedule(View& view) {
  if (detached_) return;
  if (std::find(dirty_.begin(), dirty_.end(), &view) == dirty_.end()) dirty_.push_back(&view);
  if (std::exchange(flushPosted_, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { flush(); }, Qt::QueuedConnection);
}

void FormView::flush() {
  flushPosted_ = false;
  if (detached_) return;
  const QScopedValueRollback syncing(syncing_, true);
  // Called by the event loop, through which nothing may be thrown.
  form_->desktop().perform([this] {
    for (auto* view : std::exchange(dirty_, {})) view->sync();
    for (auto& view : views_) view->settle();
  });
}

void FormView::syncAll() {
  for (auto& view : views_) schedule(*view);
  flush();
}

void FormView::detach() {
  if (std::exchange(detached_, true)) return;
  for (auto& view : views_) view->detach();
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    // Only these come from the user; Qt gives the others when windows, popups and hidden widgets come and go.
    if (reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
        reason == Qt::ShortcutFocusReason)
      focusEntered(watched);
    else
      focusReturned();
  } else if (watched == &root_ && event->type() == QEvent::PaletteChange) {
    for (auto& view : views_) schedule(*view);
  }
  return false;
}

void FormView::giveKeyboardToFocus() {
  auto* view = form_->focused() ? viewOf(*form_->focused()) : nullptr;
  if (!view) return;
  putCursorAtEnd(view->focusWidget());
  view->focusWidget().setFocus(Qt::OtherFocusReason);
}

void FormView::focusReturned() {
  if (auto* heir = std::exchange(heir_, nullptr).data())
    QMetaObject::invokeMethod(
        heir, [heir] { heir->setFocus(Qt::OtherFocusReason); }, Qt::QueuedConnection);
}

void FormView::focusEntered(QObject* widget) {
  heir_ = nullptr;
  for (auto& view : views_) {
    if (!view->control().takesFocus() || &view->focusWidget() != widget) continue;
    view->act([&](User& user) { user.focus(view->control()); });
    return;
  }
}

}  // namespace orvane
