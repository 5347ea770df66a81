#pragma once

#include <cstddef>
#include <vector>

#include <QPointF>
#include <QSizeF>

#include "surface/paper.h"

namespace orvane {

// An A4 page in points, 1/72 inch, as PDF files have it.
inline constexpr QSizeF paperSize{595, 842};

// The sides in pixels of 96 dots per inch.
inline constexpr QSizeF sideSizes[] = {{660, 1028}, {657, 1024}};
inline constexpr double pointsPerPixel = 0.75;

// A side of a sheet on a page. Its texts outlive it.
struct PlacedSide {
  std::size_t side;  // 0 front, 1 back
  const std::vector<PrintedText>* texts;
  double scale;    // 1 is the size of the paper form
  QPointF corner;  // upper left, in points from that of the page
};

using PaperPage = std::vector<PlacedSide>;

// The upper left corner of a side at the size of the paper form, in the middle of a page.
inline QPointF middleCorner(std::size_t side) {
  const QSizeF rest = (paperSize - sideSizes[side] * pointsPerPixel) / 2;
  return {rest.width(), rest.height()};
}

}  // namespace orvane
