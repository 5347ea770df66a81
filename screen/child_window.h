#pragma once

#include <memory>

#include <QMdiArea>
#include <QMdiSubWindow>

#include "screen/form_view.h"

namespace orvane {

// A child window of the main window. It closes when its form is unloaded, and not before.
class ChildWindow final : public QMdiSubWindow {
 public:
  ChildWindow(Form& form, ScreenDoor& door, QMdiArea& area);

  Form& form() const { return view_->form(); }
  // Takes the size that the form is designed for, or, where a form of a fixed size has something to scroll, a larger
  // one that still leaves the room something of other windows.
  void measure(const QSize& room);
  // After that, at that corner of the room, with as much of the contents as there is room for.
  void openAt(const QPoint& corner, const QSize& room);
  void showCaption();
  // Gives the keyboard to the widget that had it last, else to the first one.
  void takeKeyboard();
  // Gives it to the control that has the focus on the form, where there is one.
  void giveKeyboardToFocus();
  // The form has ended; the window goes away at the next turn of the event loop.
  void end();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void answerEscape();

  ScreenDoor& door_;
  QWidget* pane_;
  QSize design_;
  std::unique_ptr<FormView> view_;
};

}  // namespace orvane
