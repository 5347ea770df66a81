#include "screen/child_window.h"

#include <algorithm>

#include <QAccessibleWidget>
#include <QAction>
#include <QCloseEvent>
#include <QLayout>
#include <QMenu>
#include <QShortcut>

#include "canvas/qt_text.h"
#include "screen/layouts.h"
#include "screen/measures.h"
#include "screen/tab_stops.h"
#include "surface/command_button.h"
#include "surface/picture_box.h"

namespace orvane {
namespace {

// The pictures that code puts on a form reach below what it was designed for; the rest is for the user to scroll to.
int heightOfContents(const Form& form) {
  float bottom = form.ScaleHeight() * twipsPerUnit(form.ScaleMode());
  for (auto* control : form.controls())
    if (const auto* picture = dynamic_cast<PictureBox*>(control); picture && picture->hasPicture())
      bottom = std::max(bottom, picture->topTwips() + picture->heightTwips());
  return pixels(bottom);
}

Qt::WindowFlags frameFlags(bool resizable) {
  const Qt::WindowFlags fixed = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint;
  return resizable ? fixed | Qt::WindowMaximizeButtonHint : fixed | Qt::MSWindowsFixedSizeDialogHint;
}

// Qt calls a window by its title, which a new character lacks.
class SpokenWindow final : public QAccessibleWidget {
 public:
  explicit SpokenWindow(QWidget& window) : QAccessibleWidget(&window, QAccessible::Window) {}
  QString text(QAccessible::Text kind) const override {
    const QString text = kind == QAccessible::Name ? widget()->windowTitle() : QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && text.isEmpty() ? QStringLiteral("(sans nom)") : text;
  }
};

QAccessibleInterface* spokenWindow(const QString&, QObject* object) {
  auto* window = dynamic_cast<ChildWindow*>(object);
  return window ? new SpokenWindow(*window) : nullptr;
}

}  // namespace

// In its place before it has contents, which would be told of each new place and measured for it.
ChildWindow::ChildWindow(Form& form, ScreenDoor& door, QMdiArea& area) : door_(door), pane_(new QWidget(this)) {
  QAccessible::installFactory(spokenWindow);
  area.addSubWindow(this, frameFlags(form.isResizable()));
  setWidget(pane_);
  layOut(form, *pane_);
  design_ = pane_->size();
  setWindowIcon(QIcon(":/art/icons/orvane-16.png"));
  setObjectName(toQt(form.Name()) + "_window");
  // Qt would close the window by keys of its own, also while the user types.
  for (auto* entry : systemMenu()->actions()) entry->setShortcuts(QList<QKeySequence>());
  view_ = std::make_unique<FormView>(form, *pane_, door);
  showCaption();
  answerEscape();
}

void ChildWindow::answerEscape() {
  auto* cancel = cancelButton(form());
  if (!cancel) return;
  auto* escape = new QShortcut(Qt::Key_Escape, pane_, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, pane_,
          [this, cancel] { door_.act([cancel](User& user) { user.click(*cancel); }); });
}

void ChildWindow::measure(const QSize& room) {
  measureAnew(*pane_);
  pane_->setFixedSize(design_.expandedTo(pane_->sizeHint()));
  adjustSize();
  if (form().isResizable()) return;
  constexpr int titleOfAnother = 28;
  const int spare = room.height() - titleOfAnother - height();
  pane_->setFixedHeight(pane_->height() + std::clamp(spare, 0, pane_->height() / 2));
  adjustSize();
}

void ChildWindow::openAt(const QPoint& corner, const QSize& room) {
  move(corner);
  if (!form().isResizable()) return;
  const QSize design = size();
  const int contents = heightOfContents(form()) + design.height() - pane_->height();
  pane_->setMinimumSize(pane_->width(), 0);  // its strip of buttons stays whole
  pane_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  resize(design.width(), std::max(design.height(), std::min(contents, room.height() - corner.y())));
}

void ChildWindow::showCaption() { setWindowTitle(toQt(form().Caption())); }

void ChildWindow::takeKeyboard() {
  QWidget* taker = focusWidget();
  if (!taker) taker = tabStopBehind(*pane_, *pane_);
  (taker ? taker : this)->setFocus(Qt::OtherFocusReason);
}

void ChildWindow::giveKeyboardToFocus() { view_->giveKeyboardToFocus(); }

void ChildWindow::end() {
  view_->detach();
  hide();
  deleteLater();
}

void ChildWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  door_.act([this](User& user) { user.close(form()); });
}

}  // namespace orvane
