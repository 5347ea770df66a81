#include "editor/frmContact.h"

#include "editor/frmPersonnage.h"
#include "surface/desktop.h"
#include "surface/failure.h"
#include "surface/text.h"

namespace orvane {

frmContact::frmContact(Globals& globals)
    : Form(globals.desktop, {.name = "frmContact", .role = Role::Dialog, .caption = "Contact"}), globals_(globals) {
  on(OKButton.Click, &frmContact::OKButton_Click);
  on(CancelButton.Click, &frmContact::CancelButton_Click);
}

void frmContact::OKButton_Click() {
  if (!isFilled(txtContactName, "Le contact doit avoir un nom !")) return;
  if (!isFilled(txtContactDescro, "Le contact doit être décrit !")) return;
  if (nameIsTaken()) return inform("Ce contact existe déjà.");
  if (character().lstContact.ListIndex() == -1)
    addContact();
  else
    changeContact();
  character().enableContactButtons(true);
  Unload();
}

bool frmContact::isFilled(const TextBox& box, const std::string& complaint) {
  const bool filled = !trimmed(box.Text()).empty();
  if (!filled) inform(complaint);
  return filled;
}

bool frmContact::nameIsTaken() const {
  const auto& contacts = character().colContact;
  for (std::int32_t i = 1; i <= contacts.Count(); ++i)
    if (i != character().iContactSel && contacts(i)->sName == txtContactName.Text()) return true;
  return false;
}

void frmContact::addContact() {
  const auto contact = std::make_shared<clsContact>();
  contact->sName = txtContactName.Text();
  contact->sDescro = txtContactDescro.Text();
  character().colContact.Add(contact);
  ListBox& names = character().lstContact;
  names.AddItem(contact->sName);
  names.setListIndex(names.NewIndex());
}

void frmContact::changeContact() {
  clsContact& contact = *character().colContact(character().iContactSel);
  contact.sName = txtContactName.Text();
  contact.sDescro = txtContactDescro.Text();
  ListBox& names = character().lstContact;
  names.setList(names.ListIndex(), contact.sName);
  // The box copies itself into the record when it loses the focus: the former text must not come back that way.
  character().txtContactDescro.setText(contact.sDescro);
}

void frmContact::CancelButton_Click() { Unload(); }

void frmContact::inform(const std::string& prompt) { desktop().MsgBox(prompt, BoxStyle::Information); }

frmPersonnage& frmContact::character() const {
  if (!globals_.frmCurrentPerso) throw Failure("Aucune fenêtre de personnage n'est ouverte.");
  return *globals_.frmCurrentPerso;
}

}  // namespace orvane
