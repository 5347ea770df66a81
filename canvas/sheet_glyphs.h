#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QFont>
#include <QFontMetricsF>
#include <QImage>

namespace orvane {

// The characters of the sheet's font in one size, each measured and drawn by Qt once for a process. Those of western
// texts stand beside each other without regard to their neighbours: that no kerning is wanted makes a text the sum of
// them. A text with any other character has to be left to Qt.
class SheetGlyphs {
 public:
  // Needs a QGuiApplication, as all that follows; fails where the font is missing.
  static SheetGlyphs& ofSize(float points);

  const QFont& font() const { return font_; }
  const QFontMetricsF& metrics() const { return metrics_; }

  // In pixels; nothing for a text that has to be left to Qt.
  std::optional<int> width(std::string_view text);
  // Draws black on a grey picture, from a point on the base line. False, and nothing drawn, for a text that has to be
  // left to Qt.
  bool draw(std::string_view text, QPoint start, QImage& picture);

 private:
  struct Glyph {
    int width = 0;
    QRect place;                     // of its ink, seen from its start on the base line
    std::vector<std::uint8_t> mask;  // there, row by row: how much it leaves of what it is drawn on, of 255
  };
  static void draw(const Glyph& glyph, QPoint start, QImage& picture);

  explicit SheetGlyphs(float points);
  // The next character of a text, which is taken off it. Null where it has to be left to Qt.
  const Glyph* take(std::string_view& text);
  Glyph made(char16_t character) const;

  QFont font_;
  QFontMetricsF metrics_;
  std::vector<std::optional<Glyph>> glyphs_;
  // The last text and its width: a line that is broken is measured again with each word.
  std::string measured_;
  int measuredWidth_ = 0;
};

}  // namespace orvane
