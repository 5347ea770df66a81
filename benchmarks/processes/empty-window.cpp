#include <QLabel>

#include "benchmarks/processes/until_painted.h"

// empty-window [WORD]: with a word in it, where there is one.
int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QMainWindow window;
  if (argc > 1) window.setCentralWidget(new QLabel(argv[1]));
  window.show();
  orvane::bench::endOncePainted();
  return QApplication::exec();
}
