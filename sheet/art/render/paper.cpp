#include "sheet/art/render/paper.h"

#include <stdexcept>

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include "sheet/art/render/rendering.h"

namespace orvane {
namespace {

constexpr int kSourceDpi = 96;
// Fine enough that no letter moves to a coarse grid.
constexpr int kPaperDpi = 1200;

void prepare(QPdfWriter& writer) {
  qputenv("TZ", "UTC");  // the writer notes the zone too, in more or fewer letters
  writer.setResolution(kPaperDpi);
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setPageMargins({});
  writer.setTitle(QStringLiteral("Tessaly : feuille de personnage"));
  writer.setCreator(QStringLiteral("Orvane"));
}

void drawInTheMiddle(QPainter& painter, const QString& source, QSize size) {
  const double scale = double(kPaperDpi) / kSourceDpi;
  const QSizeF drawn = QSizeF(size) * scale;
  const QRectF page = painter.viewport();
  painter.save();
  painter.translate((page.width() - drawn.width()) / 2, (page.height() - drawn.height()) / 2);
  painter.scale(scale, scale);
  paintPage(painter, source, size);
  painter.restore();
}

// The writer notes the hour: each of its digits becomes a 0, in place, because the file counts its bytes.
void forgetTheHour(QByteArray& pdf) {
  const auto start = pdf.indexOf("/CreationDate (D:");
  const auto end = start < 0 ? start : pdf.indexOf(')', start);
  if (end < 0) throw std::runtime_error("the PDF has no date in the form that is looked for");
  for (auto at = start; at < end; ++at)
    if (pdf[at] >= '0' && pdf[at] <= '9') pdf[at] = '0';
}

}  // namespace

QByteArray blankSheet(const QString& folder) {
  QByteArray pdf;
  QBuffer buffer(&pdf);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  prepare(writer);
  QPainter painter(&writer);
  drawInTheMiddle(painter, folder + "/recto.svg", kRectoSize);
  if (!writer.newPage()) throw std::runtime_error("the PDF takes no second page");
  drawInTheMiddle(painter, folder + "/verso.svg", kVersoSize);
  painter.end();
  forgetTheHour(pdf);
  return pdf;
}

}  // namespace orvane
