#include "surface/disk_files.h"

#include <cerrno>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <system_error>

#include "surface/failure.h"
#include "surface/system_reason.h"

namespace orvane {
namespace {

class Disk : public ::testing::Test {
 protected:
  Disk() {
    std::string pattern = ::testing::TempDir() + "orvaneXXXXXX";
    folder = ::mkdtemp(pattern.data());
  }
  ~Disk() override { std::filesystem::remove_all(folder); }

  std::string path(const std::string& name) const { return folder + "/" + name; }
  // What an act fails with, its folder left out.
  std::string failure(const std::function<void()>& act) const {
    try {
      act();
    } catch (const Failure& failed) {
      std::string text = failed.what();
      if (const auto place = text.find(folder); place != std::string::npos) text.replace(place, folder.size(), "D");
      return text;
    }
    return "done";
  }

  std::string folder;
  DiskFiles files;
};

TEST_F(Disk, KeepsBytesAndPutsFilesInThePlaceOfOthers) {
  const std::string bytes(200000, '\0');
  files.write(path("éà"), bytes);
  files.write(path("b"), "old and longer");
  files.write(path("b"), "new");
  EXPECT_EQ(files.read(path("b")), "new");
  files.replace(path("éà"), path("b"));
  EXPECT_EQ(files.read(path("b")), bytes);
  EXPECT_FALSE(files.fileExists(path("éà")));
  files.Kill(path("b"));
  EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST_F(Disk, TellsFilesFromDirectories) {
  files.MkDir(path("Perso/"));
  files.write(path("Perso/a"), "");
  EXPECT_TRUE(files.directoryExists(path("Perso")) && files.fileExists(path("Perso/a")));
  EXPECT_FALSE(files.fileExists(path("Perso")) || files.directoryExists(path("Perso/a")));
  EXPECT_FALSE(files.fileExists(path("Perso/a/b")) || files.fileExists(path(std::string(300, 'x'))));
}

TEST_F(Disk, EachFailureNamesItsPathAndAFrenchReason) {
  files.MkDir(path("d"));
  files.write(path("f"), "");
  const std::string longName(256, 'x');
  const std::pair<std::function<void()>, std::string> failures[]{
      {[&] { files.read(path("x")); }, "Lecture impossible : D/x (ce fichier ou ce dossier n'existe pas)."},
      {[&] { files.read(path("d")); }, "Lecture impossible : D/d (c'est un dossier)."},
      {[&] { files.MkDir(path("d")); }, "Création du dossier impossible : D/d (ce nom est déjà pris)."},
      {[&] { files.write(path("f/x"), ""); },
       "Écriture impossible : D/f/x (un élément du chemin n'est pas un dossier)."},
      {[&] { files.write(path(longName), ""); }, "Écriture impossible : D/" + longName + " (ce nom est trop long)."},
      {[&] { files.replace(path("f"), path("d")); }, "Mise en place impossible : D/d (c'est un dossier)."},
      {[&] { files.Kill(path("x")); }, "Suppression impossible : D/x (ce fichier ou ce dossier n'existe pas)."},
  };
  for (const auto& [act, message] : failures) EXPECT_EQ(failure(act), message);
}

TEST_F(Disk, AFullDiskIsToldAndLeavesNoHalfOfAFile) {
  std::filesystem::create_symlink("/dev/full", path("full"));
  EXPECT_EQ(failure([&] { files.write(path("full"), "a"); }),
            "Écriture impossible : D/full (il n'y a plus de place sur le disque).");
  EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST(SystemReason, ARareOneIsInTheSystemsWords) {
  EXPECT_EQ(systemReason(EROFS), "le disque est en lecture seule");
  EXPECT_EQ(systemReason(ENOTTY), std::generic_category().message(ENOTTY));
}

}  // namespace
}  // namespace orvane
