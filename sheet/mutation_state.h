#pragma once

#include "data/reference_data.h"
#include "editor/frmPersonnage.h"

namespace orvane {

enum class MutationState { NoPower, ChosenPower, DrawnPower };

MutationState mutationState(const frmPersonnage& perso);

// The power selected on the mutation tab; null when its list has none.
const clsMutation* selectedPower(const frmPersonnage& perso, const ReferenceData& data);

}  // namespace orvane
