#pragma once

#include <optional>

#include <QPalette>
#include <QTextDocument>

#include "shell/rich_text.h"

namespace orvane {

// Makes the document show the text and nothing else. Its colours suit the palette of the moment: show it again when
// that changes.
void showRichText(const RichText& text, const QPalette& palette, QTextDocument& document);

// The colour to write with on a background. None stands for the text colour of the palette: that is for black, which
// files name when they mean no colour at all, and for what cannot be read there. A colour too near to the background is
// first tried with its lightness turned over.
std::optional<QColor> readableColour(const RichColour& colour, const QColor& background);

}  // namespace orvane
