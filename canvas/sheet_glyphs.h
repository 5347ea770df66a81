#pragma once

#include <optional>
#include <vector>

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QString>

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
  std::optional<int> width(const QString& text);
  // Draws black on a grey picture, from a point on the base line. False, and nothing drawn, for a text that has to be
  // left to Qt.
  bool draw(const QString& text, QPoint start, QImage& picture);

 private:
  struct Glyph {
    int width = 0;
    QPoint corner;  // of its mask, seen from its start on the base line
    QImage mask;    // how much it leaves of what it is drawn on, of 255
  };

  explicit SheetGlyphs(float points);
  // Null for a character that has to be left to Qt.
  const Glyph* glyph(QChar character);
  Glyph drawn(QChar character) const;

  QFont font_;
  QFontMetricsF metrics_;
  std::vector<std::optional<Glyph>> glyphs_;
};

}  // namespace orvane
