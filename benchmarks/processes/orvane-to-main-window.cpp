#include "benchmarks/processes/until_painted.h"
#include "canvas/sheet_font.h"
#include "screen/program.h"

int main(int argc, char* argv[]) {
  orvane::forgetGlyphSettings();
  QApplication application(argc, argv);
  QApplication::setApplicationName("Orvane");
  QApplication::setDesktopFileName("orvane");
  orvane::bench::endOncePainted();
  return orvane::runProgram();
}
