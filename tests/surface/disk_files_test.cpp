#include "surface/disk_files.h"

#include <cerrno>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <sys/resource.h>
#include <sys/stat.h>

#include "surface/failure.h"
#include "surface/open_file.h"
#include "surface/system_reason.h"
#include "tests/support/temporary_folder.h"

namespace orvane::test {
namespace {

namespace fs = std::filesystem;

class Disk : public ::testing::Test {
 protected:
  std::string path(const std::string& name) const { return folder.path() + "/" + name; }
  // What an act fails with, its folder left out.
  std::string failure(const std::function<void()>& act) const {
    try {
      act();
    } catch (const Failure& failed) {
      std::string text = failed.what();
      if (const auto place = text.find(folder.path()); place != std::string::npos)
        text.replace(place, folder.path().size(), "D");
      return text;
    }
    return "done";
  }
  void write(const std::string& name, const std::string& bytes) { files.write(path(name), bytes); }

  TemporaryFolder folder;
  DiskFiles files;
};

TEST_F(Disk, KeepsBytesAndPutsFilesInThePlaceOfOthers) {
  const std::string bytes(200000, '\0');
  write("éà", bytes);
  write("b", "old and longer");
  files.replace(path("éà"), path("b"));
  EXPECT_EQ(files.read(path("b")), bytes);
  EXPECT_FALSE(files.fileExists(path("éà")));
  EXPECT_TRUE(files.MkDir(path("Perso")));
  files.replace(path("Perso"), path("Autre"));
  for (const char* name : {"b", "b", "Autre"}) files.Kill(path(name));
  EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(Disk, TellsFilesFromDirectories) {
  EXPECT_TRUE(files.MkDir(path("Perso")));
  EXPECT_FALSE(files.MkDir(path("Perso")));
  write("Perso/a", "");
  fs::create_directory_symlink("Perso", path("link"));
  EXPECT_TRUE(files.directoryExists(path("link")) && files.fileExists(path("link/a")));
  EXPECT_FALSE(files.fileExists(path("Perso")) || files.directoryExists(path("Perso/a")));
  EXPECT_FALSE(files.fileExists(path("Perso/a/b")) || files.fileExists(path(std::string(300, 'x'))));
  std::string listed;
  for (const auto& entry : files.list(folder.path())) listed += entry.name + (entry.isFolder ? "/ " : " ");
  EXPECT_TRUE(listed == "Perso/ link " || listed == "link Perso/ ") << listed;
}

TEST_F(Disk, EachFailureNamesItsPathAndAFrenchReason) {
  files.MkDir(path("d"));
  write("f", "");
  write("d/f", "");
  fs::create_symlink("outside", path("dangling"));
  ASSERT_EQ(::mkfifo(path("fifo").c_str(), 0600), 0);
  fs::create_symlink("/dev/zero", path("zero"));
  write("large", "");
  fs::resize_file(path("large"), largestFile + 1);
  const std::string longName(256, 'x');
  const std::pair<std::function<void()>, std::string> failures[]{
      {[&] { files.read(path("x")); }, "Lecture impossible : D/x (ce fichier ou ce dossier n'existe pas)."},
      {[&] { files.read(path("d")); }, "Lecture impossible : D/d (c'est un dossier)."},
      {[&] { files.read(path("fifo")); }, "Lecture impossible : D/fifo (ce n'est pas un fichier ordinaire)."},
      {[&] { files.read(path("zero")); }, "Lecture impossible : D/zero (ce n'est pas un fichier ordinaire)."},
      {[&] { files.read(path("large")); }, "Lecture impossible : D/large (le fichier dépasse 64 Mio)."},
      {[&] { files.list(path("x")); }, "Lecture impossible : D/x (ce fichier ou ce dossier n'existe pas)."},
      {[&] { files.MkDir(path("f/d")); },
       "Création du dossier impossible : D/f/d (un élément du chemin n'est pas un dossier)."},
      {[&] { write("f/x", ""); }, "Écriture impossible : D/f/x (un élément du chemin n'est pas un dossier)."},
      {[&] { write("f", ""); }, "Écriture impossible : D/f (ce nom est déjà pris)."},
      {[&] { write("dangling", ""); }, "Écriture impossible : D/dangling (ce nom est déjà pris)."},
      {[&] { write(longName, ""); }, "Écriture impossible : D/" + longName + " (ce nom est trop long)."},
      {[&] { files.keep(path("d"), path("k")); }, "Mise de côté impossible : D/d (c'est un dossier)."},
      {[&] { files.replace(path("f"), path("d")); }, "Mise en place impossible : D/d (c'est un dossier)."},
      {[&] { files.Kill(path("d")); }, "Suppression impossible : D/d (ce dossier n'est pas vide)."},
      {[&] { files.sync(path("f")); }, "Écriture impossible : D/f (un élément du chemin n'est pas un dossier)."},
      {[&] { files.lock(path("x"), 0); }, "Verrouillage impossible : D/x (ce fichier ou ce dossier n'existe pas)."},
  };
  for (const auto& [act, message] : failures) EXPECT_EQ(failure(act), message);
}

TEST_F(Disk, KeepsTheLinkItselfAndTheRightsOfAFile) {
  write("outside", "outside");
  fs::create_symlink("outside", path("link"));
  EXPECT_TRUE(files.keep(path("link"), path("kept")));
  EXPECT_TRUE(fs::is_symlink(path("kept")));
  EXPECT_FALSE(files.keep(path("none"), path("no")));
  write("fresh", "");
  files.takeRights(path("fresh"), path("kept"));
  const auto rights = [&](const char* name) { return fs::status(path(name)).permissions(); };
  EXPECT_EQ(rights("fresh"), rights("outside"));
  fs::permissions(path("outside"), fs::perms(0640));
  files.takeRights(path("fresh"), path("outside"));
  EXPECT_EQ(rights("fresh"), fs::perms(0640));
}

TEST_F(Disk, ALockIsOfOneProgramUntilItLetsGo) {
  auto lock = files.lock(folder.path(), 0);
  EXPECT_EQ(files.lock(folder.path(), 0.05F), nullptr);
  lock.reset();
  EXPECT_NE(files.lock(folder.path(), 0), nullptr);
}

TEST_F(Disk, ALimitOfSizeIsAFailureAndLeavesNoHalfOfAFile) {
  struct rlimit former {};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &former), 0);
  const struct rlimit low = {10, former.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &low), 0);
  const std::string text = failure([&] { write("a", std::string(20, 'a')); });
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &former), 0);
  EXPECT_EQ(text, "Écriture impossible : D/a (le fichier est trop grand).");
  EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(Uninterrupted, AsksAgainOnlyWhereASignalCameIn) {
  // What each call of the system gives in turn, with its errno.
  const auto calls = [](std::vector<std::pair<int, int>> results) {
    std::size_t call = 0;
    return uninterrupted([&] {
      errno = results.at(call).second;
      return results[call++].first;
    });
  };
  EXPECT_EQ(calls({{-1, EINTR}, {-1, EINTR}, {3, EINTR}}), 3);
  EXPECT_EQ(calls({{-1, EIO}}), -1);
}

TEST(SystemReason, IsFrenchForEveryErrorAndException) {
  EXPECT_EQ(systemReason(ENODEV), "l'appareil n'est pas là");
  EXPECT_EQ(systemReason(12345), "erreur système n° 12345");
  EXPECT_EQ(sentenceOn(std::bad_alloc()), "Il n'y a plus assez de mémoire.");
  EXPECT_EQ(sentenceOn(std::filesystem::filesystem_error("status", std::make_error_code(std::errc::io_error))),
            "Erreur interne : le disque ne répond pas correctement.");
  EXPECT_EQ(sentenceOn(std::out_of_range("map::at")), "Erreur interne.");
}

}  // namespace
}  // namespace orvane::test
