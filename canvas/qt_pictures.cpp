#include "canvas/qt_pictures.h"

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

QImage decoded(std::string_view name) {
  keepArtLinked();
  const QImage picture(QStringLiteral(":/art/%1.bmp").arg(toQt(name)));
  if (picture.isNull()) throw Failure("Il n'y a pas d'image \"" + std::string(name) + "\" dans le programme.");
  return picture.convertToFormat(picture.allGray() ? QImage::Format_Grayscale8 : QImage::Format_RGB32);
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
