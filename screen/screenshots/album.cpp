#include "screen/screenshots/album.h"

#include <stdexcept>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImageWriter>
#include <QPixmap>

namespace orvane {

namespace {

// Long texts are laid out bit by bit, whenever there is nothing else to do.
void waitUntilPainted() {
  constexpr int milliseconds = 100;
  QElapsedTimer waited;
  for (waited.start(); waited.elapsed() < milliseconds;) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

}  // namespace

Album::Album(const QString& folder, QString theme) : folder_(folder), theme_(std::move(theme)) {
  if (!QDir().mkpath(folder_)) throw std::runtime_error("no folder " + folder_.toStdString());
}

void Album::take(QWidget& window, const QString& name) const {
  waitUntilPainted();
  QImageWriter writer(folder_ + "/" + name + "-" + theme_ + ".png");
  writer.setCompression(100);
  if (!writer.write(window.grab().toImage().convertToFormat(QImage::Format_RGB888)))
    throw std::runtime_error(writer.errorString().toStdString());
}

}  // namespace orvane
