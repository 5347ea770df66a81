#pragma once

#include <memory>

#include <QPainter>
#include <QString>
#include <QTextDocument>

namespace orvane {

// Dots of the paper in a millimetre.
double dots(double millimetres);
double millimetres(double dots);

// Sets HTML in the style of all pages.
class Typesetting {
 public:
  // The paper outlives what is set for it.
  explicit Typesetting(QPaintDevice& paper) : paper_(&paper) {}

  // A text set to a width in dots; its height is that of its size().
  std::unique_ptr<QTextDocument> set(const QString& html, double width) const;

 private:
  QPaintDevice* paper_;
};

// Black on whatever is there, with the upper left corner of the text at the point.
void draw(QPainter& painter, const QTextDocument& text, QPointF at);

}  // namespace orvane
