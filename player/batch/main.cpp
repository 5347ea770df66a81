#include <iostream>

#include <QGuiApplication>

#include "canvas/qt_pictures.h"
#include "player/play_scripts.h"
#include "surface/disk_files.h"
#include "surface/system_clock.h"

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  // Pictures need no screen.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  int names = 1;  // the toolkit gets the name of the program and none of its arguments
  const QGuiApplication application(names, argv);
  orvane::DiskFiles files;
  orvane::QtPictures pictures;
  orvane::SystemClock timeOfDay;
  return orvane::playScripts(arguments, std::cin, std::cout, std::cerr, {files, pictures, timeOfDay});
}
