#pragma once

#include <QMainWindow>
#include <QMdiArea>

#include "screen/screen_door.h"
#include "shell/frmMain.h"

namespace orvane {

// The frame around all child windows. What the user does to its place and state is reported to the form.
class MainWindow final : public QMainWindow {
 public:
  MainWindow(frmMain& frame, ScreenDoor& door);
  ~MainWindow() override;

  QMdiArea& area() { return area_; }
  // At the remembered place, as far as there is a screen for it.
  void open();
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
  void bringIntoSight(const QWidget* focus);

  std::shared_ptr<Form> alive_;
  frmMain& frame_;
  ScreenDoor& door_;
  QMdiArea& area_;
  bool open_ = false;
};

}  // namespace orvane
