#include "session/act_lines.h"

#include <algorithm>

#include "surface/entry_list.h"
#include "surface/tab_control.h"

namespace orvane {
namespace {

// The texts of all entries in order, and the number of the first one.
struct Entries {
  std::vector<std::string> texts;
  int first = 0;
};

Entries entriesOf(const Control& control) {
  Entries entries;
  if (const auto* list = dynamic_cast<const EntryList*>(&control)) {
    for (int i = 0; i < list->ListCount(); ++i) entries.texts.push_back(list->List(i));
  } else if (const auto* tabs = dynamic_cast<const TabControl*>(&control)) {
    for (int i = 0; i < tabs->Tabs(); ++i) entries.texts.push_back(tabs->TabCaption(i));
  } else if (const auto* view = dynamic_cast<const ListView*>(&control)) {
    entries.first = 1;
    for (const auto& row : view->rows()) entries.texts.push_back(row->Text());
  }
  return entries;
}

std::string entryText(const Control& control, const Entry& entry) {
  if (const auto* text = std::get_if<std::string>(&entry)) return quoted(*text);
  const int number = std::get<int>(entry);
  const auto [texts, first] = entriesOf(control);
  const auto offset = static_cast<std::size_t>(number - first);
  if (number < first || offset >= texts.size() || texts[offset].empty()) return std::to_string(number);
  const auto found = std::find(texts.begin(), texts.end(), texts[offset]);
  return found == texts.begin() + (number - first) ? quoted(texts[offset]) : std::to_string(number);
}

}  // namespace

std::string windowLine(const Desktop& desktop, const Form& form) {
  const auto& forms = desktop.Forms();
  const auto bears = [&](const auto& open) {
    return open->role() == Form::Role::Child && open->Caption() == form.Caption();
  };
  const auto named = std::find_if(forms.begin(), forms.end(), bears);
  if (!form.Caption().empty() && named != forms.end() && named->get() == &form)
    return "window " + quoted(form.Caption());
  const auto place = std::find_if(forms.begin(), forms.end(), [&](const auto& open) { return open.get() == &form; });
  return "window " + std::to_string(place - forms.begin());
}

std::string wayTo(const Desktop& desktop, const Form& form) {
  const bool isBehind = form.role() == Form::Role::Child && &form != desktop.activeChild();
  return isBehind ? windowLine(desktop, form) + "\n" : std::string();
}

std::string targetLine(const char* act, const Control& control) {
  return wayTo(control.form().desktop(), control.form()) + act + " " + control.id();
}

std::string textLine(const char* act, const Control& control, const std::string& text) {
  return targetLine(act, control) + " " + quoted(text);
}

std::string entryLine(const char* act, const Control& control, const Entry& entry) {
  return targetLine(act, control) + " " + entryText(control, entry);
}

}  // namespace orvane
