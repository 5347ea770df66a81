#include <cstdio>
#include <exception>
#include <stdexcept>

#include <QFile>
#include <QGuiApplication>

#include "table/table_pages.h"

using namespace orvane;

namespace {

void save(const QByteArray& bytes, const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
    throw std::runtime_error("cannot write " + path.toStdString());
}

}  // namespace

// orvane-table GAME: makes the pages for the printer in GAME/table, from GAME/table/source and from the data in GAME.
int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  if (application.arguments().size() != 2) {
    std::fputs("usage: orvane-table GAME\n", stderr);
    return 2;
  }
  try {
    const QString game = application.arguments().at(1);
    for (const auto& [name, pdf] : tablePages(game)) save(pdf, game + "/table/" + name);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "orvane-table: %s\n", failure.what());
    return 1;
  }
  return 0;
}
