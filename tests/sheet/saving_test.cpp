#include "tests/sheet/sheet_fixture.h"

namespace orvane::test {
namespace {

const std::string front = "./Perso/Luc_1.bmp";
const std::string back = "./Perso/Luc_2.bmp";
using Contents = std::map<std::string, std::string>;
using Fault = MemoryFiles::Fault;

// What the boxes of a save that succeeds say, and both pictures in their files, is for the golden scripts and the
// bitmaps of the examples.
class Saving : public SheetRun {
 protected:
  void save(frmFeuille& sheet, std::initializer_list<Answer> answers = {}) {
    dialogs.log.clear();
    dialogs.answers = answers;
    user.click(sheet.cmdSave(0));
  }
  void draw() { perso->cmdMutaRandomChoice.setEnabled(false); }
  bool bothOpen(const frmFeuille& sheet) const { return sheet.isLoaded() && perso->isLoaded(); }
  std::string lastBox() const { return dialogs.log.empty() ? "" : dialogs.log.back(); }
};

TEST_F(Saving, CancelAndNoLeaveAllAsItWas) {
  draw();
  const auto sheet = visualise();
  save(*sheet, {Answer::Cancel});
  EXPECT_EQ(dialogs.log.size(), 1U);
  EXPECT_TRUE(files.directories.empty());
  files.contents = {{front, "old front"}};
  save(*sheet, {Answer::OK, Answer::No});
  EXPECT_EQ(dialogs.log.size(), 2U);
  EXPECT_EQ(files.contents, (Contents{{front, "old front"}}));
  EXPECT_TRUE(bothOpen(*sheet));
  EXPECT_EQ(printedMutation(*sheet), "");
}

TEST_F(Saving, TheFrontAloneDecidesTheQuestion) {
  const auto sheet = visualise();
  files.contents = {{back, "old back"}};
  save(*sheet);
  EXPECT_EQ(dialogs.log.size(), 2U);
  EXPECT_EQ(files.contents[back], sheet->pctVerso.Image().bitmap());
}

// A number of less than three digits stands in front of the name.
TEST_F(Saving, RevealsADrawnPower) {
  draw();
  auto sheet = visualise();
  save(*sheet);
  EXPECT_EQ(printedMutation(*sheet), "10 AlphaPlus0\n10 7 Peau épaisse\n10 Peau épaisse, description.\n");
  EXPECT_NE(files.contents[front].find("Peau épaisse"), std::string::npos);
  perso = std::static_pointer_cast<frmPersonnage>(open()->shared_from_this());
  name(*perso, "Luc");
  perso->cmbMutaName.setListIndex(2);
  draw();
  sheet = visualise();
  save(*sheet, {Answer::OK, Answer::Yes});
  EXPECT_EQ(printedMutation(*sheet), "9 AlphaPlus2\n9 Griffes\n9 Griffes, description.\n");
}

TEST_F(Saving, ARenamedCharacterIsNoLongerTheOneOfItsSheet) {
  draw();
  const auto sheet = visualise();
  name(*perso, "Luce");
  desktop.activate(*sheet);
  save(*sheet);
  EXPECT_EQ(files.contents.count(front), 1U);
  EXPECT_EQ(printedMutation(*sheet), "");
  EXPECT_TRUE(perso->isLoaded());
  EXPECT_TRUE(sheet->wasUnloaded());
}

TEST_F(Saving, ANameThatNoFileCanBearIsRefusedBeforeAnyQuestion) {
  const auto sheet = blankSheet();
  for (const std::string& bad : {std::string("../Luc"), std::string("Luc\nLe"), std::string("Luc\x7F"),
                                 std::string("Luc\xC2\x85"), std::string(250, 'x')}) {
    sheet->setCaption(bad);
    save(*sheet);
    ASSERT_EQ(dialogs.log.size(), 1U) << bad;
    EXPECT_EQ(lastBox().substr(0, 70), "16|Tessaly|Le personnage n'a pas pu être sauvé.\r\nSon nom ne peut pas");
    EXPECT_TRUE(files.contents.empty() && files.directories.empty() && sheet->isLoaded());
  }
}

TEST_F(Saving, AnyOtherNameIsWrittenAsItStands) {
  for (const std::string& good : {std::string(249, 'x'), std::string("..Éva \"la\\*?\" <3>"), std::string()}) {
    files.contents.clear();
    const auto sheet = blankSheet();
    sheet->setCaption(good);
    save(*sheet);
    EXPECT_EQ(files.contents.count("./Perso/" + good + "_1.bmp"), 1U);
    EXPECT_EQ(files.contents.size(), 2U);
  }
}

TEST_F(Saving, WhatReadsBackOtherwiseIsNotPutInPlace) {
  const auto sheet = visualise();
  files.contents = {{front, "old front"}};
  files.lying = true;
  save(*sheet, {Answer::OK, Answer::Yes});
  EXPECT_EQ(lastBox(),
            "16|Tessaly|Le personnage n'a pas pu être sauvé.\r\n"
            "Le fichier ./Perso/Luc_1.~n~ se relit autrement qu'écrit.");
  EXPECT_EQ(files.contents, (Contents{{front, "old front"}}));
  EXPECT_TRUE(bothOpen(*sheet));
}

// What a failed save left behind may be all that is left of an old sheet: no later save touches it.
TEST_F(Saving, ACopyKeptByAFailedSaveOutlivesTheNextOnes) {
  const auto sheet = visualise();
  const std::string kept = "./Perso/Luc_1.~o~";
  files.contents = {{front, "newer front"}, {kept, "precious"}};
  files.failAt(1, Fault::Before);
  save(*sheet, {Answer::OK, Answer::Yes});
  EXPECT_EQ(files.contents, (Contents{{front, "newer front"}, {kept, "precious"}}));
  save(*sheet, {Answer::OK, Answer::Yes});
  EXPECT_TRUE(sheet->wasUnloaded());
  EXPECT_EQ(files.contents[kept], "precious");
  EXPECT_EQ(files.contents.size(), 3U);
}

// Fails each access of a save in turn until a save meets no failure.
class FailingSave : public Saving, public ::testing::WithParamInterface<std::tuple<Contents, Fault>> {
 protected:
  const Contents before = std::get<0>(GetParam());
  const Fault fault = std::get<1>(GetParam());

