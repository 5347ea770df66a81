#include "session/recording.h"

#include <algorithm>

#include "session/act_lines.h"

namespace orvane {

bool RecordingUser::frameIsOpen() const {
  const auto& forms = desktop_.Forms();
  return std::any_of(forms.begin(), forms.end(), [](const auto& form) { return form->role() == Form::Role::Frame; });
}

void RecordingUser::record(std::string lines, const std::function<void()>& act) {
  const Form* dialog = desktop_.modal();
  journal_.begin(std::move(lines));
  try {
    act();
  } catch (const Refusal&) {
    journal_.leaveOut();
    throw;
  }
  if (!frameIsOpen()) journal_.leaveOut();
  // An act that has closed its dialog goes on with what the one that opened it has yet to do, and to ask.
  if (desktop_.modal() == dialog) journal_.write();
}

void RecordingUser::click(Control& control) {
  record(targetLine("click", control), [&] { User::click(control); });
}

void RecordingUser::type(Control& control, std::string text) {
  record(textLine("type", control, text), [&] { User::type(control, std::move(text)); });
}

void RecordingUser::pick(Control& control, const Entry& entry) {
  record(entryLine("pick", control, entry), [&] { User::pick(control, entry); });
}

void RecordingUser::row(Control& control, const Entry& row) {
  record(entryLine("row", control, row), [&] { User::row(control, row); });
}

void RecordingUser::toggle(Control& control, const Entry& row) {
  record(entryLine("toggle", control, row), [&] { User::toggle(control, row); });
}

void RecordingUser::edit(Control& control, const Entry& row, std::string text) {
  record(entryLine("edit", control, row) + " " + quoted(text), [&] { User::edit(control, row, std::move(text)); });
}

void RecordingUser::endEdit(ListView& list, const ListItemRef& row, std::string text) {
  record(entryLine("edit", list, row->Index()) + " " + quoted(text),
         [&] { User::endEdit(list, row, std::move(text)); });
}

void RecordingUser::scroll(Control& control, int value) {
  record(targetLine("scroll", control) + " " + std::to_string(value), [&] { User::scroll(control, value); });
}

void RecordingUser::focus(Control& control) {
  if (control.form().focused() == &control && wayTo(desktop_, control.form()).empty()) return User::focus(control);
  record(targetLine("focus", control), [&] { User::focus(control); });
}

void RecordingUser::activate(Form& form) {
  record(windowLine(desktop_, form), [&] { User::activate(form); });
}

void RecordingUser::close(Form& form) {
  record(wayTo(desktop_, form) + "close", [&] { User::close(form); });
}

Answer RecordingDialogs::MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) {
  const Answer answer = dialogs_.MsgBox(prompt, style, title);
  journal_.answered(style, answer);
  return answer;
}

void RecordingDialogs::runModal(Form& form) {
  journal_.write();
  dialogs_.runModal(form);
}

}  // namespace orvane
