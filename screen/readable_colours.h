#pragma once

#include <QColor>
#include <QPalette>
#include <QWidget>

#include "surface/control.h"
#include "surface/property.h"

// The colours of the controls, made readable on whatever palette the user has chosen.
namespace orvane {

// What texts need against their background.
inline constexpr double readableContrast = 4.5;

// From 1, the same brightness, to 21, black on white.
double contrast(const QColor& one, const QColor& other);

// Share 0 gives the first colour, 1 the second.
QColor blend(const QColor& from, const QColor& to, double share);

// 0xBBGGRR; a system colour is looked up in the palette.
QColor screenColour(Colour colour, const QPalette& palette);

// The colour, lightened or darkened as far as its contrast to the background asks for.
QColor readable(const QColor& colour, const QColor& background, double wanted = readableContrast);

// A palette for a box with that BackColor: the palette itself for the colours of the system; for marks their colour,
// darkened on dark palettes, with text that can be read on it.
QPalette boxPalette(Colour backColor, const QPalette& palette);

// A palette for a box of lines that is only read: in the colour of what is disabled where it is, as far as that can be
// read.
QPalette readingPalette(bool enabled, const QPalette& palette);

// What changes in a palette for a value that is no field: it stands on the ground that is there.
QPalette valuePalette();

// Of a text or combo box; that of the system for all other kinds.
Colour backColorOf(const Control& control);

// What a mark says in words; empty for the colours of the system.
QString markInWords(Colour backColor);

// Shows the BackColor of a text or combo box: as a background, and in words for who does not see it.
void showBoxColour(QWidget& box, Colour backColor);

}  // namespace orvane
