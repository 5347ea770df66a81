#include <QApplication>

#include "screen/program.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("Orvane");
  QApplication::setDesktopFileName("orvane");
  return orvane::runProgram();
}
