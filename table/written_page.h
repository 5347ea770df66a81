#pragma once

#include <QByteArray>
#include <QString>

namespace orvane {

// The PDF of one page that someone has written: an HTML file with a title, whose body is a heading and, each behind a
// comment "colonne", the columns. Breaks are the writer's, so that no line is left alone.
// Fails with std::runtime_error if the file cannot be read, has no title or columns, or if a column is too long for the
// page.
QByteArray writtenPage(const QString& source);

}  // namespace orvane
