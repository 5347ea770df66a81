#include "launch/work_folder.h"

#include <gtest/gtest.h>

#include "tests/support/memory_files.h"

namespace orvane::test {
namespace {

class WorkFolders : public ::testing::Test {
 protected:
  // The names of the files taken, then of those waiting.
  std::string start() {
    const auto delivery = deliver(files, "/usr/game", "/home/Mes papiers/Orvane");
    std::string told;
    for (const auto& name : delivery.taken) told += name + " ";
    for (const auto& name : delivery.waiting) told += "! " + name + " ";
    return told;
  }
  std::string& installed(const std::string& name) { return files.contents["/usr/game/" + name]; }
  std::string& own(const std::string& name) { return files.contents["/home/Mes papiers/Orvane/" + name]; }

  MemoryFiles files;

 private:
  void SetUp() override {
    files.directories = {"/home"};
    installed("skill.txt") = "Tir";
    installed("profil.txt") = "Agent";
    ASSERT_EQ(start(), "");
    ASSERT_EQ(own("skill.txt") + own("profil.txt"), "TirAgent");
  }
};

TEST_F(WorkFolders, KeepWhatTheUserChanged) {
  own("skill.txt") = "Arc";
  EXPECT_EQ(start(), "") << "nothing newer is there";
  installed("skill.txt") = "Tir à deux mains";
  installed("profil.txt") = "Agente";
  files.contents.erase("/home/Mes papiers/Orvane/profil.txt");
  EXPECT_EQ(start(), "! skill.txt ");
  EXPECT_EQ(own("skill.txt"), "Arc");
  EXPECT_EQ(own("profil.txt"), "Agente") << "it was missing";
  EXPECT_EQ(start(), "") << "told once";
}

// Files of two versions name each other's keys.
TEST_F(WorkFolders, TakeNewerFilesAllOrNone) {
  installed("skill.txt") = "Tir à deux mains";
  own("profil.txt") = "Espionne";
  EXPECT_EQ(start(), "! skill.txt ");
  EXPECT_EQ(own("skill.txt"), "Tir");
}

TEST_F(WorkFolders, TakeNewerFilesWhereNothingWasChangedAndGoOnAfterAFailure) {
  installed("skill.txt") = "Tir à deux mains";
  installed("profil.txt") = "Agente";
  files.broken = {"/home/Mes papiers/Orvane/.skill.txt.~"};
  EXPECT_THROW(start(), Failure);
  EXPECT_EQ(own("skill.txt"), "Tir");
  files.broken.clear();
  EXPECT_EQ(start(), "skill.txt ");
  EXPECT_EQ(own("skill.txt") + own("profil.txt"), "Tir à deux mainsAgente");
  EXPECT_EQ(start(), "");
}

}  // namespace
}  // namespace orvane::test
