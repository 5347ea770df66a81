#pragma once

#include <functional>

#include <QEvent>
#include <QObject>
#include <QStringList>
#include <QWidget>

#include "screen/screen_door.h"
#include "surface/control.h"

namespace orvane {

class CommandButton;
class FormView;

// Some of which may be empty, as one text: sentences behind a full stop, all else behind a comma.
QString inOneHint(QStringList words);

// The widget of one control. The control is the truth: a view reads it when it has changed, and turns what the user
// does into acts; it keeps nothing of its own.
class View : public ControlObserver {
 public:
  View(Control& control, QWidget& widget, FormView& form);
  ~View() override;

  Control& control() const { return control_; }
  QWidget& widget() const { return widget_; }
  // The one that gets the keyboard when the control has the focus.
  virtual QWidget& focusWidget() { return widget_; }

  // Brings the widget up to date; never runs a handler.
  void sync();
  // The form has ended: from now on neither side hears of the other.
  void detach();
  // Does one act of the user, then brings the widget back to what the control says.
  void act(const Deed& deed);

  // Brings what an arrow button steps into sight.
  virtual void reveal() {}
  // Shows what depends on other controls, once all that changed is shown.
  virtual void settle();

  void controlChanged(Control& control) override;

 protected:
  // Whether the widget takes input; what is read only can be scrolled and copied all the same.
  virtual bool isOpen() const { return control_.Enabled(); }
  // What the kind shows beyond enabled and visible. Writes with the signals of the widget blocked.
  virtual void show() = 0;

  bool isDetached() const { return detached_; }
  FormView& form() const { return form_; }
  // Tells screen readers what has happened to what has the keyboard.
  virtual void say(const QString& text);
  // A click on an arrow button, and what is to be done around it. Says what came of it.
  void takeStep(CommandButton& arrow, const Deed& before, const Deed& after);
  // For a key that steps: as a click on the arrow button beside the control, which keeps the focus. Selects the control
  // first. False for any other event.
  bool stepPressed(
      const QEvent& event, const Deed& select = [](User&) {});
  // Of another control of the form; none when it is not on the screen.
  View* viewOf(const Control& other) const;

  template <class Sender, class Signal, class Reaction>
  void on(Sender* sender, Signal signal, Reaction reaction) {
    QObject::connect(sender, signal, &context_, reaction);
  }
  // Sees the events of a widget first; true ends an event there.
  void onEvent(QWidget& widget, std::function<bool(QEvent&)> reaction);

 private:
  Control& control_;
  QWidget& widget_;
  FormView& form_;
  const QString designHint_;
  bool detached_ = false;
  QObject context_;
};

}  // namespace orvane
