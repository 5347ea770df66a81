#include "canvas/qt_canvas.h"

#include <cmath>

#include <QBuffer>
#include <QPainter>

#include "canvas/qt_text.h"
#include "canvas/sheet_font.h"
#include "surface/failure.h"

namespace orvane {
namespace {

constexpr int dotsPerMetre = 3780;  // 96 dots per inch

QImage atSheetResolution(QImage picture) {
  picture.setDevicePixelRatio(1);
  picture.setDotsPerMeterX(dotsPerMetre);
  picture.setDotsPerMeterY(dotsPerMetre);
  return picture;
}

}  // namespace

QtCanvas::QtCanvas(const QImage& picture)
    : image_(atSheetResolution(picture)), font_(sheetFont(10)), metrics_(font_, &image_) {}

float QtCanvas::width() const { return static_cast<float>(image_.width()) * twipsPerPixel; }
float QtCanvas::height() const { return static_cast<float>(image_.height()) * twipsPerPixel; }

void QtCanvas::setFont(const std::string&, float points) {
  font_ = sheetFont(points);
  metrics_ = QFontMetricsF(font_, &image_);
}

float QtCanvas::TextWidth(std::string_view text) const {
  const SheetFontRules rules;
  return static_cast<float>(metrics_.horizontalAdvance(toQt(text))) * twipsPerPixel;
}

float QtCanvas::TextHeight(std::string_view) const {
  const SheetFontRules rules;
  return static_cast<float>(metrics_.height()) * twipsPerPixel;
}

void QtCanvas::print(std::string_view text, float x, float y) {
  if (text.empty()) return;
  const SheetFontRules rules;
  QPainter painter(&image_);
  painter.setFont(font_);
  painter.setPen(Qt::black);
  const double baseline = static_cast<double>(y / twipsPerPixel) + metrics_.ascent();
  painter.drawText(QPointF(std::round(x / twipsPerPixel), std::round(baseline)), toQt(text));
}

std::string QtCanvas::bitmap() const {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly) || !image_.save(&buffer, "BMP"))
    throw Failure("L'image de la feuille n'a pas pu être mise en fichier.");
  return bytes.toStdString();
}

}  // namespace orvane
