#pragma once

#include <QFontMetricsF>
#include <QImage>

#include "surface/world.h"

namespace orvane {

class SheetGlyphs;

// Where a text with its top left corner at x, y, twips, starts on its base line: in pixels.
QPoint penAt(float x, float y, const QFontMetricsF& metrics);

// A picture. Its pixels are shared with the picture it was made from until it is printed on. They are grey, a byte
// each, as long as neither that picture nor what was printed asks for more.
class QtCanvas : public Canvas {
 public:
  explicit QtCanvas(const QImage& picture);

  float width() const override;
  float height() const override;
  // Whatever its name, the font is that of sheets.
  void setFont(const std::string& name, float points) override;
  float TextWidth(std::string_view text) const override;
  float TextHeight(std::string_view text) const override;
  // The place is rounded to whole pixels.
  void print(std::string_view text, float x, float y) override;
  // 24 bits a pixel, uncompressed, 3780 pixels per metre.
  std::string bitmap() const override;

  const QImage& image() const { return image_; }

 private:
  void printByQt(const QString& text, QPoint start);

  QImage image_;
  SheetGlyphs* glyphs_;
};

}  // namespace orvane
