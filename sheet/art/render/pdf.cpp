#include "sheet/art/render/pdf.h"

#include <stdexcept>

#include <QHashFunctions>
#include <QPageSize>

namespace orvane {
namespace {

QBuffer* opened(QBuffer& buffer) {
  buffer.open(QIODevice::WriteOnly);
  return &buffer;
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

Pdf::Pdf(const QString& title) : buffer_(&bytes_), writer_(opened(buffer_)) {
  qputenv("TZ", "UTC");                     // the writer notes the zone too, in more or fewer letters
  QHashSeed::setDeterministicGlobalSeed();  // it writes its fonts in the order of a hash table
  writer_.setResolution(kPaperDpi);
  writer_.setPageSize(QPageSize(QPageSize::A4));
  writer_.setPageMargins({});
  writer_.setTitle(title);
  writer_.setCreator(QStringLiteral("Orvane"));
  painter_.begin(&writer_);
}

void Pdf::newPage() {
  if (!writer_.newPage()) throw std::runtime_error("the PDF takes no further page");
}

QByteArray Pdf::finish() {
  painter_.end();
  forgetTheHour(bytes_);
  return bytes_;
}

}  // namespace orvane
