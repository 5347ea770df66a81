#include "tests/sheet/sheet_fixture.h"

namespace orvane::test {
namespace {

const std::string front = "./Perso/Luc_1.bmp";
const std::string back = "./Perso/Luc_2.bmp";
using Contents = std::map<std::string, std::string>;

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

TEST_F(Saving, AFailureIsToldAndLeavesTheWindowsOpenForAnotherTry) {
  int told = 0;
  globals.sheetNotSaved = [&] { ++told; };
  draw();
  const auto sheet = visualise();
  files.contents = {{front, "old front"}};
  const std::string box = "16|Tessaly|Le personnage n'a pas pu être sauvé.\r\n";
  const auto fails = [&](const std::string& reason) {
    save(*sheet, {Answer::OK, Answer::Yes});
    EXPECT_NE(boxes().find(box + reason + "\n"), std::string::npos) << reason;
    EXPECT_EQ(files.contents[front], "old front");
    EXPECT_TRUE(bothOpen(*sheet));
  };
  files.locked = true;
  fails("Un autre programme est en train de sauver un personnage dans ./Perso. Réessayez dans un instant.");
  files.locked = false;
  files.lying = true;
  fails("Le fichier ./Perso/.sauvegarde-1/Luc_1.bmp se relit autrement qu'écrit.");
  files.lying = false;
  files.broken = {back};
  fails("Accès refusé : " + back + ".");
  files.broken = {"./Perso/.sauvegarde-1-finie"};
  fails("Accès refusé : ./Perso/.sauvegarde-1-finie. Le dossier ./Perso/.sauvegarde-1 n'a pas pu être retiré.");
  fails("Une sauvegarde interrompue de ce nom n'a pas pu être reprise ; elle est gardée dans ./Perso/.sauvegarde-1.");
  EXPECT_EQ(told, 5);
  files.broken = {"./Perso/.sauvegarde-1-finie/Luc_1.old"};
  save(*sheet, {Answer::OK, Answer::Yes});
  EXPECT_EQ(dialogs.log[dialogs.log.size() - 2], "64|Tessaly|Luc sauvé(e) dans ./Perso/Luc_x.bmp.");
  EXPECT_EQ(lastBox(),
            "notice|Le dossier ./Perso/.sauvegarde-1-finie n'a pas pu être retiré : "
            "Accès refusé : ./Perso/.sauvegarde-1-finie/Luc_1.old.");
  EXPECT_TRUE(sheet->wasUnloaded());
  EXPECT_EQ(printedIn(sheet->pctRecto, sheet->shpMutaDescro), "10 Peau épaisse, description.\n");
}

}  // namespace
}  // namespace orvane::test