  void expectUntouched(const frmFeuille& sheet) {
    EXPECT_EQ(lastBox().substr(0, 54), "16|Tessaly|Le personnage n'a pas pu être sauvé.\r\nPan") << lastBox();
    EXPECT_TRUE(bothOpen(sheet));
    if (fault == Fault::Before || fault == Fault::After) {
      EXPECT_EQ(files.contents, before);
      EXPECT_EQ(lastBox().find("gardé"), std::string::npos);
    }
    for (const auto& [path, bytes] : before) expectKept(path, bytes);
  }
  // In its place, or where the message says.
  void expectKept(const std::string& path, const std::string& bytes) {
    const std::string copy = path.substr(0, path.size() - 4) + ".~o~";
    const bool told = lastBox().find("L'ancien fichier est gardé sous " + copy + ".") != std::string::npos;
    EXPECT_EQ(files.contents[told ? copy : path], bytes) << lastBox();
    EXPECT_EQ(files.contents[path] != bytes, told) << lastBox();
  }
};

TEST_P(FailingSave, LeavesThePairOfBeforeOrPutsTheNewOneInPlace) {
  draw();
  const auto sheet = visualise();
  int access = 1;
  for (; access < 50; ++access) {
    SCOPED_TRACE(access);
    files.contents = before;
    files.directories.clear();
    files.failAt(access, fault);
    save(*sheet, {Answer::OK, Answer::Yes});
    if (sheet->wasUnloaded()) break;
    expectUntouched(*sheet);
  }
  EXPECT_GT(access, 5);
  EXPECT_LT(access, 50);
  EXPECT_EQ(files.contents[front], sheet->pctRecto.Image().bitmap());
  EXPECT_EQ(files.contents[back], sheet->pctVerso.Image().bitmap());
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpMutaDescro), "10 Peau épaisse, description.\n");
}

INSTANTIATE_TEST_SUITE_P(
    Disk, FailingSave,
    ::testing::Combine(::testing::Values(Contents{}, Contents{{front, "old front"}}, Contents{{back, "old back"}},
                                         Contents{{front, "old front"}, {back, "old back"}}),
                       ::testing::Values(Fault::Before, Fault::After, Fault::Twice, Fault::FromThenOn)));

}  // namespace
}  // namespace orvane::test
