#include "player/stage.h"

#include "surface/menu_item.h"

namespace orvane {
namespace {

Control* menuEntry(const Desktop& desktop, const ControlName& name) {
  for (const auto& form : desktop.Forms())
    if (form->role() == Form::Role::Frame)
      if (auto* entry = dynamic_cast<MenuItem*>(form->find(name.name, name.index))) return entry;
  return nullptr;
}

}  // namespace

Form& Stage::activeForm() const {
  if (Form* dialog = desktop.modal()) return *dialog;
  if (Form* child = desktop.activeChild()) return *child;
  throw Refusal{"Aucune fenêtre n'est ouverte."};
}

Control& Stage::control(const ControlName& name) const {
  if (Control* entry = menuEntry(desktop, name)) {
    if (const Form* dialog = desktop.modal())
      throw Refusal{name.text() + " : la fenêtre « " + dialog->title() + " » attend d'abord une réponse."};
    return *entry;
  }
  Form& form = activeForm();
  if (Control* found = form.find(name.name, name.index)) return *found;
  throw Refusal{"Pas de contrôle " + name.text() + " dans la fenêtre « " + form.title() + " »."};
}

Form& Stage::window(const Entry& which) const {
  const auto& forms = desktop.Forms();
  if (const int* position = std::get_if<int>(&which)) {
    if (*position >= 0 && static_cast<std::size_t>(*position) < forms.size())
      return *forms[static_cast<std::size_t>(*position)];
    throw Refusal{"Pas de fenêtre à la position " + std::to_string(*position) + "."};
  }
  const auto& caption = std::get<std::string>(which);
  for (const auto& form : forms)
    if (form->role() == Form::Role::Child && form->Caption() == caption) return *form;
  throw Refusal{"Pas de fenêtre « " + caption + " »."};
}

}  // namespace orvane
