#pragma once

#include <string_view>

#include "player/script.h"
#include "player/script_words.h"

namespace orvane {

// The forms of the words behind the name of an act.
enum class Operand {
  Target,    // txtCaract(3)
  Property,  // txtCaract(3).Text
  Text,      // a text in quotes
  Choice,    // a text in quotes or a whole number
  Number,    // a whole number
  Seconds,   // a number from 0 on, with or without decimals
  Answer,    // one or more buttons; always the last operand
  Literal,   // a text in quotes, or a number, boolean or colour as transcripts show it
};

// What an operand is called in messages.
const char* operandName(Operand operand);

// Takes a word into the act; an Answer is added. Throws a LineError where the word does not have the form.
void takeOperand(Act& act, Operand operand, const Word& word);

}  // namespace orvane
