#include "sheet/mutation_state.h"

namespace orvane {

MutationState mutationState(const frmPersonnage& perso) {
  if (perso.chkMuta.Value() == 0) return MutationState::NoPower;
  return perso.cmdMutaRandomChoice.Enabled() ? MutationState::ChosenPower : MutationState::DrawnPower;
}

const clsMutation* selectedPower(const frmPersonnage& perso, const ReferenceData& data) {
  const int index = perso.cmbMutaName.ListIndex();
  return index < 0 ? nullptr : data.colMutation(perso.cmbMutaName.ItemData(index)).get();
}

}  // namespace orvane
