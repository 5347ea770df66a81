#pragma once

namespace orvane::soak {

// In ./Perso, once what was begun there is brought to an end: every front has the back of its own save, and nothing
// else is left. Gives the number of pairs; a Broken says what is wrong.
int checkSavedPairs();

}  // namespace orvane::soak
