#pragma once

#include <QByteArray>
#include <QString>

namespace orvane {

// The blank sheet as a PDF of two A4 pages, front and back, from recto.svg and verso.svg in a folder: vectors and
// texts whose fonts are embedded, as large as the bitmaps at 100 %, in the middle of the page. The same
// sources give the same bytes. Sets the time zone of the process to UTC.
// Fails with std::runtime_error if a source cannot be read or is not drawn for its size.
QByteArray blankSheet(const QString& folder);

}  // namespace orvane
