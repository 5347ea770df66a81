#include "table/table_pages.h"

#include <stdexcept>

#include <QDir>

#include "check/data_folder.h"
#include "table/power_index.h"
#include "table/written_page.h"

namespace orvane {
namespace {

QByteArray indexOf(const QString& game) {
  const DataFolder folder = readFolder(game.toStdString());
  if (!folder.findings.sorted().empty()) throw std::runtime_error("the data have faults: " + game.toStdString());
  return powerIndex(folder.data);
}

}  // namespace

std::map<QString, QByteArray> tablePages(const QString& game) {
  std::map<QString, QByteArray> pages;
  const QDir sources(game + "/table/source");
  for (const auto& source : sources.entryInfoList({"*.html"}, QDir::Files))
    pages[source.completeBaseName() + ".pdf"] = writtenPage(source.filePath());
  pages["pouvoirs.pdf"] = indexOf(game);
  return pages;
}

}  // namespace orvane
