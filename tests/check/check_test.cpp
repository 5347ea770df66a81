#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "canvas/qt_pictures.h"
#include "check/command.h"
#include "tests/canvas/gui.h"
#include "tests/support/approved.h"
#include "tests/support/temporary_folder.h"

namespace orvane::test {
namespace {

namespace fs = std::filesystem;

[[maybe_unused]] const auto* const gui = ::testing::AddGlobalTestEnvironment(new Gui);

class Check : public ::testing::Test {
 protected:
  Check() { fs::current_path(sourceFolder() / "tests/check"); }

  const std::string& check(const std::vector<std::string>& arguments) {
    std::ostringstream out;
    std::ostringstream err;
    QtPictures pictures;
    status = checkCommand(arguments, out, err, pictures);
    errors = err.str();
    return text = out.str();
  }

  std::string text;
  std::string errors;
  int status = -1;
};

// tests/check/FOLDER, with what a person has approved to be said of it in FOLDER.text and FOLDER.json.
TEST_F(Check, GoldenFoldersAreReportedAsApproved) {
  std::string manual = bytesOf(sourceFolder() / "docs/man/orvane-check.1");
  std::erase(manual, '\\');
  int folders = 0;
  for (const auto& folder : fs::directory_iterator(".")) {
    if (!folder.is_directory()) continue;
    ++folders;
    const std::string name = folder.path().filename();
    const auto expect = [&](const std::string& format) {
      expectApproved(name + "." + format, check({"--sheet", "--format", format, name}));
      EXPECT_EQ(status, 2);
    };
    expect("text");
    const auto lines = std::count(text.begin(), text.end(), '\n');
    expect("json");
    const auto objects = QJsonDocument::fromJson(QByteArray::fromStdString(text)).array();
    EXPECT_EQ(objects.size(), lines);
    for (const auto object : objects)
      EXPECT_NE(manual.find(object.toObject()["code"].toString().toStdString()), std::string::npos);
  }
  EXPECT_GE(folders, 2);
}

TEST_F(Check, WithoutSheetsAllElseIsSaid) {
  std::istringstream lines(bytesOf("forty.text"));
  std::string others;
  for (std::string line; std::getline(lines, line);)
    if (line.find("feuille") == std::string::npos) others += line + "\n";
  EXPECT_EQ(check({"forty"}), others);
}

TEST_F(Check, TheExitStatusIsTheWorstOfAll) {
  const TemporaryFolder temporary;
  const fs::path folder = temporary.path();
  fs::copy(sourceFolder() / "game", folder);
  const auto append = [&](const char* lines) {
    std::ofstream(folder / "ethnie.txt", std::ios::app) << lines;
    check({folder});
    return status;
  };
  EXPECT_EQ(append(""), 0) << text;
  EXPECT_EQ(append("Pareille;1\npareille;1\n"), 1) << text;
  EXPECT_EQ(append("Pareille;x\n"), 2) << text;
  const std::string strange = folder / "dos\xE9";
  fs::copy(folder, strange);
  EXPECT_TRUE(check({strange, "--format", "json"}).find("dos\uFFFD/ethnie.txt") != std::string::npos) << text;
  fs::create_symlink("/dev/null", folder / "new.txt");
  fs::rename(folder / "new.txt", folder / "skill.txt");
  EXPECT_TRUE(
      check({folder}).find("/skill.txt:1:1: erreur: Lecture impossible (ce n'est pas un fichier ordinaire)\n") !=
      std::string::npos)
      << text;
  const std::string none = folder / "none";
  check({none});
  EXPECT_EQ(status, 3);
  EXPECT_EQ(errors, "orvane-check: Lecture impossible : " + none + " (ce fichier ou ce dossier n'existe pas).\n");
}

TEST_F(Check, TheCommandLineIsExplained) {
  const std::string usage = "usage : orvane-check [--format text|json] [--sheet] [DOSSIER]\n";
  for (const auto* const help : {"--help", "-h"}) {
    EXPECT_TRUE(check({help, "forty"}).starts_with(usage));
    EXPECT_EQ(status, 0);
  }
  const std::pair<std::vector<std::string>, std::string> cases[] = {
      {{"--faults"}, "option inconnue : --faults"},
      {{"--format"}, "--format sans valeur"},
      {{"--format=xml"}, "format inconnu : xml"},
      {{"forty", "--", "-h"}, "plus d'un dossier : -h"},
  };
  for (const auto& [arguments, message] : cases) {
    EXPECT_EQ(check(arguments), "");
    EXPECT_EQ(errors, "orvane-check: " + message + "\n" + usage);
    EXPECT_EQ(status, 3);
  }
}

}  // namespace
}  // namespace orvane::test
