#include "surface/tab_control.h"

#include <charconv>

namespace orvane {

TabControl::TabControl(Place place, std::string name, Design design) : Control(place, std::move(name)) {
  for (auto& caption : design.captions) tabs_.push_back({std::move(caption)});
}

void TabControl::setTab(int tab) {
  checked(tab);
  const auto previous = static_cast<std::int16_t>(tab_);
  if (store(tab_, tab)) Click.fire(previous);
}

std::string TabControl::pickableTabs() const {
  std::string shown;
  for (int i = 0; i < Tabs(); ++i)
    if (canBePicked(tabs_[checked(i)])) shown += (shown.empty() ? "" : ",") + std::to_string(i);
  return shown;
}

PropertyList TabControl::properties() const {
  return {{"Tab", tab_}, {"TabEnabled", pickableTabs()}, {"Enabled", Enabled()}, {"Visible", Visible()}};
}

std::optional<Value> TabControl::property(std::string_view name) const {
  const auto bracket = name.find('(');
  if (bracket == std::string_view::npos || name.back() != ')') return Control::property(name);
  int tab = -1;
  const char* end = name.data() + name.size() - 1;
  if (std::from_chars(name.data() + bracket + 1, end, tab).ptr != end || tab < 0 || tab >= Tabs()) return std::nullopt;
  const auto which = name.substr(0, bracket);
  if (which == "TabEnabled") return TabEnabled(tab);
  if (which == "TabVisible") return TabVisible(tab);
  return std::nullopt;
}

Effect TabControl::preparePick(const Entry& entry) {
  const int tab = entryPosition(*this, entry, 0, Tabs(), [this](int i) { return TabCaption(i); });
  if (!canBePicked(tabs_[checked(tab)])) throw Refusal{"L'onglet « " + TabCaption(tab) + " » est fermé."};
  return [this, tab] {
    if (tab != tab_)
      setTab(tab);
    else
      Click.fire(static_cast<std::int16_t>(tab_));
  };
}

}  // namespace orvane
