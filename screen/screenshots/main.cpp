#include <cstdio>
#include <exception>

#include <QApplication>

#include "canvas/sheet_font.h"
#include "screen/program.h"
#include "screen/screenshots/tour.h"
#include "screen/themes.h"

namespace {

bool isWanted(const orvane::Theme& theme, const QStringList& names) {
  return names.isEmpty() || names.contains(theme.name);
}

}  // namespace

// orvane-screenshots FOLDER SCRIPT [THEME...], in the folder of the data files. QT_SCALE_FACTOR is heeded.
int main(int argc, char* argv[]) {
  orvane::forgetGlyphSettings();
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setCursorFlashTime(0);  // each picture is the same each time
  orvane::dressUp();
  if (argc < 3) {
    std::fputs("usage: orvane-screenshots FOLDER SCRIPT [THEME...]\n", stderr);
    return 2;
  }
  try {
    for (const auto& theme : orvane::themes()) {
      if (!isWanted(theme, QApplication::arguments().mid(3))) continue;
      QApplication::setPalette(theme.palette);
      orvane::takeTour(argv[2], orvane::Album(argv[1], theme.name));
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
