#pragma once

#include <string>

#include "editor/globals.h"
#include "surface/command_button.h"
#include "surface/form.h"
#include "surface/label.h"
#include "surface/text_box.h"

namespace orvane {

// The dialog that takes the name and the description of a contact of frmCurrentPerso.
class frmContact : public Form {
 public:
  explicit frmContact(Globals& globals);

  Label Label19{*this, "Label19", {"Nom"}};
  TextBox txtContactName{*this, "txtContactName"};
  Label Label20{*this, "Label20", {"Description"}};
  TextBox txtContactDescro{*this, "txtContactDescro"};
  CommandButton OKButton{*this, "OKButton", {"&OK"}};
  CommandButton CancelButton{*this, "CancelButton", {.caption = "&Cancel", .cancel = true}};

 private:
  void OKButton_Click();
  void CancelButton_Click();
  bool isFilled(const TextBox& box, const std::string& complaint);
  bool nameIsTaken() const;
  void addContact();
  void changeContact();
  void inform(const std::string& prompt);
  // The window that opened the dialog.
  frmPersonnage& character() const;

  Globals& globals_;
};

}  // namespace orvane
