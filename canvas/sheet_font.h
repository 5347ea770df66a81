#pragma once

#include <QFont>

struct _FcConfig;  // of fontconfig

namespace orvane {

// What the user's environment asks of the drawing of glyphs counts for nothing from here on. Before the
// QGuiApplication.
void forgetGlyphSettings();

// The one font of sheets, for a surface of 96 dots per inch: whole pixels, grey edges, no kerning. It comes from the
// file of Liberation Serif, which is drawn to the same advances as Times New Roman. Fails where the file is not there.
QFont sheetFont(float points);

// While one lives, texts are measured and drawn by rules of our own, the same for every user. Without it they follow
// the user's, as those of all windows do.
class SheetFontRules {
 public:
  SheetFontRules();
  ~SheetFontRules();
  SheetFontRules(const SheetFontRules&) = delete;
  SheetFontRules& operator=(const SheetFontRules&) = delete;

 private:
  _FcConfig* users_;
};

}  // namespace orvane
