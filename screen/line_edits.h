#pragma once

#include <QLineEdit>

#include "screen/view.h"

namespace orvane {

// What the edits of one line have in common, in boxes, in combos and in lists: line ends and tabs that are pasted
// become blanks, other control characters vanish. To be called ahead of connections that read the text of the edit.
void keepToOneLine(QLineEdit& edit);

// True for an event that brings the keyboard by Tab, by a letter or with a window that opens, and that has been seen to
// here: the cursor stands behind the text, of which nothing is selected, so that no key replaces it by accident. The
// holder is the widget that gets the event, the edit itself or the combo around it.
bool enteredAtEnd(QWidget& holder, QLineEdit& edit, const QEvent& event);

// Where the widget is an edit of one or more lines, or a combo around one.
void putCursorAtEnd(QWidget& widget);

}  // namespace orvane
