#pragma once

#include <QWidget>

#include "screen/screen_dialogs.h"
#include "screen/windows.h"
#include "surface/user.h"

namespace orvane::test {

// A user in front of the real widgets: every act is mouse and keys on the widget that bears the control's name. What is
// refused must be out of reach on the screen too.
class WidgetUser : public User {
 public:
  WidgetUser(Desktop& desktop, ScreenDialogs& dialogs);
  ~WidgetUser() override;

  void click(Control& control) override;
  void type(Control& control, std::string text) override;
  void pick(Control& control, const Entry& entry) override;
  void row(Control& control, const Entry& row) override;
  void toggle(Control& control, const Entry& row) override;
  void edit(Control& control, const Entry& row, std::string text) override;
  void scroll(Control& control, int value) override;
  void focus(Control& control) override;
  void activate(Form& form) override;
  void close(Form& form) override;

 private:
  // Throws the Refusal of an act that cannot be done, after a look at the screen.
  void check(Control& control);
  // Lets the screen catch up, and gives the keyboard to the window of the form.
  void settle(Form& form);
  // Lets the screen catch up, and compares all of it with the forms.
  void look();
  QWidget* windowOf(const Form& form) const;
  template <class Widget>
  Widget& widget(Control& control);

  Desktop& desktop_;
  Windows windows_;
};

}  // namespace orvane::test
