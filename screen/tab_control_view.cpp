#include "screen/tab_control_view.h"

#include <QAbstractButton>
#include <QMouseEvent>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTabBar>

#include "canvas/qt_text.h"
#include "surface/form.h"

namespace orvane {

TabControlView::TabControlView(TabControl& tabs, QTabWidget& widget, FormView& form)
    : View(tabs, widget, form), tabs_(tabs), widget_(widget) {
  auto* bar = widget_.tabBar();
  bar->setFocusPolicy(Qt::StrongFocus);
  for (QWidget* part : std::initializer_list<QWidget*>{&widget_, bar})
    if (part->accessibleName().isEmpty()) part->setAccessibleName(QStringLiteral("Onglets"));
  for (int i = 0; i < widget_.count() && i < tabs_.Tabs(); ++i)
    widget_.setTabText(i, withoutMnemonics(tabs_.TabCaption(i)));
  onEvent(*bar, [this](QEvent& event) { return barEvent(event); });
  // With mouse and keys seen to above, only screen readers change the current tab.
  on(bar, &QTabBar::currentChanged, [this](int tab) { pick(tab); });
  for (const auto& [key, step] : {std::pair("Ctrl+PgUp", -1), std::pair("Ctrl+PgDown", 1)}) {
    auto* shortcut = new QShortcut(QKeySequence(key), widget_.parentWidget());
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    on(shortcut, &QShortcut::activated, [this, by = step] { pickBeside(by); });
  }
}

QWidget& TabControlView::focusWidget() { return *widget_.tabBar(); }

void TabControlView::show() {
  auto* bar = widget_.tabBar();
  const QSignalBlocker silentWidget(widget_);
  for (int i = 0; i < widget_.count() && i < tabs_.Tabs(); ++i) {
    // Not through the tab widget, which would disable what stands on the tab as well.
    if (bar->isTabEnabled(i) != tabs_.TabEnabled(i)) bar->setTabEnabled(i, tabs_.TabEnabled(i));
    if (bar->isTabVisible(i) != tabs_.TabVisible(i)) bar->setTabVisible(i, tabs_.TabVisible(i));
  }
  if (widget_.currentIndex() != tabs_.Tab()) widget_.setCurrentIndex(tabs_.Tab());
  shareLetters();
}

void TabControlView::shareLetters() const {
  QList<QKeySequence> borne;
  for (const auto* button : widget_.currentWidget()->findChildren<QAbstractButton*>())
    borne << QKeySequence::mnemonic(button->text());
  for (auto* button : widget_.parentWidget()->findChildren<QAbstractButton*>()) {
    if (widget_.isAncestorOf(button)) continue;
    const auto letter = QKeySequence::mnemonic(button->text());
    button->setShortcut(borne.contains(letter) ? QKeySequence() : letter);
  }
}

bool TabControlView::barEvent(QEvent& event) {
  switch (event.type()) {
    case QEvent::Wheel:
      return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return pressed(static_cast<QMouseEvent&>(event));
    case QEvent::KeyPress:
      return keyPressed(static_cast<QKeyEvent&>(event));
    default:
      return false;
  }
}

bool TabControlView::pressed(const QMouseEvent& event) {
  if (event.button() == Qt::LeftButton) pick(widget_.tabBar()->tabAt(event.position().toPoint()));
  return true;
}

bool TabControlView::keyPressed(const QKeyEvent& event) {
  if (event.key() != Qt::Key_Left && event.key() != Qt::Key_Right) return false;
  pickBeside(event.key() == Qt::Key_Left ? -1 : 1);
  return true;
}

void TabControlView::pick(int tab) {
  if (tab >= 0) act([&](User& user) { user.pick(tabs_, tab); });
}

void TabControlView::pickBeside(int step) {
  for (int tab = tabs_.Tab() + step; tab >= 0 && tab < tabs_.Tabs(); tab += step)
    if (tabs_.TabEnabled(tab) && tabs_.TabVisible(tab)) return pick(tab);
}

}  // namespace orvane
