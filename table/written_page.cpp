#include "table/written_page.h"

#include <stdexcept>

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include "table/page.h"

namespace orvane {
namespace {

struct Written {
  QString title;
  QString heading;
  QStringList columns;
};

QString contents(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot be read");
  return QString::fromUtf8(file.readAll());
}

QString between(const QString& text, const QString& start, const QString& end) {
  return text.section(start, 1).section(end, 0, 0).trimmed();
}

Written parse(const QString& path) {
  const QString text = contents(path);
  QStringList parts = between(text, "<body>", "</body>").split("<!-- colonne -->");
  const QString heading = parts.takeFirst();
  const QString title = between(text, "<title>", "</title>");
  if (title.isEmpty() || parts.isEmpty()) throw std::runtime_error("has no title or no column");
  return {title, heading, parts};
}

void drawColumn(Page& page, const Typesetting& typesetting, int column, const QString& html) {
  const auto text = typesetting.set(html, page.columnWidth());
  const double excess = text->size().height() - page.columnHeight();
  if (excess > 0)
    throw std::runtime_error("column " + std::to_string(column + 1) + " is too long by " +
                             std::to_string(millimetres(excess)) + " mm");
  page.drawInColumn(column, 0, *text);
}

}  // namespace

QByteArray writtenPage(const QString& source) try {
  const Written written = parse(source);
  Pdf pdf(written.title);
  const Typesetting typesetting(pdf.paper());
  const int columns = static_cast<int>(written.columns.size());
  Page page(pdf, columns);
  page.drawHeading(written.heading);
  for (int column = 0; column < columns; ++column) drawColumn(page, typesetting, column, written.columns[column]);
  page.drawFoot(written.title, {});
  return pdf.finish();
} catch (const std::runtime_error& failure) {
  throw std::runtime_error(source.toStdString() + ": " + failure.what());
}

}  // namespace orvane
