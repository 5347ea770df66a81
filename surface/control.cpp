#include "surface/control.h"

#include "surface/form.h"
#include "surface/tab_control.h"

namespace orvane {

int entryPosition(const Control& control, const Entry& entry, int first, int count,
                  const std::function<std::string(int)>& text) {
  if (const int* position = std::get_if<int>(&entry)) {
    if (*position >= first && *position < first + count) return *position;
    throw Refusal{"Pas d'entrée " + std::to_string(*position) + " dans " + control.id() + "."};
  }
  const auto& wanted = std::get<std::string>(entry);
  for (int i = first; i < first + count; ++i)
    if (text(i) == wanted) return i;
  throw Refusal{"Pas d'entrée « " + wanted + " » dans " + control.id() + "."};
}

Place::Place(Control& theHolder) : form(theHolder.form()), holder(&theHolder) {}

Place::Place(TabControl& theHolder, int theTab) : form(theHolder.form()), holder(&theHolder), tab(theTab) {}

Control::Control(Place place, std::string name) : place_(place), name_(std::move(name)) { form().enrol(*this); }

std::string Control::id() const { return index_ ? name_ + "(" + std::to_string(*index_) + ")" : name_; }

std::optional<Value> Control::property(std::string_view name) const {
  for (auto& candidate : properties())
    if (candidate.name == name) return std::move(candidate.value);
  return std::nullopt;
}

std::optional<std::string> Control::unreachable() const {
  if (!visible_) return id() + " est caché.";
  if (!enabled_) return id() + " est désactivé.";
  if (!holder()) return std::nullopt;
  if (const auto* tabs = dynamic_cast<const TabControl*>(holder()); tabs && tabs->Tab() != tab())
    return id() + " se trouve sur l'onglet « " + tabs->TabCaption(tab()) + " », qui n'est pas affiché.";
  return holder()->unreachable();
}

namespace {

[[noreturn]] void refuse(const Control& control, const std::string& act) {
  throw Refusal{control.idAndKind() + " : " + act + " n'y est pas possible."};
}

}  // namespace

Effect Control::prepareClick() { refuse(*this, "cliquer"); }
Effect Control::prepareType(std::string) { refuse(*this, "taper un texte"); }
Effect Control::preparePick(const Entry&) { refuse(*this, "choisir une entrée"); }
Effect Control::prepareRow(const Entry&) { refuse(*this, "cliquer une ligne"); }
Effect Control::prepareToggle(const Entry&) { refuse(*this, "cocher une ligne"); }
Effect Control::prepareEdit(const Entry&, std::string) { refuse(*this, "modifier un nom"); }
Effect Control::prepareScroll(int) { refuse(*this, "faire défiler"); }

}  // namespace orvane
