#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QPainter>
#include <QPdfWriter>
#include <QString>

namespace orvane {

// Fine enough that no letter moves to a coarse grid.
inline constexpr int kPaperDpi = 1200;

// A PDF of A4 pages in portrait that is the same bytes at every hour and in every run. The first page is there from the
// start. Sets the time zone of the process to UTC and takes the chance out of the order of its hash tables.
class Pdf {
 public:
  explicit Pdf(const QString& title);
  Pdf(const Pdf&) = delete;
  Pdf& operator=(const Pdf&) = delete;

  // One unit is a dot of kPaperDpi, the origin is the corner of the paper; there are no margins.
  QPainter& painter() { return painter_; }
  QPaintDevice& paper() { return writer_; }
  // Fails with std::runtime_error.
  void newPage();
  // The finished file; nothing can be painted after it. Fails with std::runtime_error if it notes the hour in an
  // unknown form.
  QByteArray finish();

 private:
  QByteArray bytes_;
  QBuffer buffer_;
  QPdfWriter writer_;
  QPainter painter_;
};

}  // namespace orvane
