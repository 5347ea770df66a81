#include "canvas/sheet_font.h"

#include <algorithm>
#include <cmath>
#include <fontconfig/fontconfig.h>

#include <QCoreApplication>
#include <QFile>
#include <QFontDatabase>

#include "surface/failure.h"

namespace orvane {
namespace {

// Known under a name of our own: what else is called Liberation Serif on a machine may be another font or version.
constexpr const char* family = "OrvaneText Serif";
constexpr const char* file = "/usr/share/fonts/truetype/liberation/LiberationSerif-Regular.ttf";

// Beside the programs, where they were moved with all that they need.
QString ownFonts() { return QCoreApplication::applicationDirPath() + "/../fonts"; }

// No rule at all: what is not said is grey edges and full hinting. The other fonts are for characters that ours lacks.
QByteArray rules() {
  return "<fontconfig><dir>/usr/share/fonts</dir><dir>" + ownFonts().toHtmlEscaped().toUtf8() +
         "</dir><cachedir>/var/cache/fontconfig</cachedir><cachedir prefix=\"xdg\">fontconfig</cachedir></fontconfig>";
}

FcConfig* ourRules() {
  FcConfig* made = FcConfigCreate();
  FcConfigParseAndLoadFromMemory(made, reinterpret_cast<const FcChar8*>(rules().constData()), FcTrue);
  FcConfigBuildFonts(made);
  return made;
}

// A text as fonts hold it, in two bytes a character or in one.
QByteArray nameBytes(const char* text, bool wide) {
  QByteArray bytes;
  for (; *text != 0; ++text) (wide ? bytes.append('\0') : bytes).append(*text);
  return bytes;
}

bool addFont() {
  QFile stored(ownFonts() + "/LiberationSerif-Regular.ttf");
  if (!stored.exists()) stored.setFileName(file);
  if (!stored.open(QIODevice::ReadOnly)) return false;
  QByteArray font = stored.readAll();
  for (const bool wide : {false, true}) font.replace(nameBytes("Liberation", wide), nameBytes("OrvaneText", wide));
  return QFontDatabase::addApplicationFontFromData(font) >= 0 && QFontDatabase::hasFamily(family);
}

void requireFont() {
  static const bool found = addFont();
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
