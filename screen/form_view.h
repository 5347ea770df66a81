#pragma once

#include <memory>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "screen/screen_door.h"
#include "screen/view.h"
#include "surface/form.h"

namespace orvane {

// The views of all controls of one form on the widgets of its layout. Whatever changes is shown once for each turn of
// the event loop. Keeps the form alive: a handler may unload it inside a signal of its own widget.
class FormView : public QObject {
 public:
  // Throws std::logic_error for a control that has no widget of its kind.
  FormView(Form& form, QWidget& root, ScreenDoor& door);
  ~FormView() override;

  Form& form() const { return *form_; }
  QWidget& root() const { return root_; }
  // None for a control that is not on the screen.
  View* viewOf(const Control& control) const;

  ScreenDoor& door() const { return door_; }
  // Brings into sight what the arrow button steps.
  void reveal(const Control& arrow);
  // While the views are brought up to date; what widgets report meanwhile is no act.
  bool isSyncing() const { return syncing_; }
  // Brings a view up to date at the next turn.
  void schedule(View& view);
  // Shows now what waits for the next turn.
  void flush();
  void detach();
  // To the control that has the focus on the form, where there is one, behind what stands in it.
  void giveKeyboardToFocus();
  // For a widget that had the keyboard, in a way, when another window took it.
  void giveKeyboardOnReturn(QWidget& heir) { heir_ = &heir; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void makeViews();
  void followFocus();
  void syncAll();
  void focusEntered(QObject* widget);
  void focusReturned();

  std::shared_ptr<Form> form_;
  QWidget& root_;
  ScreenDoor& door_;
  std::vector<std::unique_ptr<View>> views_;
  std::vector<View*> dirty_;
  QPointer<QWidget> heir_;
  bool flushPosted_ = false;
  bool syncing_ = false;
  bool detached_ = false;
};

// "txtCaract_3"
QString widgetName(const Control& control);

}  // namespace orvane
