#include "screen/tab_control_view.h"

#include <algorithm>

#include <QAbstractButton>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTabBar>

#include "canvas/qt_text.h"
#include "screen/readable_colours.h"
#include "surface/form.h"
#include "surface/list_view.h"

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

namespace {

// Told apart by their shape: a diamond stops, a triangle warns.
QIcon markIcon(Colour mark, const QPalette& palette) {
  if (markInWords(mark).isEmpty()) return {};
  const bool essential = mark == Colour::EssentialBroken;
  const QPolygonF shape =
      essential ? QPolygonF({{16, 2}, {30, 16}, {16, 30}, {2, 16}}) : QPolygonF({{16, 3}, {30, 29}, {2, 29}});
  QPixmap picture(32, 32);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor ground = palette.color(QPalette::Window);
  painter.setPen(QPen(palette.color(QPalette::WindowText), 2));
  painter.setBrush(readable(essential ? QColor(200, 0, 0) : QColor(200, 150, 0), ground, 3));
  painter.drawPolygon(shape);
  return QIcon(picture);
}

int tabOf(const Control& control, const TabControl& tabs) {
  const Control* part = &control;
  while (part && part->holder() != &tabs) part = part->holder();
  return part ? part->tab() : -1;
}

bool hasRedName(const Control& control) {
  const auto* list = dynamic_cast<const ListView*>(&control);
  return list && std::any_of(list->rows().begin(), list->rows().end(),
                             [](const auto& row) { return row->ForeColor() == Colour::Red; });
}

}  // namespace

Colour TabControlView::worstOn(int tab) const {
  Colour worst = Colour::WindowBackground;
  for (const auto* control : tabs_.form().controls()) {
    if (tabOf(*control, tabs_) != tab) continue;
    const Colour colour = hasRedName(*control) ? Colour::EssentialBroken : backColorOf(*control);
    if (colour == Colour::EssentialBroken) return colour;
    if (colour == Colour::AccessoryBroken) worst = colour;
  }
  return worst;
}

void TabControlView::settle() {
  auto* bar = widget_.tabBar();
  for (int i = 0; i < widget_.count() && i < tabs_.Tabs(); ++i) {
    const Colour mark = worstOn(i);
    const QString said = inOneHint({markInWords(mark), toQt(tabs_.form().tabHint(tabs_, i))});
    if (bar->tabToolTip(i) == said && bar->tabIcon(i).isNull() == markInWords(mark).isEmpty()) continue;
    bar->setTabIcon(i, markIcon(mark, bar->palette()));
    bar->setTabToolTip(i, said);
    bar->setAccessibleTabName(i, said.isEmpty() ? QString() : toQt(tabs_.TabCaption(i)) + ", " + said);
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
