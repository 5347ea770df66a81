#include "canvas/sheet_glyphs.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string_view>

#include <QPainter>

#include "canvas/sheet_font.h"

namespace orvane {
namespace {

// Latin letters, digits and signs, and what Windows-1252 has beyond them.
constexpr char16_t endOfLatin = 0x180;
constexpr std::u16string_view signs = u"–—‘’‚“”„†‡•…‰‹›€™";

bool isShownInLatin(char16_t character) {
  constexpr char16_t softHyphen = 0xAD;
  return character < endOfLatin && character >= 0x20 && (character < 0x7F || character >= 0xA0) &&
         character != softHyphen;
}

// Its place in the table; none for a character that has to be left to Qt.
std::optional<std::size_t> placeOf(char16_t character) {
  if (isShownInLatin(character)) return character;
  const auto found = signs.find(character);
  if (found == std::u16string_view::npos) return std::nullopt;
  return endOfLatin + found;
}

// The part of a mask that is not white.
QRect inkOf(const QImage& mask) {
  QRect ink;
  for (int y = 0; y < mask.height(); ++y)
    for (int x = 0; x < mask.width(); ++x)
      if (mask.constScanLine(y)[x] != 255) ink |= QRect(x, y, 1, 1);
  return ink;
}

// What is left of a light, of 255 each; rounded as Qt does.
uchar shaded(uchar light, uchar left) {
  const int product = light * left;
  return static_cast<uchar>((product + (product >> 8) + 128) >> 8);
}

void shade(QImage& picture, const QImage& mask, QPoint corner) {
  const QRect place = QRect(corner, mask.size()) & picture.rect();
  for (int y = place.top(); y <= place.bottom(); ++y) {
    uchar* row = picture.scanLine(y);
    const uchar* left = mask.constScanLine(y - corner.y()) - corner.x();
    for (int x = place.left(); x <= place.right(); ++x) row[x] = shaded(row[x], left[x]);
  }
}

}  // namespace

SheetGlyphs& SheetGlyphs::ofSize(float points) {
  // Never destroyed: fonts do not outlive their application, and it is gone before this would be.
  static auto& sizes = *new std::map<float, std::unique_ptr<SheetGlyphs>>;
  auto& size = sizes[points];
  if (!size) size.reset(new SheetGlyphs(points));
  return *size;
}

SheetGlyphs::SheetGlyphs(float points)
    : font_(sheetFont(points)), metrics_(font_), glyphs_(endOfLatin + signs.size()) {}

std::optional<int> SheetGlyphs::width(const QString& text) {
  int width = 0;
  for (const QChar character : text) {
    const Glyph* found = glyph(character);
    if (!found) return std::nullopt;
    width += found->width;
  }
  return width;
}

bool SheetGlyphs::draw(const QString& text, QPoint start, QImage& picture) {
  if (!width(text)) return false;
  for (const QChar character : text) {
    const Glyph& drawn = *glyph(character);
    shade(picture, drawn.mask, start + drawn.corner);
    start.rx() += drawn.width;
  }
  return true;
}

const SheetGlyphs::Glyph* SheetGlyphs::glyph(QChar character) {
  const auto place = placeOf(character.unicode());
  if (!place) return nullptr;
  auto& known = glyphs_[*place];
  if (!known) known = drawn(character);
  return &*known;
}

SheetGlyphs::Glyph SheetGlyphs::drawn(QChar character) const {
  const SheetFontRules rules;
  const int margin = 2 * font_.pixelSize();
  QImage around(3 * margin, 2 * margin, QImage::Format_RGB32);
  around.fill(Qt::white);
  QPainter painter(&around);
  painter.setFont(font_);
  painter.drawText(QPoint(margin, margin), character);
  painter.end();
  const QImage mask = around.convertToFormat(QImage::Format_Grayscale8);
  const QRect ink = inkOf(mask);
  return {static_cast<int>(metrics_.horizontalAdvance(character)), ink.topLeft() - QPoint(margin, margin),
          mask.copy(ink)};
}

}  // namespace orvane
