#include "sheet/art/render/rendering.h"

#include <stdexcept>
#include <string>

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include "sheet/art/render/labels.h"

namespace orvane {
namespace {

void load(QSvgRenderer& renderer, const QString& source) {
  if (!renderer.load(source)) throw std::runtime_error("cannot read " + source.toStdString());
}

void requireSize(const QSvgRenderer& renderer, const QString& source, QSize size) {
  if (renderer.viewBoxF() != QRectF(QPointF(0, 0), QSizeF(size)))
    throw std::runtime_error(source.toStdString() + " is not drawn for " + std::to_string(size.width()) + " x " +
                             std::to_string(size.height()) + " pixels");
}

QImage draw(QSvgRenderer& renderer, QSize size, const QColor& ground) {
  // Alpha keeps letters from being smoothed in colours for one kind of screen: the paper is grey.
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.setDotsPerMeterX(kDotsPerMetre);
  image.setDotsPerMeterY(kDotsPerMetre);
  image.fill(ground);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
  return image;
}

}  // namespace

QImage drawPage(const QString& source, QSize size) {
  QSvgRenderer renderer;
  load(renderer, source);
  requireSize(renderer, source, size);
  return draw(renderer, size, Qt::white).convertToFormat(QImage::Format_RGB32);
}

void paintPage(QPainter& painter, const QString& source, QSize size) {
  QFile file(source);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot read " + source.toStdString());
  const QByteArray svg = file.readAll();
  QSvgRenderer renderer(withoutLabels(svg));
  requireSize(renderer, source, size);
  renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
  drawLabels(painter, svg);
}

QImage drawMark(const QString& source, QSize size) {
  QSvgRenderer renderer;
  load(renderer, source);
  return draw(renderer, size, Qt::transparent).convertToFormat(QImage::Format_ARGB32);
}

// Below this the fine lines of the icon run into each other.
QString iconSource(int side) { return side < 22 ? QStringLiteral("icon-small.svg") : QStringLiteral("icon.svg"); }

QString iconFile(int side) { return QStringLiteral("icons/orvane-%1.png").arg(side); }

}  // namespace orvane
