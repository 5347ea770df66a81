#pragma once

#include <memory>

#include <QDialog>

#include "screen/form_view.h"

class QEventLoop;

namespace orvane {

// A window of its own: a modal dialog, the splash or the About box. It closes when its form is unloaded, and not
// before.
class DialogWindow final : public QDialog {
 public:
  DialogWindow(Form& form, ScreenDoor& door, QWidget* parent);

  Form& form() const { return view_->form(); }
  void showCaption();
  // Blocks until the form is unloaded.
  void runModal();
  void openOnScreen();
  // Paints at once.
  void paintNow();
  // The form has ended; the window goes away at the next turn of the event loop.
  void end();

  // The Escape key.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void close();
  void centre();

  ScreenDoor& door_;
  bool frameless_ = false;
  std::unique_ptr<FormView> view_;
  QEventLoop* loop_ = nullptr;
};

}  // namespace orvane
