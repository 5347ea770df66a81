#include "editor/frmPersonnage.h"
namespace orvane {
bool frmPersonnage::prcSkillNotOnSheet(const ListItem&) const { return false; }
void frmPersonnage::enterCompetences() {}
void frmPersonnage::enterArtsMartiaux() {}
void frmPersonnage::cmbProfil_Click() {}
void frmPersonnage::cmbVehicle_Click() {}
void frmPersonnage::lvwSkillGen_ItemClick(ListItemRef) {}
void frmPersonnage::cmdSkillGenModif_Click(std::int16_t) {}
void frmPersonnage::lvwSkillGen_BeforeLabelEdit(bool&) {}
void frmPersonnage::lvwSkillGen_AfterLabelEdit(bool&, std::string&) {}
void frmPersonnage::cmdMartialArtModif_Click(std::int16_t) {}
void frmPersonnage::lvwMartialArt_ItemClick(ListItemRef) {}
void frmPersonnage::lvwMartialTechnic_ItemClick(ListItemRef) {}
void frmPersonnage::lvwMartialTechnic_ItemCheck(ListItemRef) {}
void frmPersonnage::chkMuta_Click() {}
void frmPersonnage::cmbMutaCateg_Click() {}
void frmPersonnage::cmbMutaName_Click() {}
void frmPersonnage::cmbMutaSign_Change() {}
void frmPersonnage::cmdMutaRandomChoice_Click() {}
void frmPersonnage::prcMutaNameChange() {}
}  // namespace orvane
