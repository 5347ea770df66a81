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

// The first character of a text that is not empty, taken off it: of those of two or three bytes only what starts like
// one in the table, else 0.
char16_t takeCharacter(std::string_view& text) {
  const auto byte = [&](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
  const auto continues = [&](std::size_t i) { return (byte(i) & 0xC0U) == 0x80; };
  unsigned character = 0;
  std::size_t size = 1;
  if (byte(0) < 0x80) {
    character = byte(0);
  } else if (byte(0) >= 0xC2 && byte(0) < 0xE0 && continues(1)) {
    character = (byte(0) & 0x1FU) << 6 | (byte(1) & 0x3FU);
    size = 2;
  } else if (byte(0) == 0xE2 && continues(1) && continues(2)) {
    character = 0x2000U | (byte(1) & 0x3FU) << 6 | (byte(2) & 0x3FU);
    size = 3;
  }
  text.remove_prefix(size);
  return static_cast<char16_t>(character);
}

// Of a picture in Format_RGB32.
uchar greyAt(const QImage& picture, int x, int y) {
  return static_cast<uchar>(qGray(reinterpret_cast<const QRgb*>(picture.constScanLine(y))[x]));
}

QRect inkOf(const QImage& picture) {
  QRect ink;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (greyAt(picture, x, y) != 255) ink |= QRect(x, y, 1, 1);
  return ink;
}

// What is left of a light, of 255 each; rounded as Qt does.
uchar shaded(uchar light, uchar left) {
  const int product = light * left;
  return static_cast<uchar>((product + (product >> 8) + 128) >> 8);
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

std::optional<int> SheetGlyphs::width(std::string_view text) {
  const bool goesOn = text.starts_with(measured_);
  int width = goesOn ? measuredWidth_ : 0;
  for (auto rest = text.substr(goesOn ? measured_.size() : 0); !rest.empty();) {
    const Glyph* glyph = take(rest);
    if (!glyph) return std::nullopt;
    width += glyph->width;
  }
  measured_ = text;
  return measuredWidth_ = width;
}

bool SheetGlyphs::draw(std::string_view text, QPoint start, QImage& picture) {
  if (!width(text)) return false;
  while (!text.empty()) {
    const Glyph& glyph = *take(text);
    draw(glyph, start, picture);
    start.rx() += glyph.width;
  }
  return true;
}

void SheetGlyphs::draw(const Glyph& glyph, QPoint start, QImage& picture) {
  const QRect place = glyph.place.translated(start);
  const QRect seen = place & picture.rect();
  if (seen.isEmpty()) return;
  uchar* row = picture.bits() + seen.top() * picture.bytesPerLine();
  const uchar* mask = glyph.mask.data() + (seen.top() - place.top()) * place.width() - place.left();
  for (int y = seen.top(); y <= seen.bottom(); ++y, row += picture.bytesPerLine(), mask += place.width())
    for (int x = seen.left(); x <= seen.right(); ++x) row[x] = shaded(row[x], mask[x]);
}

const SheetGlyphs::Glyph* SheetGlyphs::take(std::string_view& text) {
  // Most characters are ASCII and known.
  if (const auto byte = static_cast<unsigned char>(text.front()); byte < 0x80 && glyphs_[byte]) {
    text.remove_prefix(1);
    return &*glyphs_[byte];
  }
  const char16_t character = takeCharacter(text);
  const auto place = placeOf(character);
  if (!place) return nullptr;
  auto& glyph = glyphs_[*place];
  if (!glyph) glyph = made(character);
  return &*glyph;
}

SheetGlyphs::Glyph SheetGlyphs::made(char16_t character) const {
  const SheetFontRules rules;
  const QPoint start(2 * font_.pixelSize(), 2 * font_.pixelSize());
  QImage picture(3 * start.x(), 2 * start.y(), QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setFont(font_);
  painter.drawText(start, QChar(character));
  painter.end();
  const QRect ink = inkOf(picture);
  Glyph glyph{static_cast<int>(metrics_.horizontalAdvance(QChar(character))), ink.translated(-start), {}};
  for (int y = ink.top(); y <= ink.bottom(); ++y)
    for (int x = ink.left(); x <= ink.right(); ++x) glyph.mask.push_back(greyAt(picture, x, y));
  return glyph;
}

}  // namespace orvane
