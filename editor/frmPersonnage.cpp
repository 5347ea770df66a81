#include "editor/frmPersonnage.h"

#include "surface/desktop.h"

namespace orvane {

frmPersonnage::frmPersonnage(Globals& globals)
    : Form(globals.desktop, {.name = "frmPersonnage"}), globals_(globals), data_(globals.data) {
  on(SSTabPerso.Click, &frmPersonnage::SSTabPerso_Click);
  on(cmdPrintPreview.Click, &frmPersonnage::cmdPrintPreview_Click);
  on(cmdHelp.Click, &frmPersonnage::cmdHelp_Click);
  on(cmdClose.Click, &frmPersonnage::cmdClose_Click);
  wireEtatCivil();
  wireProfil();
  wireCaracteristiques();
  wireContacts();
  wireCompetences();
  wireArtsMartiaux();
  wireMutation();
}

// Each step may run handlers, so their order matters.
void frmPersonnage::Form_Load() {
  for (int tab = TabCount; tab < SSTabPerso.Tabs(); ++tab) SSTabPerso.setTabVisible(tab, false);
  SSTabPerso.setTabsPerRow(3);
  loadGrades();
  loadCompetences();
  loadProfil();
  if (wasUnloaded()) return;  // the first profile was faulty and closed the window
  loadEtatCivil();
  loadCaracteristiques();
  loadContacts();
  loadMutation();
  loadArtsMartiaux();
  SSTabPerso.setTab(EtatCivil);
  SSTabPerso_Click(EtatCivil);
}

void frmPersonnage::SSTabPerso_Click(std::int16_t) {
  switch (SSTabPerso.Tab()) {
    case EtatCivil:
      return enterEtatCivil();
    case Caracteristiques:
      return enterCaracteristiques();
    case Contacts:
      return enterContacts();
    case Competences:
      return enterCompetences();
    case ArtsMartiaux:
      return enterArtsMartiaux();
    case Mutation:
      return enterMutation();
    default:
      txtAllDescro.setText("");
  }
}

void frmPersonnage::Form_Activate() { globals_.frmCurrentPerso = this; }

void frmPersonnage::unloaded() {
  if (globals_.frmCurrentPerso == this) globals_.frmCurrentPerso = desktop().lastActivated<frmPersonnage>();
}

void frmPersonnage::cmdPrintPreview_Click() {
  if (globals_.composeSheet) globals_.composeSheet(*this);
}

void frmPersonnage::cmdHelp_Click() {
  if (globals_.showReadMe) globals_.showReadMe();
}

void frmPersonnage::cmdClose_Click() { Unload(); }

}  // namespace orvane
