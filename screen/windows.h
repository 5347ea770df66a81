#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "screen/child_window.h"
#include "screen/dialog_window.h"
#include "screen/main_window.h"
#include "screen/screen_door.h"
#include "surface/desktop.h"

namespace orvane {

// The windows of all forms that are shown.
class Windows final : public DesktopObserver {
 public:
  // Acts are those of the user, who outlives them.
  Windows(Desktop& desktop, User& user);
  ~Windows() override;

  ScreenDoor& door() { return door_; }
  MainWindow* mainWindow() const { return main_.get(); }
  // None for a form without an open window.
  ChildWindow* childOf(const Form& form) const;
  DialogWindow* dialogOf(const Form& form) const;
  // Shows a form and blocks until it is unloaded.
  void runModal(Form& form);
  // Lets forms come and go unseen; after that, shows those that are open.
  void lookAway();
  void catchUp();
  // Run once the main window has closed.
  std::function<void()> closed;

  void shown(Form& form) override;
  void unloaded(Form& form) override;
  void activated(Form& form) override;
  void captionChanged(Form& form) override;
  void refresh(Form& form) override;
  void arrange(Arrangement arrangement) override;

 private:
  void showFrame(Form& form);
  void showChild(Form& form);
  DialogWindow& openDialog(Form& form);
  void bringToFront(ChildWindow& window);
  void place(ChildWindow& window);
  void noteVacated(const ChildWindow& window);
  QPoint cornerFor(const ChildWindow& window) const;
  QPoint freeCorner(const QSize& size) const;
  void activatedByUser(QMdiSubWindow* window);

  Desktop& desktop_;
  ScreenDoor door_;
  std::unique_ptr<MainWindow> main_;
  // Those of unloaded forms are gone from here, and deleted later by Qt.
  std::vector<ChildWindow*> children_;
  std::vector<DialogWindow*> dialogs_;
  // What a form closed by the act that still runs leaves to the next one of its kind.
  struct Vacated {
    std::string name;
    QRect place;
    bool maximised;
    bool verso;
  };
  std::optional<Vacated> vacated_;
  // True while Qt follows the desktop and not the user.
  bool following_ = false;
};

}  // namespace orvane
