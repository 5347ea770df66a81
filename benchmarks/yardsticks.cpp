#include "benchmarks/yardsticks.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include "canvas/qt_text.h"
#include "canvas/sheet_font.h"
#include "surface/open_file.h"

namespace orvane::bench {
namespace {

const std::array<std::string, 2> plainNames = {"plain_1.bmp", "plain_2.bmp"};

void measureWords(const QString& line, const QFont& font, const QImage& image) {
  double widest = 0;
  for (auto blank = line.indexOf(' '); blank >= 0; blank = line.indexOf(' ', blank + 1))
    widest = std::max(widest, QFontMetricsF(font, &image).horizontalAdvance(line.left(blank)));
  widest = std::max(widest, QFontMetricsF(font, &image).horizontalAdvance(line));
  if (widest <= 0) throw std::runtime_error("a line without a width");
}

void printLine(const PrintLog::Entry& entry, QImage& image) {
  const QFont font = sheetFont(entry.points);
  const QString line = toQt(entry.text);
  measureWords(line, font, image);
  QPainter painter(&image);
  painter.setFont(font);
  const double ascent = QFontMetricsF(font, &image).ascent();
  painter.drawText(QPointF(entry.x / twipsPerPixel, entry.y / twipsPerPixel + ascent), line);
}

}  // namespace

void composeTheObviousWay(const Prints& prints) {
  for (std::size_t side = 0; side < prints.size(); ++side) {
    QImage image(side == 0 ? ":/art/recto.bmp" : ":/art/verso.bmp");
    for (const auto& entry : prints[side]) printLine(entry, image);
    if (!image.save(QString::fromStdString(plainNames[side]))) throw std::runtime_error("not saved");
  }
}

void writePlainly(const TwoFiles& bytes, bool synced) {
  for (std::size_t side = 0; side < bytes.size(); ++side) {
    OpenFile file(plainNames[side], O_WRONLY | O_CREAT | O_EXCL);
    if (!file.isOpen() || !file.writeAll(bytes[side]) || (synced && !file.flush()))
      throw std::runtime_error("not written");
  }
}

void removePlainFiles() {
  for (const auto& name : plainNames) ::unlink(name.c_str());
}

}  // namespace orvane::bench
