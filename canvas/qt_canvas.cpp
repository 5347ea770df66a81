#include "canvas/qt_canvas.h"

#include <cmath>

#include <QBuffer>
#include <QPainter>

#include "canvas/grey_bitmap.h"
#include "canvas/qt_text.h"
#include "canvas/sheet_font.h"
#include "canvas/sheet_glyphs.h"
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

QPoint penAt(float x, float y, const QFontMetricsF& metrics) {
  const double baseline = static_cast<double>(y / twipsPerPixel) + metrics.ascent();
  return {static_cast<int>(std::round(x / twipsPerPixel)), static_cast<int>(std::round(baseline))};
}

QtCanvas::QtCanvas(const QImage& picture) : image_(atSheetResolution(picture)), glyphs_(&SheetGlyphs::ofSize(10)) {}

float QtCanvas::width() const { return static_cast<float>(image_.width()) * twipsPerPixel; }
float QtCanvas::height() const { return static_cast<float>(image_.height()) * twipsPerPixel; }

void QtCanvas::setFont(const std::string&, float points) { glyphs_ = &SheetGlyphs::ofSize(points); }

float QtCanvas::TextWidth(std::string_view text) const {
  if (const auto width = glyphs_->width(text)) return static_cast<float>(*width) * twipsPerPixel;
  const SheetFontRules rules;
  return static_cast<float>(glyphs_->metrics().horizontalAdvance(toQt(text))) * twipsPerPixel;
}

float QtCanvas::TextHeight(std::string_view) const {
  return static_cast<float>(glyphs_->metrics().height()) * twipsPerPixel;
}

void QtCanvas::print(std::string_view text, float x, float y) {
  if (text.empty()) return;
  const QPoint start = penAt(x, y, glyphs_->metrics());
  const bool isGrey = image_.format() == QImage::Format_Grayscale8;
  if (!isGrey || !glyphs_->draw(text, start, image_)) printByQt(toQt(text), start);
}

// Other fonts have characters in colour.
void QtCanvas::printByQt(const QString& text, QPoint start) {
  image_.convertTo(QImage::Format_RGB32);
  const SheetFontRules rules;
  QPainter painter(&image_);
  painter.setFont(glyphs_->font());
  painter.setPen(Qt::black);
  painter.drawText(start, text);
}

std::string QtCanvas::bitmap() const {
  if (image_.format() == QImage::Format_Grayscale8) return greyBitmap(image_);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly) || !image_.save(&buffer, "BMP"))
    throw Failure("L'image de la feuille n'a pas pu être mise en fichier.");
  return bytes.toStdString();
}

}  // namespace orvane
