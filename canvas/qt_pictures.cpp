#include "canvas/qt_pictures.h"

#include <algorithm>
#include <map>
#include <string>

#include <QImage>

#include "canvas/qt_canvas.h"
#include "canvas/qt_text.h"
#include "surface/failure.h"

// Outside all namespaces: the name that is declared inside the macro is global.
static void keepArtLinked() { Q_INIT_RESOURCE(art); }

namespace orvane {
namespace {

// Of a picture in Format_RGB32 whose colours are all greys.
QImage greyed(const QImage& picture) {
  QImage grey(picture.size(), QImage::Format_Grayscale8);
  grey.setDotsPerMeterX(picture.dotsPerMeterX());
  grey.setDotsPerMeterY(picture.dotsPerMeterY());
  for (int y = 0; y < picture.height(); ++y) {
    const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    std::transform(from, from + picture.width(), grey.scanLine(y), [](QRgb pixel) { return qRed(pixel); });
  }
  return grey;
}

QImage decoded(std::string_view name) {
  keepArtLinked();
  const QImage stored(QStringLiteral(":/art/%1.bmp").arg(toQt(name)));
  if (stored.isNull()) throw Failure("Il n'y a pas d'image \"" + std::string(name) + "\" dans le programme.");
  const QImage picture = stored.convertToFormat(QImage::Format_RGB32);
  return picture.allGray() ? greyed(picture) : picture;
}

const QImage& stored(std::string_view name) {
  static std::map<std::string, QImage, std::less<>> pictures;
  const auto found = pictures.find(name);
  if (found != pictures.end()) return found->second;
  return pictures.emplace(name, decoded(name)).first->second;
}

}  // namespace

std::unique_ptr<Canvas> QtPictures::open(std::string_view name) { return std::make_unique<QtCanvas>(stored(name)); }

const QImage& image(const Canvas& canvas) {
  const auto* surface = dynamic_cast<const QtCanvas*>(&canvas);
  if (!surface) throw Failure("Cette image n'a pas de pixels.");
  return surface->image();
}

}  // namespace orvane
