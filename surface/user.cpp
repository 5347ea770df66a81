#include "surface/user.h"

#include <utility>

#include "surface/list_view.h"

namespace orvane {

void User::requireOpen(const Form& form) const {
  if (!form.isLoaded() || !form.isVisible()) throw Refusal{"La fenêtre « " + form.title() + " » n'est pas ouverte."};
  if (desktop_.modal() && desktop_.modal() != &form)
    throw Refusal{"La fenêtre « " + desktop_.modal()->title() + " » attend d'abord une réponse."};
}

Control& User::requireReachable(Control& control) const {
  requireOpen(control.form());
  if (const auto reason = control.unreachable()) throw Refusal{*reason};
  return control;
}

void User::moveFocus(Control& control) {
  Form& form = control.form();
  if (form.focused_ == &control) return;
  // The one that loses the focus is told while it still seems to have it, so it cannot be told twice.
  Control* former = std::exchange(form.focused_, &control);
  if (former) desktop_.perform([&] { former->LostFocus.fire(); });
  desktop_.perform([&] { control.GotFocus.fire(); });
}

void User::act(Control& control, const Effect& effect) {
  desktop_.perform([&] {
    // What fails on the way is told and does not hold up the act.
    desktop_.perform([&] { desktop_.activate(control.form()); });
    if (control.takesFocus()) moveFocus(control);
    // A handler of the focus may have closed the window or disabled the control.
    if (control.form().isLoaded() && !control.unreachable()) effect();
  });
}

void User::click(Control& control) { act(control, requireReachable(control).prepareClick()); }

void User::type(Control& control, std::string text) {
  act(control, requireReachable(control).prepareType(std::move(text)));
}

void User::pick(Control& control, const Entry& entry) { act(control, requireReachable(control).preparePick(entry)); }

void User::row(Control& control, const Entry& row) { act(control, requireReachable(control).prepareRow(row)); }

void User::toggle(Control& control, const Entry& row) { act(control, requireReachable(control).prepareToggle(row)); }

void User::edit(Control& control, const Entry& row, std::string text) {
  act(control, requireReachable(control).prepareEdit(row, std::move(text)));
}

bool User::beginEdit(ListView& list) {
  requireReachable(list);
  return list.beginEdit();
}

void User::endEdit(ListView& list, const ListItemRef& row, std::string text) {
  desktop_.perform([&] { list.endEdit(row, std::move(text)); });
}

void User::scroll(Control& control, int value) { act(control, requireReachable(control).prepareScroll(value)); }

void User::focus(Control& control) {
  if (!requireReachable(control).takesFocus()) throw Refusal{control.id() + " ne prend pas le focus."};
  act(control, [] {});
}

void User::activate(Form& form) {
  requireOpen(form);
  if (form.role() != Form::Role::Child) throw Refusal{"La fenêtre « " + form.title() + " » ne s'active pas."};
  // The active one may be an icon, which its list of windows brings back.
  desktop_.perform([&] { desktop_.activeChild() == &form ? desktop_.show(form) : desktop_.activate(form); });
}

void User::close(Form& form) {
  requireOpen(form);
  desktop_.perform([&] { desktop_.unload(form); });
}

}  // namespace orvane
