#pragma once

#include "surface/list_view.h"
#include "surface/numbers.h"
#include "surface/text_box.h"

// Every number of a character lives as decimal text in a control.
namespace orvane {

inline double number(const TextBox& box) { return numericPrefix(box.Text()); }
inline void setNumber(TextBox& box, double value) { box.setText(numberText(value)); }
inline void add(TextBox& box, double difference) { setNumber(box, number(box) + difference); }

inline double number(const ListItem& row, int column) { return numericPrefix(row.SubItems(column)); }
inline void setNumber(ListItem& row, int column, double value) { row.setSubItems(column, numberText(value)); }
inline void add(ListItem& row, int column, double difference) {
  setNumber(row, column, number(row, column) + difference);
}

}  // namespace orvane
