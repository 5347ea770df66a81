#include <iostream>

#include <QGuiApplication>
#include <QLoggingCategory>

#include "canvas/qt_pictures.h"
#include "canvas/sheet_font.h"
#include "player/play_scripts.h"
#include "surface/disk_files.h"
#include "surface/system_clock.h"

int main(int argc, char** argv) {
  // Only the streams' own buffers tell a reader that standard input has failed.
  std::ios::sync_with_stdio(false);
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  orvane::forgetGlyphSettings();
  // Pictures need no screen, whatever the session's own settings ask for.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qunsetenv("QT_QPA_PLATFORMTHEME");
  int names = 1;  // the toolkit gets the name of the program and none of its arguments
  // What the toolkit misses in a session without a desktop is no message about a script.
  QLoggingCategory::setFilterRules("default.warning=false");
  const QGuiApplication application(names, argv);
  QLoggingCategory::setFilterRules({});
  orvane::DiskFiles files;
  orvane::QtPictures pictures;
  orvane::SystemClock timeOfDay;
  return orvane::playScripts(arguments, std::cin, std::cout, std::cerr, {files, pictures, timeOfDay});
}
