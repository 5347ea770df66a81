#pragma once

#include <QString>
#include <QTextDocument>

#include "sheet/art/render/pdf.h"
#include "table/typesetting.h"

namespace orvane {

// A4 with a heading over the whole width, a rule, columns under it, and a line at its foot. Lengths are in dots.
class Page {
 public:
  // Begins on the page that the PDF is at, with columns that share the width.
  Page(Pdf& pdf, int columns);

  double width() const;
  double columnWidth() const;
  // What columns have for their texts; less after a heading.
  double columnHeight() const;

  void drawHeading(const QString& html);
  // The top is counted from that of the column; columns from 0.
  void drawInColumn(int column, double top, const QTextDocument& text);
  void drawFoot(const QString& left, const QString& right);

 private:
  double left(int column) const;

  Pdf* pdf_;
  Typesetting typesetting_;
  int columns_;
  double top_;
};

}  // namespace orvane
