#pragma once

#include "surface/command_button.h"
#include "surface/form.h"
#include "surface/frame.h"
#include "surface/label.h"
#include "surface/text_box.h"

namespace orvane {

// The splash of the start and, shown modally with its button, the About box.
class frmSplash : public Form {
 public:
  explicit frmSplash(Desktop& desktop);

  Frame fraMainFrame{*this, "fraMainFrame"};
  Image picLogo{fraMainFrame, "picLogo", {"logo"}};
  Label lblCompanyProduct{fraMainFrame, "lblCompanyProduct", {"Tessaly"}};
  Label lblProductName{fraMainFrame, "lblProductName", {"Orvane"}};
  Label lblVersion{fraMainFrame, "lblVersion"};
  Label lblCompany{fraMainFrame, "lblCompany", {"L'équipe d'Orvane, 2026"}};
  Label lblWarning{
      fraMainFrame,
      "lblWarning",
      {"Orvane est le générateur de personnages de Tessaly, jeu de rôle policier conçu, illustré et publié "
       "par l'équipe d'Orvane."}};
  TextBox Text2{fraMainFrame, "Text2", {.readOnly = true, .text = "equipe@orvane.example"}};
  TextBox Text1{fraMainFrame, "Text1", {.readOnly = true, .text = "https://tessaly.example"}};
  CommandButton cmdClose{fraMainFrame, "cmdClose", {"&Close"}};

 protected:
  void Form_Load() override;

 private:
  void cmdClose_Click();
};

}  // namespace orvane
