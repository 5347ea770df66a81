#include "canvas/sheet_font.h"

#include <algorithm>
#include <cmath>
#include <iostream>

#include <QFontDatabase>
#include <QStringList>

#include "canvas/qt_text.h"

namespace orvane {
namespace {

// Drawn to the same advances as Times New Roman.
const QString standIn = QStringLiteral("Liberation Serif");

void warnWithoutSerif(const QString& family) {
  static bool done = false;
  if (done) return;
  done = true;
  if (QFontDatabase::hasFamily(family) || QFontDatabase::hasFamily(standIn)) return;
  std::cerr << "orvane : ni la police \"" << family.toStdString() << "\" ni \"" << standIn.toStdString()
            << "\" (paquet fonts-liberation) n'est installée ; les feuilles seront imprimées dans une autre.\n";
}

// In pixels, so that no screen's own resolution has a say.
int pixelSize(float points) { return std::max(1, static_cast<int>(std::lround(points * 96 / 72))); }

}  // namespace

QFont sheetFont(const std::string& name, float points) {
  const QString family = toQt(name);
  warnWithoutSerif(family);
  QFont font(QStringList{family, standIn});
  font.setPixelSize(pixelSize(points));
  font.setHintingPreference(QFont::PreferFullHinting);
  font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  // The width of a line has to be the sum of the widths of its words and blanks.
  font.setKerning(false);
  return font;
}

}  // namespace orvane
