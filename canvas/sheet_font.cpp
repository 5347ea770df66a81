#include "canvas/sheet_font.h"

#include <algorithm>
#include <cmath>
#include <fontconfig/fontconfig.h>

#include <QFontDatabase>

#include "surface/failure.h"

namespace orvane {
namespace {

constexpr const char* family = "Liberation Serif";
constexpr const char* file = "/usr/share/fonts/truetype/liberation/LiberationSerif-Regular.ttf";

// No rule at all: what is not said is grey edges and full hinting. The other fonts are for characters that ours lacks.
constexpr const char* rules =
    "<fontconfig><dir>/usr/share/fonts</dir>"
    "<cachedir>/var/cache/fontconfig</cachedir><cachedir prefix=\"xdg\">fontconfig</cachedir></fontconfig>";

FcConfig* ourRules() {
  FcConfig* made = FcConfigCreate();
  FcConfigParseAndLoadFromMemory(made, reinterpret_cast<const FcChar8*>(rules), FcTrue);
  FcConfigBuildFonts(made);
  return made;
}

// Of the fonts of this family, the one that was added last is taken.
void requireFont() {
  static const bool found = QFontDatabase::addApplicationFont(file) >= 0 && QFontDatabase::hasFamily(family);
  if (!found) throw Failure("La police de la feuille manque : " + std::string(file) + " (paquet fonts-liberation).");
}

// In pixels, so that no screen's own resolution has a say.
int pixelSize(float points) { return std::max(1, static_cast<int>(std::lround(points * 96 / 72))); }

}  // namespace

void forgetGlyphSettings() { qunsetenv("FREETYPE_PROPERTIES"); }

QFont sheetFont(float points) {
  requireFont();
  QFont font(family);
  font.setPixelSize(pixelSize(points));
  font.setHintingPreference(QFont::PreferFullHinting);
  font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  // The width of a line has to be the sum of the widths of its words and blanks.
  font.setKerning(false);
  return font;
}

SheetFontRules::SheetFontRules() : users_(FcConfigReference(nullptr)) {
  static FcConfig* const ours = ourRules();
  FcConfigSetCurrent(ours);
}

SheetFontRules::~SheetFontRules() {
  FcConfigSetCurrent(users_);
  FcConfigDestroy(users_);
}

}  // namespace orvane
