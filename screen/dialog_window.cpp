#include "screen/dialog_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLayout>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include "canvas/qt_text.h"
#include "screen/layouts.h"
#include "screen/pointer_shape.h"
#include "screen/readable_colours.h"
#include "surface/command_button.h"

namespace orvane {

DialogWindow::DialogWindow(Form& form, ScreenDoor& door, QWidget* parent) : QDialog(parent), door_(door) {
  layOut(form, *this);
  setObjectName(toQt(form.Name()) + "_window");
  frameless_ = form.Caption().empty();
  // A dialog without a caption has no frame either; it stands in the middle of the screen, with an edge of its own.
  if (frameless_) setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
  view_ = std::make_unique<FormView>(form, *this, door);
  showCaption();
}

void DialogWindow::paintEvent(QPaintEvent* event) {
  QDialog::paintEvent(event);
  if (!frameless_) return;
  const QColor ground = palette().color(QPalette::Window);
  QPainter painter(this);
  painter.setPen(readable(ground, ground, 3));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void DialogWindow::showCaption() { setWindowTitle(toQt(form().Caption())); }

void DialogWindow::centre() {
  measureAnew(*this);
  adjustSize();
  const auto* over = frameless_ ? nullptr : parentWidget();
  const QRect room = over && over->isVisible() ? over->frameGeometry() : screen()->availableGeometry();
  const QRect limits = screen()->availableGeometry();
  QRect place(QPoint(), size());
  place.moveCenter(room.center());
  place.moveLeft(std::max(limits.left(), std::min(place.left(), limits.right() - place.width())));
  place.moveTop(std::max(limits.top(), std::min(place.top(), limits.bottom() - place.height())));
  move(place.topLeft());
}

void DialogWindow::openOnScreen() {
  centre();
  show();
}

void DialogWindow::runModal() {
  const PointerShape arrow(Qt::ArrowCursor);
  setWindowModality(Qt::ApplicationModal);
  const QPointer<DialogWindow> alive(this);  // the loop that it ends may delete it
  QEventLoop loop;
  loop_ = &loop;
  view_->giveKeyboardToFocus();
  openOnScreen();
  if (!form().wasUnloaded()) loop.exec(QEventLoop::DialogExec);
  if (alive) loop_ = nullptr;
}

void DialogWindow::paintNow() {
  view_->flush();
  // A window that the screen has not taken up yet has nothing to paint on.
  constexpr qint64 patience = 500;
  QElapsedTimer waited;
  for (waited.start(); windowHandle() && !windowHandle()->isExposed() && waited.elapsed() < patience;)
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
  repaint();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void DialogWindow::end() {
  view_->detach();
  hide();
  if (loop_) loop_->quit();
  deleteLater();
}

void DialogWindow::reject() {
  if (auto* cancel = cancelButton(form()))
    door_.act([cancel](User& user) { user.click(*cancel); });
  else
    close();
}

void DialogWindow::close() {
  door_.act([this](User& user) { user.close(form()); });
}

void DialogWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  close();
}

}  // namespace orvane
