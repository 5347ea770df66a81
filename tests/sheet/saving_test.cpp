#include "tests/sheet/faulty_files.h"
#include "tests/sheet/sheet_fixture.h"

namespace orvane::test {
namespace {

const std::string front = "./Perso/Luc_1.bmp";
const std::string back = "./Perso/Luc_2.bmp";
using Contents = std::map<std::string, std::string>;

class Saving : public SheetRun<FaultyFiles> {
 protected:
  Saving() {
    choose("Civil");
    dialogs.log.clear();
  }

  std::shared_ptr<frmFeuille> sheetOf() {
    visualise();
    dialogs.log.clear();
    return std::static_pointer_cast<frmFeuille>(globals.frmCurrentFeuille->shared_from_this());
  }
  void save(const std::shared_ptr<frmFeuille>& sheet, std::initializer_list<Answer> answers = {}) {
    dialogs.log.clear();
    dialogs.answers = answers;
    user.click(sheet->cmdSave(0));
  }
  void draw() { perso->cmdMutaRandomChoice.setEnabled(false); }
  bool bothOpen(const frmFeuille& sheet) const { return sheet.isLoaded() && perso->isLoaded(); }
  std::string lastBox() const { return dialogs.log.empty() ? "" : dialogs.log.back(); }
};

TEST_F(Saving, AsksWritesTellsAndCloses) {
  const auto sheet = sheetOf();
  save(sheet);
  EXPECT_EQ(dialogs.log, (std::vector<std::string>{
                             "33|Sauvegarde de Luc|Après la sauvegarde, vous ne pourrez plus modifier le personnage."
                             "\r\nEtes-vous certain de vouloir continuer ?",
                             "64|Tessaly|Luc sauvé(e) dans ./Perso/Luc_x.bmp."}));
  EXPECT_EQ(files.contents,
            (Contents{{front, sheet->pctRecto.Image().bitmap()}, {back, sheet->pctVerso.Image().bitmap()}}));
  EXPECT_TRUE(sheet->wasUnloaded());
  EXPECT_TRUE(perso->wasUnloaded());
}

TEST_F(Saving, CancelAndNoLeaveAllAsItWas) {
  draw();
  const auto sheet = sheetOf();
  save(sheet, {Answer::Cancel});
  EXPECT_EQ(dialogs.log.size(), 1U);
  EXPECT_TRUE(files.directories.empty());
  files.contents = {{front, "old front"}};
  save(sheet, {Answer::OK, Answer::No});
  EXPECT_EQ(lastBox(),
            "36|Tessaly|Un personnage avec un nom identique a déjà été créer.\r\n"
            "Voulez-vous écraser le précédent par celui-ci ?");
  EXPECT_EQ(files.contents, (Contents{{front, "old front"}}));
  EXPECT_TRUE(bothOpen(*sheet));
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpMutaCateg), "");
  save(sheet, {Answer::OK, Answer::Yes});
  EXPECT_EQ(files.contents.size(), 2U);
  EXPECT_NE(files.contents[front], "old front");
}

TEST_F(Saving, TheFrontAloneDecidesTheQuestion) {
  const auto sheet = sheetOf();
  files.contents = {{back, "old back"}};
  save(sheet);
  EXPECT_EQ(dialogs.log.size(), 2U);
  EXPECT_EQ(files.contents[back], sheet->pctVerso.Image().bitmap());
}

TEST_F(Saving, RevealsADrawnPower) {
  perso->cmbMutaName.setListIndex(1);
  draw();
  choose("Agent");
  const auto sheet = sheetOf();
  save(sheet);
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpMutaCateg), "9 AlphaPlus1\n");
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpMutaName), "9 Peau épaisse\n");
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpMutaDescro), "9 Résiste.\n");
  EXPECT_NE(files.contents[front].find("Peau épaisse"), std::string::npos);
}

TEST_F(Saving, AShortNumberStandsInFrontOfTheNameOfItsPower) {
  draw();
  const auto sheet = sheetOf();
  save(sheet);
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpMutaName), "10 7 Bond\n");
}

TEST_F(Saving, AChosenPowerIsNotPrintedAgain) {
  const auto sheet = sheetOf();
  const std::string composed = printed(sheet->pctRecto);
  save(sheet);
  EXPECT_EQ(printed(sheet->pctRecto), composed);
}

TEST_F(Saving, ARenamedCharacterIsNoLongerTheOneOfItsSheet) {
  draw();
  const auto sheet = sheetOf();
  const std::string composed = printed(sheet->pctRecto);
  name(*perso, "Luce");
  desktop.activate(*sheet);
  save(sheet);
  EXPECT_EQ(files.contents.count(front), 1U);
  EXPECT_EQ(printed(sheet->pctRecto), composed);
  EXPECT_TRUE(perso->isLoaded());
  EXPECT_TRUE(sheet->wasUnloaded());
}

