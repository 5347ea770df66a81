#pragma once

#include <QComboBox>
#include <QListWidget>
#include <QTabWidget>
#include <QTreeWidget>

// What a user's hands do to widgets, with mouse and keys.
namespace orvane::test {

// A turn of the event loop, in which what has changed is shown and what waits for it is deleted.
void turn();

// Near its left edge, where buttons feel the mouse.
void click(QWidget& widget);
void clickAt(QWidget& widget, const QPoint& where);
// Replaces the whole text at once, as pasting and input methods do: key by key would change it once for each.
void replaceText(QWidget& widget, const QString& text);
// Opens the list and takes an entry of it.
void choose(QComboBox& combo, int index);
void clickEntry(QListWidget& list, int index);
void clickTab(QTabWidget& tabs, int index);
// Rows from 0.
void clickRow(QTreeWidget& tree, int row);
void clickCheckBox(QTreeWidget& tree, int row);
// Both clicks of a pair.
void doubleClickRow(QTreeWidget& tree, int row);
// A notch of the wheel towards the user.
void roll(QWidget& widget);

}  // namespace orvane::test
