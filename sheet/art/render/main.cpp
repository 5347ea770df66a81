#include <cstdio>
#include <exception>
#include <stdexcept>

#include <QFile>
#include <QGuiApplication>
#include <QImage>

#include "sheet/art/render/paper.h"
#include "sheet/art/render/rendering.h"

using namespace orvane;

namespace {

void save(const QImage& image, const QString& path, const char* format) {
  if (!image.save(path, format)) throw std::runtime_error("cannot write " + path.toStdString());
}

void save(const QByteArray& bytes, const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
    throw std::runtime_error("cannot write " + path.toStdString());
}

void drawAll(const QString& folder) {
  save(drawPage(folder + "/recto.svg", kRectoSize), folder + "/recto.bmp", "BMP");
  save(drawPage(folder + "/verso.svg", kVersoSize), folder + "/verso.bmp", "BMP");
  save(drawMark(folder + "/logo.svg", kLogoSize), folder + "/logo.png", "PNG");
  for (int side : kIconSides)
    save(drawMark(folder + "/" + iconSource(side), {side, side}), folder + "/" + iconFile(side), "PNG");
}

}  // namespace

// orvane-art FOLDER TABLE: draws the bitmaps beside the SVG sources in FOLDER, and into TABLE what is printed for the
// table.
int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  if (application.arguments().size() != 3) {
    std::fputs("usage: orvane-art FOLDER TABLE\n", stderr);
    return 2;
  }
  try {
    drawAll(application.arguments().at(1));
    save(blankSheet(application.arguments().at(1)), application.arguments().at(2) + "/feuille.pdf");
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "orvane-art: %s\n", failure.what());
    return 1;
  }
  return 0;
}
