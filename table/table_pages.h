#pragma once

#include <map>

#include <QByteArray>
#include <QString>

namespace orvane {

// What is printed for the table, by the names of the files: a page for each written one in the folder table/source of a
// game, and the index of the powers in its data. Fails with std::runtime_error as writtenPage does, and if the powers
// cannot be read without a fault.
std::map<QString, QByteArray> tablePages(const QString& game);

}  // namespace orvane
