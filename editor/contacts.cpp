#include "editor/frmContact.h"
#include "editor/frmPersonnage.h"
#include "editor/numbers_in_controls.h"
#include "editor/pools.h"
#include "surface/desktop.h"
#include "surface/failure.h"

namespace orvane {
namespace {

constexpr const char* noContactToChange = "Pas de contact à modifier.";

// By value: what the step up to it costs, and the step down from it gives back.
std::int16_t price(const ContactPrices& prices, double value) {
  const std::int16_t position = toInt16(value);
  if (position < 1 || static_cast<std::size_t>(position) >= prices.size())
    throw Failure("Un contact de valeur " + numberText(value) + " n'a pas de prix.");
  return prices[static_cast<std::size_t>(position)];
}

}  // namespace

void frmPersonnage::wireContacts() {
  using F = frmPersonnage;
  on(cmdContactNew.Click, &F::cmdContactNew_Click);
  on(cmdContactChange.Click, &F::cmdContactChange_Click);
  on(cmdContactDel.Click, &F::cmdContactDel_Click);
  on(cmdContactModif, &CommandButton::Click, &F::cmdContactModif_Click);
  on(cmdContactModif, &CommandButton::LostFocus, &F::cmdContactModif_LostFocus);
  on(lstContact.Click, &F::lstContact_Click);
  on(optContact, &OptionButton::Click, &F::optContact_Click);
  on(txtContactDescro.LostFocus, &F::txtContactDescro_LostFocus);
}

void frmPersonnage::loadContacts() {
  setNumber(txtContactRest, contactPool);
  for (auto& value : txtContact) setNumber(value, 0);
  enableContactButtons(false);
}

void frmPersonnage::enterContacts() {
  optContact(0).setValue(true);
  txtAllDescro.setText("");
}

void frmPersonnage::enableContactButtons(bool enabled) {
  cmdContactChange.setEnabled(enabled);
  cmdContactDel.setEnabled(enabled);
  for (auto& arrow : cmdContactModif) arrow.setEnabled(enabled);
}

void frmPersonnage::cmdContactNew_Click() {
  if (number(txtContactRest) == 0) return txtAllDescro.setText("!!! Plus de points de contact disponible !!!");
  lstContact.setListIndex(-1);
  iContactSel = 0;
  askContact("", "", "Nouveau contact");
}

void frmPersonnage::cmdContactChange_Click() {
  if (lstContact.ListIndex() == -1) {
    desktop().MsgBox(noContactToChange, BoxStyle::Exclamation);
    return;
  }
  askContact(lstContact.Text(), colContact(iContactSel)->sDescro, "modification de contact");
}

void frmPersonnage::askContact(const std::string& name, const std::string& description, const std::string& caption) {
  const auto dialog = std::make_shared<frmContact>(globals_);
  dialog->Load();
  dialog->txtContactName.setText(name);
  dialog->txtContactDescro.setText(description);
  dialog->setCaption(caption);
  dialog->ShowModal();
}

void frmPersonnage::lstContact_Click() {
  if (lstContact.ListIndex() == -1) return;
  iContactSel = contactPosition(lstContact.Text());
  if (iContactSel == 0) {
    desktop().MsgBox("Problème de synchronisation entre la collection et la liste des contacts.", BoxStyle::Critical);
    return;
  }
  const clsContact& contact = *colContact(iContactSel);
  txtContactDescro.setText(contact.sDescro);
  setNumber(txtContact(0), contact.iInfo);
  setNumber(txtContact(1), contact.iReact);
}

std::int16_t frmPersonnage::contactPosition(const std::string& name) const {
  std::int16_t position = 0;
  for (std::int32_t i = 1; i <= colContact.Count(); ++i)
    if (colContact(i)->sName == name) position = toInt16(i);
  return position;
}

void frmPersonnage::optContact_Click(std::int16_t Index) { iContactOpt = Index; }

void frmPersonnage::cmdContactModif_Click(std::int16_t Index) {
  if (lstContact.ListIndex() == -1) {
    desktop().MsgBox(noContactToChange, BoxStyle::Exclamation);
    return;
  }
  if (Index == 0)
    stepContactDown(txtContact(iContactOpt));
  else
    stepContactUp(txtContact(iContactOpt));
}

void frmPersonnage::stepContactDown(TextBox& value) {
  if (number(value) <= 0) return;
  add(txtContactRest, price(globals_.iContactCost, number(value)));
  add(value, -1);
}

void frmPersonnage::stepContactUp(TextBox& value) {
  if (number(value) >= highestContactValue) return;
  const std::int16_t cost = price(globals_.iContactCost, number(value) + 1);
  if (number(txtContactRest) < cost) return;
  add(txtContactRest, -cost);
  add(value, 1);
}

// The record follows the boxes only here: once the arrow that changed them is left.
void frmPersonnage::cmdContactModif_LostFocus(std::int16_t) {
  if (iContactSel == 0) return;
  clsContact& contact = *colContact(iContactSel);
  if (optContact(0).Value())
    contact.iInfo = toInt16(number(txtContact(0)));
  else if (optContact(1).Value())
    contact.iReact = toInt16(number(txtContact(1)));
}

void frmPersonnage::txtContactDescro_LostFocus() {
  if (iContactSel != 0) colContact(iContactSel)->sDescro = txtContactDescro.Text();
}

void frmPersonnage::cmdContactDel_Click() {
  reportContactFaults();
  if (lstContact.ListIndex() == -1) return;
  refund(colContact(iContactSel)->iInfo);
  refund(colContact(iContactSel)->iReact);
  colContact.Remove(iContactSel);
  lstContact.RemoveItem(lstContact.ListIndex());
  if (lstContact.ListCount() > 0)
    lstContact.setListIndex(0);
  else
    leaveNoContact();
}

void frmPersonnage::reportContactFaults() {
  if (colContact.Count() != lstContact.ListCount())
    desktop().MsgBox("Problème de synchronisation entre la liste et la collection.", BoxStyle::Critical);
  if (lstContact.ListCount() == 0) desktop().MsgBox("Pas de contact à effacer.", BoxStyle::Critical);
}

void frmPersonnage::refund(std::int16_t& value) {
  for (; value > 0; --value) add(txtContactRest, price(globals_.iContactCost, value));
}

// The two value boxes keep their numbers.
void frmPersonnage::leaveNoContact() {
  lstContact.setListIndex(-1);
  iContactSel = 0;
  enableContactButtons(false);
  txtContactDescro.setText("");
}

}  // namespace orvane
