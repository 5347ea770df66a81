#pragma once

#include <QImage>
#include <QSize>
#include <QString>

class QPainter;

namespace orvane {

// 96 dots per inch: the resolution that the boxes of the sheet are measured in, 15 twips to a pixel.
inline constexpr int kDotsPerMetre = 3780;

inline constexpr QSize kRectoSize{660, 1028};
inline constexpr QSize kVersoSize{657, 1024};
inline constexpr QSize kLogoSize{420, 160};

// The sides of the icons in pixels that a desktop asks for.
inline constexpr int kIconSides[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};

// The page of an SVG source on white paper, 24 bits a pixel. Fails with std::runtime_error if the source cannot be read
// or is not drawn for exactly this size: a form that is scaled has no crisp rules.
QImage drawPage(const QString& source, QSize size);

// The same page, painted at the painter's origin with one unit to a pixel, its labels as texts. Fails as drawPage does.
void paintPage(QPainter& painter, const QString& source, QSize size);

// The picture of an SVG source on a transparent ground, scaled to the size. Fails with std::runtime_error if the source
// cannot be read.
QImage drawMark(const QString& source, QSize size);

// The source that the icon of a side is drawn from, and the file it goes to, both within the folder of the pictures.
QString iconSource(int side);
QString iconFile(int side);

}  // namespace orvane
