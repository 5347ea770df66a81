#include "editor/frmContact.h"
#include "editor/frmPersonnage.h"
namespace orvane {
void frmPersonnage::cmdContactNew_Click() {}
void frmPersonnage::cmdContactChange_Click() {}
void frmPersonnage::cmdContactDel_Click() {}
void frmPersonnage::cmdContactModif_Click(std::int16_t) {}
void frmPersonnage::cmdContactModif_LostFocus(std::int16_t) {}
void frmPersonnage::lstContact_Click() {}
void frmPersonnage::optContact_Click(std::int16_t) {}
void frmPersonnage::txtContactDescro_LostFocus() {}
bool frmPersonnage::prcValidate() { return true; }
}  // namespace orvane
