#include "surface/numbers.h"
#include "tests/sheet/sheet_run.h"

namespace orvane::test {
namespace {

const std::string front = "./Perso/Luc_1.bmp";
const std::string back = "./Perso/Luc_2.bmp";
using Contents = std::map<std::string, std::string>;

// What a save asks and says, which names it takes and what is in its files is for the golden scripts and the bitmaps of
// the examples.
class Saving : public SheetRun {
 protected:
  Saving() { files.contents.clear(); }

  void save(frmFeuille& sheet, std::initializer_list<Answer> answers = {}) {
    user.activate(sheet);
    dialogs.log.clear();
    dialogs.answers = answers;
    user.click(sheet.cmdSave(0));
  }
  void draw(frmPersonnage& window) { window.cmdMutaRandomChoice.setEnabled(false); }
  bool bothOpen(const frmFeuille& sheet) const { return sheet.isLoaded() && perso->isLoaded(); }
  // What was printed about the power, sizes and texts, without the blanks that fill a line.
  static std::string powerOn(const frmFeuille& sheet) {
    std::string text;
    for (const auto& [picture, words, x, y, points] : sheet.log.printed)
      if (y >= sheet.shpMutaCateg.Top() && y < sheet.shpContact.Top() && x < sheet.shpParticulSign.Left() &&
          picture == &sheet.pctRecto)
        text += numberText(points) + " " + words.substr(0, words.find_last_not_of(' ') + 1) + " ";
    return text;
  }
};

TEST_F(Saving, TheFrontAloneDecidesTheQuestion) {
  const auto sheet = visualise(*perso);
  files.contents = {{back, "old back"}};
  save(*sheet);
  EXPECT_EQ(dialogs.log.size(), 2U);
  EXPECT_EQ(files.contents[back], sheet->pctVerso.Image().bitmap());
}

TEST_F(Saving, CancelAndNoLeaveAllAsItWas) {
  draw(*perso);
  const auto sheet = visualise(*perso);
  save(*sheet, {Answer::Cancel});
  EXPECT_TRUE(files.directories.empty());
  files.contents = {{front, "old front"}};
  save(*sheet, {Answer::OK, Answer::No});
  EXPECT_EQ(files.contents, (Contents{{front, "old front"}}));
  EXPECT_TRUE(bothOpen(*sheet));
  EXPECT_EQ(powerOn(*sheet), "");
}

// A number of less than three digits stands in front of the name.
TEST_F(Saving, RevealsADrawnPowerOfItsOwnCharacter) {
  const auto own = newCharacter();
  for (auto* window : {own, perso.get()}) {
    name(*window, window == own ? "Eva" : "Luc");
    window->cmbMutaName.setListIndex(2);
    draw(*window);
  }
  const auto renamed = visualise(*perso);
  name(*perso, "Luce");
  save(*renamed);
  EXPECT_EQ(powerOn(*renamed), "") << "no longer the one of its sheet";
  EXPECT_EQ(files.contents.count(front), 1U);
  EXPECT_TRUE(perso->isLoaded() && renamed->wasUnloaded());
  const auto sheet = visualise(*own);
  sheet->pctRecto.setFontSize(9);
  save(*sheet);
  EXPECT_EQ(powerOn(*sheet), "9 AlphaPlus2 9 Griffes 9 Griffes, description. ");
}

TEST_F(Saving, AFailureIsToldAndLeavesTheWindowsOpenForAnotherTry) {
  int told = 0;
  globals().sheetNotSaved = [&] { ++told; };
  draw(*perso);
  const auto sheet = visualise(*perso);
  files.contents = {{front, "old front"}};
  const auto fails = [&](const std::string& reason) {
    save(*sheet, {Answer::OK, Answer::Yes});
    const std::string box = "16|Tessaly|Le personnage n'a pas pu être sauvé.\r\n" + reason;
    EXPECT_EQ(std::count(dialogs.log.begin(), dialogs.log.end(), box), 1) << reason;
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
  EXPECT_EQ(dialogs.log.back(),
            "notice|Le dossier ./Perso/.sauvegarde-1-finie n'a pas pu être retiré : "
            "Accès refusé : ./Perso/.sauvegarde-1-finie/Luc_1.old.");
  EXPECT_TRUE(sheet->wasUnloaded());
  EXPECT_EQ(powerOn(*sheet), "10 AlphaPlus0 10 7 Peau épaisse 10 Peau épaisse, description. ") << "printed once";
}

}  // namespace
}  // namespace orvane::test
