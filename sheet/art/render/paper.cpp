#include "sheet/art/render/paper.h"

#include "sheet/art/render/pdf.h"
#include "sheet/art/render/rendering.h"

namespace orvane {
namespace {

constexpr int kSourceDpi = 96;

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

}  // namespace

QByteArray blankSheet(const QString& folder) {
  Pdf pdf(QStringLiteral("Tessaly : feuille de personnage"));
  drawInTheMiddle(pdf.painter(), folder + "/recto.svg", kRectoSize);
  pdf.newPage();
  drawInTheMiddle(pdf.painter(), folder + "/verso.svg", kVersoSize);
  return pdf.finish();
}

}  // namespace orvane
