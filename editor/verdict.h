#pragma once

#include "surface/property.h"

namespace orvane {

// A broken essential constraint stops the sheet, a broken accessory one only warns.
enum class Constraint { Essential, Accessory };

// What the check of a character found so far.
struct Verdict {
  bool essential = false;
  bool accessory = false;

  // Colours a field by its constraint when that is broken, else as a field that keeps it.
  template <class Field>
  void mark(Field& field, bool broken, Constraint constraint, Colour kept) {
    const bool isEssential = constraint == Constraint::Essential;
    if (broken) (isEssential ? essential : accessory) = true;
    field.setBackColor(!broken ? kept : isEssential ? Colour::EssentialBroken : Colour::AccessoryBroken);
  }
};

}  // namespace orvane
