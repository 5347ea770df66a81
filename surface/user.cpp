#include "surface/user.h"

#include <utility>

namespace orvane {

void User::requireOpen(const Form& form) const {
  if (!form.isLoaded() || !form.isVisible()) throw Refusal{"La fenêtre « " + form.title() + " » n'est pas ouverte."};
  if (desktop_.modal() && desktop_.modal() != &form)
    throw Refusal{"La fenêtre « " + desktop_.modal()->title() + " » attend d'abord une réponse."};
}

void User::requireReachable(const Control& control) const {
  requireOpen(control.form());
  if (const auto reason = control.unreachable()) throw Refusal{*reason};
}

void User::moveFocus(Control& control) {
  Form& form = control.form();
  if (form.focused_ == &control) return;
  // The one that loses the focus is told while it still seems to have it, so it cannot be told twice.
  Control* former = std::exchange(form.focused_, &control);
  if (former) desktop_.perform([&] { former->LostFocus.fire(); });
  desktop_.perform([&] { control.GotFocus.fire(); });
}

void User::act(Control& control, const PreparedAct& prepared) {
  desktop_.perform([&] {
    // What fails on the way is told and does not hold up the act.
    desktop_.perform([&] { desktop_.activate(control.form()); });
    if (control.takesFocus()) moveFocus(control);
    // A handler of the focus may have closed the window or disabled the control.
    if (control.form().isLoaded() && !control.unreachable()) prepared();
  });
}

void User::click(Control& control) {
  requireReachable(control);
  act(control, control.prepareClick());
}

void User::type(Control& control, std::string text) {
  requireReachable(control);
  act(control, control.prepareType(std::move(text)));
}

void User::pick(Control& control, const Entry& entry) {
  requireReachable(control);
  act(control, control.preparePick(entry));
}

void User::row(Control& control, const Entry& row) {
  requireReachable(control);
  act(control, control.prepareRow(row));
}

void User::toggle(Control& control, const Entry& row) {
  requireReachable(control);
  act(control, control.prepareToggle(row));
}

void User::edit(Control& control, const Entry& row, std::string text) {
  requireReachable(control);
  act(control, control.prepareEdit(row, std::move(text)));
}

void User::scroll(Control& control, int value) {
  requireReachable(control);
  act(control, control.prepareScroll(value));
}

void User::focus(Control& control) {
  requireReachable(control);
  if (!control.takesFocus()) throw Refusal{control.id() + " ne prend pas le focus."};
  act(control, [] {});
}

void User::activate(Form& form) {
  requireOpen(form);
  if (form.role() != Form::Role::Child) throw Refusal{"La fenêtre « " + form.title() + " » ne s'active pas."};
  desktop_.perform([&] { desktop_.activate(form); });
}

void User::close(Form& form) {
  requireOpen(form);
  desktop_.perform([&] { desktop_.unload(form); });
}

}  // namespace orvane
