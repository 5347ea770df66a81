#pragma once

#include "surface/numbers.h"
#include "surface/text_box.h"

// Every number of a character lives as decimal text in a control.
namespace orvane {

inline double number(const TextBox& box) { return numericPrefix(box.Text()); }
inline void setNumber(TextBox& box, double value) { box.setText(numberText(value)); }
inline void add(TextBox& box, double difference) { setNumber(box, number(box) + difference); }

}  // namespace orvane
