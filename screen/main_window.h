#pragma once

#include <QMainWindow>

#include "screen/screen_door.h"
#include "screen/work_area.h"
#include "shell/frmMain.h"

namespace orvane {

// The frame around all child windows. What the user does to its place and state is reported to the form.
class MainWindow final : public QMainWindow {
 public:
  MainWindow(frmMain& frame, ScreenDoor& door);

  frmMain& frame() const { return frame_; }
  ~MainWindow() override;

  WorkArea& area() { return area_; }
  // At the remembered place, as far as there is a screen for it.
  void open();
  // What children can have at most, when the frame takes all that the screen has.
  QSize largestRoom() const;
  // Grows, as far as the screen allows, until that part of the area can be seen. Never shrinks.
  void makeRoomFor(const QRect& part);
  // The form has ended.
  void end();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void addKeys();
  void activateBeside(int step);
  void reportPlacement();
  void showButtonsOf(const QMdiSubWindow* active);
  bool takesAll() const { return isMaximized() || isFullScreen(); }

  std::shared_ptr<Form> alive_;
  frmMain& frame_;
  ScreenDoor& door_;
  WorkArea& area_;
  bool open_ = false;
};

}  // namespace orvane
