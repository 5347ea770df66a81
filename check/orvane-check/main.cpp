#include <iostream>

#include <QGuiApplication>
#include <QLoggingCategory>

#include "canvas/qt_pictures.h"
#include "canvas/sheet_font.h"
#include "check/command.h"

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  orvane::forgetGlyphSettings();
  // Pictures need no screen.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  int names = 1;  // the toolkit gets the name of the program and none of its arguments
  // What the toolkit misses in a session without a desktop is nothing about the data.
  QLoggingCategory::setFilterRules("default.warning=false");
  const QGuiApplication application(names, argv);
  QLoggingCategory::setFilterRules({});
  orvane::QtPictures pictures;
  return orvane::checkCommand(arguments, std::cout, std::cerr, pictures);
}
