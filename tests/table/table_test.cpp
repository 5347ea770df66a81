#include <fstream>
#include <gtest/gtest.h>
#include <stdexcept>

#include <QDir>
#include <QFile>

#include "table/table_pages.h"
#include "table/written_page.h"
#include "tests/canvas/gui.h"
#include "tests/support/source_folder.h"
#include "tests/support/temporary_folder.h"

namespace orvane::test {
namespace {

[[maybe_unused]] const auto* const gui = ::testing::AddGlobalTestEnvironment(new Gui);

TEST(TablePages, AreTheBytesThatTheirSourcesGive) {
  const auto game = QString::fromStdString(sourceFolder() / "game");
  const auto pages = tablePages(game);
  for (const auto& [name, pdf] : pages) {
    QFile kept(game + "/table/" + name);
    EXPECT_TRUE(kept.open(QIODevice::ReadOnly) && kept.readAll() == pdf) << "target art: " << name.toStdString();
  }
  const auto files = QDir(game + "/table").entryList({"*.pdf"});
  for (const auto& file : files) EXPECT_EQ(pages.count(file), file == "feuille.pdf" ? 0U : 1U) << file.toStdString();
}

std::string refusal(const std::string& body) {
  const TemporaryFolder folder;
  const std::string path = folder.path() + "/page.html";
  std::ofstream(path) << "<title>Essai</title><body>" << body << "</body>";
  try {
    writtenPage(QString::fromStdString(path));
  } catch (const std::runtime_error& failure) {
    return std::string(failure.what()).substr(path.size());
  }
  return "none";
}

TEST(WrittenPages, RefuseATextThatDoesNotFitThePage) {
  std::string lines;
  for (int i = 0; i < 50; ++i) lines += "<p>Une ligne</p>";
  const std::string column = "<h1>Titre</h1><!-- colonne -->" + lines;
  EXPECT_EQ(refusal(column), "none");
  EXPECT_EQ(refusal(column + "<!-- colonne -->" + lines + lines).substr(0, 26), ": column 2 is too long by ");
  EXPECT_EQ(refusal("<h1>Titre</h1>"), ": has no title or no column");
}

}  // namespace
}  // namespace orvane::test
