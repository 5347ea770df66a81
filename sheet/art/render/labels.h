#pragma once

#include <QByteArray>
#include <QString>

class QPainter;

namespace orvane {

// Draws the labels of a page's SVG source as texts, at the painter's origin with one unit to a pixel: what they are
// drawn on can then keep them as texts that are read and searched. Each is one line with a class of the source's style
// sheet. Fails with std::runtime_error for one that is not.
void drawLabels(QPainter& painter, const QByteArray& svg);

// The source without them.
QByteArray withoutLabels(const QByteArray& svg);

}  // namespace orvane
