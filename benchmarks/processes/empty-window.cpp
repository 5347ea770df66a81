#include "benchmarks/processes/until_painted.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.show();
  orvane::bench::endOncePainted();
  return QApplication::exec();
}