TEST_F(Saving, ANameThatNoFileCanBearIsRefusedBeforeAnyQuestion) {
  const std::string longest(249, 'x');
  for (const std::string& bad : {std::string("../Luc"), std::string("L/c"), std::string("Luc\nLe"),
                                 std::string("Luc\x7F"), std::string("Luc\xC2\x85"), longest + "x"}) {
    const auto sheet = sheetOf();
    sheet->setCaption(bad);
    save(sheet);
    ASSERT_EQ(dialogs.log.size(), 1U) << bad;
    EXPECT_EQ(lastBox().substr(0, 70), "16|Tessaly|Le personnage n'a pas pu être sauvé.\r\nSon nom ne peut pas");
    EXPECT_TRUE(files.contents.empty() && files.directories.empty());
    EXPECT_TRUE(bothOpen(*sheet));
    desktop.activate(*perso);
  }
}

TEST_F(Saving, AnyOtherNameIsWrittenAsItStands) {
  for (const std::string& good : {std::string(249, 'x'), std::string("..Éva \"la\\*?\" <3>"), std::string()}) {
    files.contents.clear();
    auto sheet = std::make_shared<frmFeuille>(globals);
    desktop.perform([&] { sheet->Show(); });
    sheet->setCaption(good);
    save(sheet);
    EXPECT_EQ(files.contents.count("./Perso/" + good + "_1.bmp"), 1U);
    EXPECT_EQ(files.contents.size(), 2U);
  }
}

TEST_F(Saving, WhatReadsBackOtherwiseIsNotPutInPlace) {
  const auto sheet = sheetOf();
  files.contents = {{front, "old front"}};
  files.lying = true;
  save(sheet, {Answer::OK, Answer::Yes});
  EXPECT_EQ(lastBox(),
            "16|Tessaly|Le personnage n'a pas pu être sauvé.\r\n"
            "Le fichier ./Perso/Luc_1.~n~ se relit autrement qu'écrit.");
  EXPECT_EQ(files.contents, (Contents{{front, "old front"}}));
  EXPECT_TRUE(bothOpen(*sheet));
}

// What a failed save left behind may be all that is left of an old sheet: no later save touches it.
TEST_F(Saving, ACopyKeptByAFailedSaveOutlivesTheNextOnes) {
  const auto sheet = sheetOf();
  const std::string kept = "./Perso/Luc_1.~o~";
  files.contents = {{front, "newer front"}, {kept, "precious"}};
  files.failAt(1, FaultyFiles::Fault::Before);
  save(sheet, {Answer::OK, Answer::Yes});
  EXPECT_EQ(files.contents, (Contents{{front, "newer front"}, {kept, "precious"}}));
  save(sheet, {Answer::OK, Answer::Yes});
  EXPECT_TRUE(sheet->wasUnloaded());
  EXPECT_EQ(files.contents[kept], "precious");
  EXPECT_EQ(files.contents.size(), 3U);
}

// Fails each access of a save in turn until a save meets no failure.
class FailingSave : public Saving, public ::testing::WithParamInterface<std::tuple<Contents, FaultyFiles::Fault>> {
 protected:
  Contents before() const { return std::get<0>(GetParam()); }
  FaultyFiles::Fault fault() const { return std::get<1>(GetParam()); }

  void expectUntouched(const frmFeuille& sheet) {
    EXPECT_EQ(lastBox().substr(0, 54), "16|Tessaly|Le personnage n'a pas pu être sauvé.\r\nPan") << lastBox();
    EXPECT_TRUE(bothOpen(sheet));
    if (fault() == FaultyFiles::Fault::Before || fault() == FaultyFiles::Fault::After) {
      EXPECT_EQ(files.contents, before());
      EXPECT_EQ(lastBox().find("gardé"), std::string::npos);
    }
    for (const auto& [path, bytes] : before()) expectKept(path, bytes);
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
  const auto sheet = sheetOf();
  files.contents = before();
  int access = 1;
  for (; access < 50; ++access) {
    SCOPED_TRACE(access);
    files.failAt(access, fault());
    save(sheet, {Answer::OK, Answer::Yes});
    if (sheet->wasUnloaded()) break;
    expectUntouched(*sheet);
    files.contents = before();
    files.directories.clear();
  }
  EXPECT_GT(access, 5);
  EXPECT_LT(access, 50);
  EXPECT_EQ(files.contents[front], sheet->pctRecto.Image().bitmap());
  EXPECT_EQ(files.contents[back], sheet->pctVerso.Image().bitmap());
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpMutaDescro), "10 Saute haut.\n");
}

INSTANTIATE_TEST_SUITE_P(
    Disk, FailingSave,
    ::testing::Combine(::testing::Values(Contents{}, Contents{{front, "old front"}}, Contents{{back, "old back"}},
                                         Contents{{front, "old front"}, {back, "old back"}}),
                       ::testing::Values(FaultyFiles::Fault::Before, FaultyFiles::Fault::After,
                                         FaultyFiles::Fault::Twice, FaultyFiles::Fault::FromThenOn)));

}  // namespace
}  // namespace orvane::test
